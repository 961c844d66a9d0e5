// The bytes behind the numbers that VARPTR gives.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::basic {

/// Addresses are numbers of the program's own variables; no memory of the process is reached.
class ByteMemory {
 public:
  virtual ~ByteMemory() = default;
  /// `count` bytes from an address on; nothing when not all of them belong to one variable.
  [[nodiscard]] virtual std::optional<std::string> Read(std::int64_t address,
                                                        std::size_t count) = 0;
  /// Writes bytes; false, and nothing is written, when not all of them belong to one variable.
  virtual bool Write(std::int64_t address, std::string_view bytes) = 0;
  /// The bytes from an address on up to a zero byte or the end of the variable; nothing when the
  /// address belongs to none.
  [[nodiscard]] virtual std::optional<std::string> TextAt(std::int64_t address) = 0;
};

}  // namespace tarnwick::basic
