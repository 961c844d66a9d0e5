#include "hosts/local_clock.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

namespace tarnwick::hosts {

basic::LocalTime LocalTimeOf(std::time_t seconds, int millisecond) {
  std::tm parts{};
  if (::localtime_r(&seconds, &parts) == nullptr) return {};
  return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour,
          parts.tm_min,         parts.tm_sec,     millisecond};
}

std::optional<basic::LocalTime> ReadClock(std::string_view text) {
  basic::LocalTime time;
  int length = 0;
  const std::string line(text);
  const int read = std::sscanf(line.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &time.Year, &time.Month,
                               &time.Day, &time.Hour, &time.Minute, &time.Second, &length);
  const auto within = [](int value, int low, int high) { return value >= low && value <= high; };
  const bool good = read == 6 && length == static_cast<int>(line.size()) &&
                    within(time.Year, 1601, 9999) && within(time.Month, 1, 12) &&
                    within(time.Day, 1, 31) && within(time.Hour, 0, 23) &&
                    within(time.Minute, 0, 59) && within(time.Second, 0, 59);
  if (!good) return std::nullopt;
  return time;
}

basic::LocalTime LocalClock::Now() {
  if (still_) return *still_;
  const auto now = std::chrono::system_clock::now();
  const auto whole = std::chrono::floor<std::chrono::seconds>(now);
  const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(now - whole);
  return LocalTimeOf(std::chrono::system_clock::to_time_t(whole), static_cast<int>(rest.count()));
}

void LocalClock::Sleep(double seconds) {
  if (still_ || !(seconds > 0)) return;
  using Clock = std::chrono::steady_clock;
  constexpr double kLongest = 1e9;
  constexpr auto kSlice = std::chrono::milliseconds(20);
  const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                      std::chrono::duration<double>(std::min(seconds, kLongest)));
  while (Clock::now() < end && !(Ending && Ending())) {
    std::this_thread::sleep_for(
        std::min<Clock::duration>(kSlice, std::max(end - Clock::now(), Clock::duration::zero())));
  }
}

std::uint64_t LocalClock::Seed() {
  if (still_) return 1;
  return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

}  // namespace tarnwick::hosts
