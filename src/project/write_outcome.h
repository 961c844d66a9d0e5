// What became of a write.
#pragma once

#include <string>

namespace tarnwick::project {

/// True as a condition when all was written.
struct WriteOutcome {
  std::string Failed;      ///< the first file that could not be written; "" for none
  std::string Reason;      ///< why, in a few words; "" when it is not known
  bool Cancelled = false;  ///< a dialog for a name was cancelled

  explicit operator bool() const noexcept { return Failed.empty() && !Cancelled; }
};

}  // namespace tarnwick::project
