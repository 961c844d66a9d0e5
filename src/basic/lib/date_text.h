// Dates and times as the language writes them.
#pragma once

#include <string>

#include "basic/hosts/file_host.h"

namespace tarnwick::basic {

/// "mm-dd-yyyy", as DATE$ and FILEREC.Date have it.
[[nodiscard]] std::string DateText(const LocalTime& time);
/// "hh:mm:ss" of 24 hours, as TIME$ and FILEREC.Time have it.
[[nodiscard]] std::string TimeText(const LocalTime& time);
/// Seconds since midnight, with their fraction.
[[nodiscard]] double SecondsOfDay(const LocalTime& time);

}  // namespace tarnwick::basic
