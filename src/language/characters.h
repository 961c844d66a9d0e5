// Which bytes make up names and numbers.
#pragma once

namespace tarnwick::language {

[[nodiscard]] constexpr bool IsDigit(char c) noexcept {
  return c >= '0' && c <= '9';
}
/// A letter, "_", or a byte above ASCII other than the hard blank.
[[nodiscard]] constexpr bool IsNameStart(char c) noexcept {
  const auto byte = static_cast<unsigned char>(c);
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
         (byte >= 0x80 && byte != 0xA0);
}
[[nodiscard]] constexpr bool IsNameByte(char c) noexcept {
  return IsNameStart(c) || IsDigit(c);
}
[[nodiscard]] constexpr bool IsBlankByte(char c) noexcept {
  return c == ' ' || c == '\t' || c == '\f' || c == '\v' || c == '\0' || c == '\xA0';
}
/// The value of a digit in bases up to 36; 36 for any other byte.
[[nodiscard]] constexpr int DigitValue(char c) noexcept {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'z') return c - 'a' + 10;
  if (c >= 'A' && c <= 'Z') return c - 'A' + 10;
  return 36;
}

}  // namespace tarnwick::language
