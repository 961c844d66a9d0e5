// The generated text while it grows: whole lines.
#pragma once

#include <cstddef>
#include <string_view>
#include <utility>

#include "text/text_page.h"

namespace tarnwick {

/// A text in double quotes. Nothing is escaped.
struct Quoted {
  std::string_view Text;
};

/// A text followed by a number, or the text alone.
struct Numbered {
  std::string_view Text;
  int Number = 0;
  bool HasNumber = false;
};

[[nodiscard]] inline std::size_t MostBytesOf(const Quoted& quoted) noexcept {
  return quoted.Text.size() + 2;
}
inline char* SetPart(char* at, const Quoted& quoted) noexcept {
  *at++ = '"';
  at = SetPart(at, quoted.Text);
  *at++ = '"';
  return at;
}

[[nodiscard]] inline std::size_t MostBytesOf(const Numbered& numbered) noexcept {
  return numbered.Text.size() + MostBytesOf(numbered.Number);
}
inline char* SetPart(char* at, const Numbered& numbered) noexcept {
  at = SetPart(at, numbered.Text);
  return numbered.HasNumber ? SetPart(at, numbered.Number) : at;
}

/// A text of lines, each ended by CR LF, on its way to a sink. A line is given as its parts:
///
///   text.Line(name, ".Caption = ", Quoted{caption});
class SourceText {
 public:
  explicit SourceText(TextSink sink) : page_(std::move(sink)) {}

  template <class... Parts>
  void Line(const Parts&... parts) {
    page_.Put(parts..., "\r\n");
  }
  void Blank() { Line(); }

  /// Hands on what was written since the last time. Nobody else does so at the end.
  void Flush() { page_.Flush(); }

 private:
  TextPage page_;
};

}  // namespace tarnwick
