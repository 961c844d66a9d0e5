// The time that a clock on the wall shows.
#pragma once

#include <string>

namespace tarnwick {

/// "2026-03-01 14:05:09", in the zone of the user.
[[nodiscard]] std::string LocalTime();

}  // namespace tarnwick
