// The one ordered record of what the fakes were asked.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// All fakes of a test write to one log, so that a test can say what came before what.
class CallLog {
 public:
  void Add(std::string entry);
  void Clear();
  [[nodiscard]] const std::vector<std::string>& Entries() const { return entries_; }
  /// How many entries begin with `start`.
  [[nodiscard]] std::size_t Count(std::string_view start) const;
  /// The place of the first entry that begins with `start`, or -1.
  [[nodiscard]] int Find(std::string_view start) const;

 private:
  std::vector<std::string> entries_;
};

}  // namespace tarnwick
