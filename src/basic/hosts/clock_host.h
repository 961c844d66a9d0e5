// Time and chance for a running program; a test gives it fixed ones.
#pragma once

#include <cstdint>

#include "basic/hosts/file_host.h"

namespace tarnwick::basic {

class ClockHost {
 public:
  virtual ~ClockHost() = default;
  /// The user's local time. Never fails.
  [[nodiscard]] virtual LocalTime Now() = 0;
  /// Waits; returns at once when the program is to end. Times of 0 and less return at once too.
  virtual void Sleep(double seconds) = 0;
  /// A start for RANDOMIZE without a number.
  [[nodiscard]] virtual std::uint64_t Seed() = 0;
};

}  // namespace tarnwick::basic
