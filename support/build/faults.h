// Faults of the support sources. All of them are gathered, so that one run shows the whole list;
// the builder writes no file when there is one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::support {

/// A line of a source file, counted from 1.
struct Place {
  std::string File;
  std::size_t Line = 0;
};

/// The text between double quotes, for messages.
[[nodiscard]] inline std::string Quoted(std::string_view text) {
  std::string quoted(1, '"');
  quoted.append(text).append(1, '"');
  return quoted;
}

class Faults {
 public:
  /// Adds "file:line: message".
  void Add(const Place& where, std::string_view message) {
    lines_.push_back(where.File + ":" + std::to_string(where.Line) + ": " + std::string(message));
  }
  [[nodiscard]] bool Empty() const noexcept { return lines_.empty(); }
  [[nodiscard]] const std::vector<std::string>& Lines() const noexcept { return lines_; }

 private:
  std::vector<std::string> lines_;
};

}  // namespace tarnwick::support
