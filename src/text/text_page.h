// A text while it grows: parts set on a page that stays in the processor's cache.
#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "text/numbers.h"
#include "text/short_bytes.h"

namespace tarnwick {

/// A number that prints as its digits. A yes/no value is none: it has a wording of its own.
template <class T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool>;

/// Takes a text piece by piece.
using TextSink = std::function<void(std::string_view)>;

// Each kind of part tells how many bytes it needs at most, and sets itself where there is room for
// them. A kind of its own for one text is one such pair of functions beside it.

[[nodiscard]] inline std::size_t MostBytesOf(std::string_view text) noexcept {
  return text.size();
}
[[nodiscard]] inline std::size_t MostBytesOf(WholeNumber auto /*number*/) noexcept {
  return 20;  // of a 64-bit number with its sign
}
[[nodiscard]] inline std::size_t MostBytesOf(float /*number*/) noexcept {
  return kMostSingle;
}

inline char* SetPart(char* at, std::string_view text) noexcept {
  return CopyBytes(at, text);
}
template <std::size_t N>
char* SetPart(char* at, const char (&literal)[N]) noexcept {
  std::memcpy(at, literal, N - 1);
  return at + (N - 1);
}
inline char* SetPart(char* at, char byte) noexcept {
  *at++ = byte;
  return at;
}
inline char* SetPart(char* at, WholeNumber auto number) noexcept {
  return std::to_chars(at, at + MostBytesOf(number), number).ptr;
}
inline char* SetPart(char* at, float number) noexcept {
  return PutNumber(at, number);
}

/// A text of parts on its way to a sink. Parts are texts, single bytes, whole numbers and singles,
/// and whatever else has the two functions above; none needs a string of its own:
///
///   page.Put(name, ".Caption = ", 12);
class TextPage {
 public:
  explicit TextPage(TextSink sink) : sink_(std::move(sink)) {}

  template <class... Parts>
  void Put(const Parts&... parts) {
    char* at = Room((std::size_t{0} + ... + MostBytesOf(parts)));
    ((at = SetPart(at, parts)), ...);
    filled_ = static_cast<std::size_t>(at - page_.data());
  }

  /// Hands on what was put since the last time. Nobody else does so at the end.
  void Flush();

 private:
  /// Where the next bytes go, with room for `most` of them.
  char* Room(std::size_t most) {
    if (page_.size() - filled_ < most) Turn(most);
    return page_.data() + filled_;
  }
  void Turn(std::size_t most);

  TextSink sink_;
  std::vector<char> page_;
  std::size_t filled_ = 0;
};

}  // namespace tarnwick
