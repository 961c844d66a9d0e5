// The projects opened or saved last.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "persistence/settings.h"

namespace tarnwick {

/// Paths of project files in the settings, section "Recent", the last one first.
class RecentProjects {
 public:
  static constexpr std::size_t kMost = 8;

  explicit RecentProjects(Settings& settings) : settings_(settings) {}

  [[nodiscard]] std::vector<std::string> List() const;
  /// Puts a path at the head; it is listed once, in any case.
  void Add(const std::string& path);
  /// Takes a path out: its file has gone.
  void Remove(const std::string& path);
  void Clear();

 private:
  void Store(const std::vector<std::string>& paths);

  Settings& settings_;
};

}  // namespace tarnwick
