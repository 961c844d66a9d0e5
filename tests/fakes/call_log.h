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
  void Add(std::string entry) { entries_.push_back(std::move(entry)); }
  void Clear() { entries_.clear(); }
  [[nodiscard]] const std::vector<std::string>& Entries() const { return entries_; }
  /// How many entries begin with `start`.
  [[nodiscard]] std::size_t Count(std::string_view start) const {
    return static_cast<std::size_t>(
        std::count_if(entries_.begin(), entries_.end(), [start](const std::string& entry) {
          return std::string_view(entry).substr(0, start.size()) == start;
        }));
  }
  /// The place of the first entry that begins with `start`, or -1.
  [[nodiscard]] int Find(std::string_view start) const {
    for (std::size_t i = 0; i < entries_.size(); ++i) {
      if (std::string_view(entries_[i]).substr(0, start.size()) == start)
        return static_cast<int>(i);
    }
    return -1;
  }

 private:
  std::vector<std::string> entries_;
};

}  // namespace tarnwick
