#include "shell/recent_projects.h"

#include "text/code_page.h"

namespace tarnwick {

namespace {

constexpr std::string_view kSection = "Recent";

}  // namespace

std::vector<std::string> RecentProjects::List() const {
  std::vector<std::string> paths;
  for (std::size_t i = 1; i <= kMost; ++i) {
    std::string path = settings_.Read(kSection, std::to_string(i));
    if (!path.empty()) paths.push_back(std::move(path));
  }
  return paths;
}

void RecentProjects::Add(const std::string& path) {
  std::vector<std::string> paths = List();
  std::erase_if(paths, [&](const std::string& other) { return EqualsFolded(other, path); });
  paths.insert(paths.begin(), path);
  Store(paths);
}

void RecentProjects::Remove(const std::string& path) {
  std::vector<std::string> paths = List();
  std::erase_if(paths, [&](const std::string& other) { return EqualsFolded(other, path); });
  Store(paths);
}

void RecentProjects::Clear() {
  Store({});
}

void RecentProjects::Store(const std::vector<std::string>& paths) {
  const std::vector<std::string> before = List();
  for (std::size_t i = 0; i < kMost; ++i) {
    const std::string path = i < paths.size() ? paths[i] : std::string();
    const std::string old = i < before.size() ? before[i] : std::string();
    if (path != old) settings_.Write(kSection, std::to_string(i + 1), path);
  }
}

}  // namespace tarnwick
