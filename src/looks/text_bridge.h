// Text of the code page and text of the toolkit.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tarnwick::looks {

/// Text of the code page as the toolkit shows it. Every byte has its character, so nothing is lost.
[[nodiscard]] QString ToQString(std::string_view text);
/// Text of the toolkit in the code page; each character that the page lacks becomes one "?".
[[nodiscard]] std::string FromQString(const QString& text);

}  // namespace tarnwick::looks
