// Text with RTF around it: read without its looks, written with none.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick::objects {

/// True for bytes that begin as RTF does.
[[nodiscard]] bool IsRichText(std::string_view bytes) noexcept;
/// The text within RTF: Windows-1252, lines end in CR LF. What is damaged is passed over.
[[nodiscard]] std::string PlainTextOf(std::string_view rich);
/// RTF with this text.
[[nodiscard]] std::string RichTextOf(std::string_view plain);

}  // namespace tarnwick::objects
