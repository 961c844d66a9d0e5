#include "looks/picture_file.h"

#include <cstddef>
#include <cstdint>

namespace tarnwick::looks {

namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::uint32_t kCoreHeader = 12;  // the oldest one, with 16-bit sizes

/// A little-endian number of so many bytes; 0 beyond the end.
std::uint32_t NumberAt(std::string_view bytes, std::size_t at, int size) noexcept {
  std::uint32_t number = 0;
  for (int i = size - 1; i >= 0; --i) {
    const std::size_t index = at + static_cast<std::size_t>(i);
    const unsigned byte = index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0;
    number = number << 8U | byte;
  }
  return number;
}

/// True when run-length codes reach their end mark within the bytes.
bool RunsEnd(std::string_view codes, bool four_bits) noexcept {
  std::size_t at = 0;
  while (at + 1 < codes.size()) {
    const auto count = static_cast<unsigned char>(codes[at]);
    const auto what = static_cast<unsigned char>(codes[at + 1]);
    at += 2;
    if (count != 0) continue;
    if (what == 1) return true;
    if (what == 2) at += 2;
    if (what > 2) {
      const std::size_t literal = four_bits ? (what + 1U) / 2U : what;
      at += literal + literal % 2;
    }
  }
  return false;
}

}  // namespace

bool IsWhole(std::string_view bytes) noexcept {
  if (!bytes.starts_with("BM")) return true;
  if (bytes.size() < kFileHeader + kCoreHeader) return false;
  const std::uint32_t offset = NumberAt(bytes, 10, 4);
  const std::uint32_t header = NumberAt(bytes, kFileHeader, 4);
  const bool core = header == kCoreHeader;
  const std::int64_t width =
      core ? NumberAt(bytes, 18, 2) : static_cast<std::int32_t>(NumberAt(bytes, 18, 4));
  const std::int64_t height =
      core ? NumberAt(bytes, 20, 2) : static_cast<std::int32_t>(NumberAt(bytes, 22, 4));
  const std::int64_t bits = NumberAt(bytes, core ? 24 : 28, 2);
  const std::uint32_t compression = core ? 0 : NumberAt(bytes, 30, 4);
  if (offset > bytes.size() || width <= 0 || bits > 32) return false;
  constexpr std::uint32_t kRuns8 = 1;
  constexpr std::uint32_t kRuns4 = 2;
  constexpr std::uint32_t kMasks = 3;
  if (compression == kRuns8 || compression == kRuns4) {
    return RunsEnd(bytes.substr(offset), compression == kRuns4);
  }
  if (compression != 0 && compression != kMasks) return true;
  const std::int64_t row = (width * bits + 31) / 32 * 4;
  const std::int64_t rows = height < 0 ? -height : height;
  // A row count that no file can hold is compared by division.
  const auto room = static_cast<std::int64_t>(bytes.size() - offset);
  return rows <= room / row;
}

}  // namespace tarnwick::looks
