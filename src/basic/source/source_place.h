// Where something stands in the source of a program.
#pragma once

#include <cstdint>

namespace tarnwick::basic {

/// A stretch of one source line. `File` is the index in the source set; lines and columns count
/// from 1; column and length are in bytes. Line 0 means "no place".
struct SourcePlace {
  std::uint32_t Line = 0;
  std::uint16_t File = 0;
  std::uint16_t Column = 0;  ///< a column past 65535 is stored as 65535
  std::uint16_t Length = 0;

  friend bool operator==(const SourcePlace&, const SourcePlace&) = default;
};

}  // namespace tarnwick::basic
