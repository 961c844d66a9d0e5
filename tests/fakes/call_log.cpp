#include "fakes/call_log.h"

namespace tarnwick {

void CallLog::Add(std::string entry) {
  entries_.push_back(std::move(entry));
}

void CallLog::Clear() {
  entries_.clear();
}

std::size_t CallLog::Count(std::string_view start) const {
  return static_cast<std::size_t>(
      std::count_if(entries_.begin(), entries_.end(), [start](const std::string& entry) {
        return std::string_view(entry).substr(0, start.size()) == start;
      }));
}

int CallLog::Find(std::string_view start) const {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (std::string_view(entries_[i]).substr(0, start.size()) == start) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace tarnwick
