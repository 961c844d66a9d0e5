#include "text/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace tarnwick {
namespace {

constexpr std::uint8_t Index(char c) noexcept {
  return static_cast<std::uint8_t>(c);
}

/// Bytes 0x80 to 0x9F of the page; all others are the code point of their number. The unassigned
/// five (81, 8D, 8F, 90, 9D) are the control characters of their number.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
};

/// A run of upper-case bytes and the distance to their lower-case forms.
struct CaseRun {
  std::uint8_t First;
  std::uint8_t Last;
  std::uint8_t ToLower;
};

/// Every letter of the page that has both forms in it. The sharp s, the micro sign and the florin
/// sign have a capital outside the page or none, and are unchanged.
constexpr CaseRun kCaseRuns[] = {
    {0x41, 0x5A, 0x20},  // A to Z
    {0xC0, 0xD6, 0x20},  // A grave to O diaeresis
    {0xD8, 0xDE, 0x20},  // O stroke to thorn; D7 is the multiplication sign
    {0x8A, 0x8A, 0x10},  // S caron
    {0x8C, 0x8C, 0x10},  // OE
    {0x8E, 0x8E, 0x10},  // Z caron
    {0x9F, 0x9F, 0x60},  // Y diaeresis
};

using ByteTable = std::array<char, 256>;

constexpr ByteTable MakeCaseTable(bool to_lower) {
  ByteTable table{};
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = static_cast<char>(i);
  for (const CaseRun& run : kCaseRuns) {
    for (std::size_t upper = run.First; upper <= run.Last; ++upper) {
      const std::size_t lower = upper + run.ToLower;
      if (to_lower) {
        table[upper] = static_cast<char>(lower);
      } else {
        table[lower] = static_cast<char>(upper);
      }
    }
  }
  return table;
}

std::string Mapped(std::string_view text, const ByteTable& table) {
  std::string mapped(text);
  for (char& c : mapped) c = table[Index(c)];
  return mapped;
}

bool EqualBytesFolded(char a, char b) noexcept {
  return LowerByte(a) == LowerByte(b);
}

/// Up to eight bytes as one number, in lower case.
std::uint64_t FoldedWord(std::string_view bytes) noexcept {
  std::uint64_t word = 0;
  for (const char c : bytes) word = word << 8U | Index(LowerByte(c));
  return word;
}

void AppendUtf8(std::string& out, char32_t code_point) {
  const auto value = static_cast<std::uint32_t>(code_point);
  if (value < 0x80) {
    out += static_cast<char>(value);
  } else if (value < 0x800) {
    out += static_cast<char>(0xC0U | (value >> 6U));
    out += static_cast<char>(0x80U | (value & 0x3FU));
  } else {
    out += static_cast<char>(0xE0U | (value >> 12U));
    out += static_cast<char>(0x80U | ((value >> 6U) & 0x3FU));
    out += static_cast<char>(0x80U | (value & 0x3FU));
  }
}

/// A code point and the number of bytes it took; no bytes when the text begins with no UTF-8.
struct Decoded {
  char32_t CodePoint = 0;
  std::size_t Size = 0;
};

Decoded DecodeOne(std::string_view utf8) noexcept {
  const std::uint32_t lead = Index(utf8.front());
  if (lead < 0x80) return {lead, 1};
  std::size_t size = 0;
  std::uint32_t least = 0;
  if (lead >= 0xC2 && lead < 0xE0) {
    size = 2;
    least = 0x80;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    size = 3;
    least = 0x800;
  } else if (lead >= 0xF0 && lead < 0xF5) {
    size = 4;
    least = 0x10000;
  }
  if (size == 0 || utf8.size() < size) return {};
  std::uint32_t value = lead & (0x7FU >> size);
  for (std::size_t i = 1; i < size; ++i) {
    const std::uint32_t next = Index(utf8[i]);
    if ((next & 0xC0U) != 0x80) return {};
    value = (value << 6U) | (next & 0x3FU);
  }
  const bool surrogate = value >= 0xD800 && value < 0xE000;
  if (value < least || value > 0x10FFFF || surrogate) return {};
  return {value, size};
}

}  // namespace

constexpr ByteTable kLowerBytes = MakeCaseTable(true);
constexpr ByteTable kUpperBytes = MakeCaseTable(false);

std::string Lower(std::string_view text) {
  return Mapped(text, kLowerBytes);
}

std::string Upper(std::string_view text) {
  return Mapped(text, kUpperBytes);
}

bool EqualsFolded(std::string_view a, std::string_view b) noexcept {
  // Names are mostly written the same way everywhere.
  return a == b || (a.size() == b.size() && StartsWithFolded(a, b));
}

bool StartsWithFolded(std::string_view text, std::string_view start) noexcept {
  if (text.size() < start.size()) return false;
  return std::equal(start.begin(), start.end(), text.begin(), EqualBytesFolded);
}

std::size_t FindFolded(std::string_view text, std::string_view part, std::size_t from) noexcept {
  if (from > text.size()) return std::string_view::npos;
  const auto* const start = text.begin() + from;
  const auto* const found =
      std::search(start, text.end(), part.begin(), part.end(), EqualBytesFolded);
  if (found == text.end() && !part.empty()) return std::string_view::npos;
  return static_cast<std::size_t>(found - text.begin());
}

std::size_t FoldedHash::operator()(std::string_view text) const {
  // Eight bytes to a step. A product moves bits up alone: the high ones are brought down around it.
  constexpr std::size_t kStep = 8;
  std::uint64_t hash = 0xCBF29CE484222325U;
  const auto take = [&hash](std::uint64_t word) {
    hash ^= word;
    hash = (hash ^ (hash >> 32U)) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 29U;
  };
  const auto take_at = [&take, text](std::size_t at) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, kStep);
    // Of ASCII letters one bit is the case; other bytes of ASCII may share a hash for it.
    const bool ascii = (word & 0x8080808080808080U) == 0;
    take(ascii ? word | 0x2020202020202020U : FoldedWord(text.substr(at, kStep)));
  };
  if (text.size() < kStep) {
    take(FoldedWord(text));
    return static_cast<std::size_t>(hash);
  }
  std::size_t at = 0;
  for (; at + kStep <= text.size(); at += kStep) take_at(at);
  // The rest, with some bytes once more.
  if (at < text.size()) take_at(text.size() - kStep);
  return static_cast<std::size_t>(hash);
}

std::string CodePageToUtf8(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size() + text.size() / 8);
  for (const char c : text) AppendUtf8(utf8, ByteToCodePoint(c));
  return utf8;
}

std::string Utf8ToCodePage(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const Decoded decoded = DecodeOne(utf8);
    if (decoded.Size == 0) {
      text += '?';
      utf8.remove_prefix(1);
    } else {
      text += CodePointToByte(decoded.CodePoint).value_or('?');
      utf8.remove_prefix(decoded.Size);
    }
  }
  return text;
}

std::optional<char> CodePointToByte(char32_t code_point) noexcept {
  if (code_point < 0x80 || (code_point >= 0xA0 && code_point <= 0xFF)) {
    return static_cast<char>(code_point);
  }
  const auto* const found = std::find(kHighControls.begin(), kHighControls.end(), code_point);
  if (found == kHighControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - kHighControls.begin()));
}

char32_t ByteToCodePoint(char byte) noexcept {
  const std::uint8_t value = Index(byte);
  if (value < 0x80 || value >= 0xA0) return value;
  return kHighControls[value - 0x80U];
}

}  // namespace tarnwick
