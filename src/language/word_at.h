// The word at the caret, as completion sees it.
#pragma once

#include <cstddef>
#include <string_view>

namespace tarnwick::language {

/// The name that the caret touches in a line, without its type suffix; `caret` counts the bytes in
/// front of it. With a dot directly in front of the caret: the name in front of the dot with the
/// dot, or the dot alone. "" when the caret touches none.
[[nodiscard]] std::string_view WordAt(std::string_view line, std::size_t caret) noexcept;

}  // namespace tarnwick::language
