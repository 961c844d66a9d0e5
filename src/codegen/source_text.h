// The generated text while it grows: whole lines.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "text/numbers.h"
#include "text/strings.h"

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

/// A number that prints as its digits.
template <class T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char>;

/// A text of lines, each ended by CR LF. A line is given as its parts: texts, numbers and the two
/// above.
///
///   text.Line(name, ".Caption = ", Quoted{caption});
class SourceText {
 public:
  template <class... Parts>
  void Line(const Parts&... parts) {
    (Append(parts), ...);
    text_ += kLineEnd;
  }
  void Blank() { Line(); }

  [[nodiscard]] const std::string& Text() const noexcept { return text_; }
  /// Moves the text out.
  [[nodiscard]] std::string Take() noexcept { return std::move(text_); }

 private:
  void Append(std::string_view text) { text_ += text; }
  void Append(WholeNumber auto number) { AppendNumber(text_, static_cast<std::int64_t>(number)); }
  void Append(float number) { AppendNumber(text_, number); }
  void Append(const Quoted& quoted) { text_.append(1, '"').append(quoted.Text).append(1, '"'); }
  void Append(const Numbered& numbered) {
    text_ += numbered.Text;
    if (numbered.HasNumber) Append(numbered.Number);
  }

  std::string text_;
};

}  // namespace tarnwick
