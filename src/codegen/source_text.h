// The generated text while it grows: whole lines.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
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

/// Gets a text in pieces, from its beginning to its end.
using TextSink = std::function<void(std::string_view)>;

/// A text of lines, each ended by CR LF. A line is given as its parts: texts, numbers and the two
/// above.
///
///   text.Line(name, ".Caption = ", Quoted{caption});
class SourceText {
 public:
  /// A text that is kept whole.
  SourceText() = default;
  /// A text that goes to `sink` whenever about so many bytes have come together, and with Flush().
  SourceText(TextSink sink, std::size_t piece) : sink_(std::move(sink)) { bytes_.resize(piece); }

  template <class... Parts>
  void Line(const Parts&... parts) {
    // Room is made for the whole line, so that its parts need no check each.
    MakeRoom((MostBytes(parts) + ... + kLineEnd.size()));
    char* at = bytes_.data() + size_;
    ((at = Put(at, parts)), ...);
    at = Put(at, kLineEnd);
    size_ = static_cast<std::size_t>(at - bytes_.data());
  }
  void Blank() { Line(); }

  /// Prepares for a text of about so many bytes that is kept whole.
  void Expect(std::size_t bytes) { MakeRoom(bytes); }
  /// The bytes of all lines so far.
  [[nodiscard]] std::size_t Size() const noexcept { return passed_on_ + size_; }
  /// The text without what went to the sink.
  [[nodiscard]] std::string_view Text() const noexcept {
    return std::string_view(bytes_).substr(0, size_);
  }
  /// Hands what is left to the sink.
  void Flush() {
    passed_on_ += size_;
    sink_(std::string_view(bytes_).substr(0, std::exchange(size_, 0)));
  }
  /// Moves a text out that is kept whole.
  [[nodiscard]] std::string Take() {
    bytes_.resize(std::exchange(size_, 0));
    return std::exchange(bytes_, {});
  }

 private:
  void MakeRoom(std::size_t bytes) {
    if (bytes_.size() - size_ >= bytes) return;
    if (sink_) Flush();
    if (bytes_.size() - size_ < bytes) bytes_.resize(size_ + std::max(bytes, size_));
  }

  static std::size_t MostBytes(std::string_view text) noexcept { return text.size(); }
  static std::size_t MostBytes(WholeNumber auto /*number*/) noexcept { return kMostNumberBytes; }
  static std::size_t MostBytes(float /*number*/) noexcept { return kMostNumberBytes; }
  static std::size_t MostBytes(const Quoted& quoted) noexcept { return quoted.Text.size() + 2; }
  static std::size_t MostBytes(const Numbered& numbered) noexcept {
    return numbered.Text.size() + kMostNumberBytes;
  }

  // Each writes a part and returns its end.
  static char* Put(char* at, std::string_view text) noexcept {
    return std::copy(text.begin(), text.end(), at);
  }
  static char* Put(char* at, WholeNumber auto number) noexcept {
    return WriteNumber(at, static_cast<std::int64_t>(number));
  }
  static char* Put(char* at, float number) noexcept { return WriteNumber(at, number); }
  static char* Put(char* at, const Quoted& quoted) noexcept {
    at = Put(Put(at, "\""), quoted.Text);
    return Put(at, "\"");
  }
  static char* Put(char* at, const Numbered& numbered) noexcept {
    at = Put(at, numbered.Text);
    return numbered.HasNumber ? Put(at, numbered.Number) : at;
  }

  std::string bytes_;     ///< the text and free room behind it
  std::size_t size_ = 0;  ///< of the text
  TextSink sink_;         ///< empty for a text that is kept whole
  std::size_t passed_on_ = 0;
};

}  // namespace tarnwick
