// Time for a running program.
#pragma once

#include <ctime>
#include <functional>
#include <optional>
#include <string_view>

#include "basic/hosts/clock_host.h"

namespace tarnwick::hosts {

/// A moment in the user's time zone.
[[nodiscard]] basic::LocalTime LocalTimeOf(std::time_t seconds, int millisecond);
/// "2024-02-29 13:05:09"; nothing when it is no such text.
[[nodiscard]] std::optional<basic::LocalTime> ReadClock(std::string_view text);

/// The machine's clock, or one that stands still, for tests that can be repeated.
class LocalClock final : public basic::ClockHost {
 public:
  LocalClock() = default;
  explicit LocalClock(std::optional<basic::LocalTime> still) : still_(still) {}
  /// Asked now and then while the program sleeps: true ends the sleep.
  std::function<bool()> Ending;

  basic::LocalTime Now() override;
  /// A clock that stands still does not wait.
  void Sleep(double seconds) override;
  std::uint64_t Seed() override;

 private:
  std::optional<basic::LocalTime> still_;
};

}  // namespace tarnwick::hosts
