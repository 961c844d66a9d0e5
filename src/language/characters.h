// Which bytes make up names and numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick::language {

/// What a byte may be part of, as a sum.
enum ByteClass : std::uint8_t { kNameStartByte = 1, kDigitByte = 2, kBlankByte = 4, kSignByte = 8 };

inline constexpr auto kByteClasses = [] {
  std::array<std::uint8_t, 256> classes{};
  const auto mark = [&classes](std::string_view bytes, std::uint8_t as) {
    for (const char c : bytes) classes[static_cast<unsigned char>(c)] |= as;
  };
  for (std::size_t letter = 'a'; letter <= 'z'; ++letter) {
    classes[letter] = classes[letter - 'a' + 'A'] = kNameStartByte;
  }
  for (std::size_t byte = 0x80; byte < classes.size(); ++byte) classes[byte] = kNameStartByte;
  classes[0xA0] = 0;
  mark("_", kNameStartByte);
  mark("0123456789", kDigitByte);
  mark({" \t\f\v\0\xA0", 6}, kBlankByte);
  mark("()[]{}+-*/\\^&=<>.,;:?@#$%!|~`", kSignByte);
  return classes;
}();

[[nodiscard]] constexpr std::uint8_t ClassOf(char c) noexcept {
  return kByteClasses[static_cast<unsigned char>(c)];
}
[[nodiscard]] constexpr bool IsDigit(char c) noexcept {
  return c >= '0' && c <= '9';
}
/// A letter, "_", or a byte above ASCII other than the hard blank.
[[nodiscard]] constexpr bool IsNameStart(char c) noexcept {
  return (ClassOf(c) & kNameStartByte) != 0;
}
[[nodiscard]] constexpr bool IsNameByte(char c) noexcept {
  return (ClassOf(c) & (kNameStartByte | kDigitByte)) != 0;
}
[[nodiscard]] constexpr bool IsBlankByte(char c) noexcept {
  return (ClassOf(c) & kBlankByte) != 0;
}
/// A byte that is a sign by itself.
[[nodiscard]] constexpr bool IsSignByte(char c) noexcept {
  return (ClassOf(c) & kSignByte) != 0;
}
/// The value of a digit in bases up to 36; 36 for any other byte.
[[nodiscard]] constexpr int DigitValue(char c) noexcept {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'z') return c - 'a' + 10;
  if (c >= 'A' && c <= 'Z') return c - 'A' + 10;
  return 36;
}

}  // namespace tarnwick::language
