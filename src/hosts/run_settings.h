// What the programs that run RapidQ let the user choose for a run.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "basic/hosts/file_host.h"
#include "basic/vm/run_result.h"

namespace tarnwick::hosts {

struct RunSettings {
  std::uint64_t MaxSteps = 0;  ///< 0: no limit
  double MaxSeconds = 0;       ///< 0: no limit
  std::uint64_t Seed = 0;
  std::optional<basic::LocalTime> Clock;  ///< stands still at this moment
  bool Switch = false;                    ///< the plain way of dispatching
  bool Strict = false;

  [[nodiscard]] basic::RunOptions Options() const;
};

/// How a word of the command line was taken.
enum class Taken {
  No,     ///< it is none of these settings
  Alone,  ///< a setting without a value
  Value,  ///< a setting with its value
  Wrong   ///< the value does not fit
};

/// Takes "--strict", "--max-steps N" and the like into `settings`. `value` is what stands behind
/// the equals sign or is the next word.
[[nodiscard]] Taken TakeSetting(RunSettings& settings, const std::string& name,
                                const std::string& value);

/// What the settings are, for the help.
[[nodiscard]] const char* RunSettingsHelp();

}  // namespace tarnwick::hosts
