// The generated text while it grows: whole lines, written into one buffer.
#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text/short_bytes.h"

namespace tarnwick {

/// A number that prints as its digits. A yes/no value is none: it has a wording of its own.
template <class T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool>;

/// A length of a design control, printed in pixels.
struct Pixels {
  float Twips = 0;
};

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

/// Takes a text piece by piece.
using SourceSink = std::function<void(std::string_view)>;

/// A text of lines, each ended by CR LF, on its way to a sink. A line is given as its parts:
///
///   text.Line(name, ".Caption = ", Quoted{caption});
///
/// Parts are texts, single bytes, whole numbers, `Pixels`, `Quoted` and `Numbered`; they go into
/// the buffer without a string of their own.
class SourceText {
 public:
  explicit SourceText(SourceSink sink) : sink_(std::move(sink)) {}

  template <class... Parts>
  void Line(const Parts&... parts) {
    char* at = Room((std::size_t{2} + ... + MostOf(parts)));
    ((at = Put(at, parts)), ...);
    *at++ = '\r';
    *at++ = '\n';
    filled_ = static_cast<std::size_t>(at - page_.data());
  }
  void Blank() { Line(); }

  /// Hands on what was written since the last time. Nobody else does so at the end.
  void Flush();

 private:
  static constexpr std::size_t kMostDigits = 20;  ///< of a 64-bit number with its sign
  static constexpr std::size_t kMostPixels = 64;  ///< of a single in its longest decimal form

  static std::size_t MostOf(std::string_view text) noexcept { return text.size(); }
  static std::size_t MostOf(WholeNumber auto /*number*/) noexcept { return kMostDigits; }
  static std::size_t MostOf(Pixels /*length*/) noexcept { return kMostPixels; }
  static std::size_t MostOf(Quoted quoted) noexcept { return quoted.Text.size() + 2; }
  static std::size_t MostOf(const Numbered& numbered) noexcept {
    return numbered.Text.size() + kMostDigits;
  }

  template <std::size_t N>
  static char* Put(char* at, const char (&literal)[N]) noexcept {
    std::memcpy(at, literal, N - 1);
    return at + (N - 1);
  }
  static char* Put(char* at, std::string_view text) noexcept { return CopyBytes(at, text); }
  static char* Put(char* at, char byte) noexcept {
    *at++ = byte;
    return at;
  }
  static char* Put(char* at, WholeNumber auto number) noexcept {
    return std::to_chars(at, at + kMostDigits, number).ptr;
  }
  static char* Put(char* at, Pixels length);
  static char* Put(char* at, Quoted quoted) noexcept {
    *at++ = '"';
    at = Put(at, quoted.Text);
    *at++ = '"';
    return at;
  }
  static char* Put(char* at, const Numbered& numbered) noexcept {
    at = Put(at, numbered.Text);
    return numbered.HasNumber ? Put(at, numbered.Number) : at;
  }

  /// Where the next bytes go, with room for `most` of them.
  char* Room(std::size_t most) {
    if (page_.size() - filled_ < most) TurnPage(most);
    return page_.data() + filled_;
  }
  void TurnPage(std::size_t most);

  // Lines are set on a page that stays in the processor's cache.
  SourceSink sink_;
  std::vector<char> page_;
  std::size_t filled_ = 0;
};

}  // namespace tarnwick
