#include "project/watched_files.h"

#include <functional>

#include "text/code_page.h"

namespace tarnwick::project {

namespace {

std::size_t HashOf(std::string_view bytes) {
  return std::hash<std::string_view>{}(bytes);
}

}  // namespace

void WatchedFiles::Remember(const std::string& path, std::string_view bytes) {
  seen_[Lower(path)] = HashOf(bytes);
}

std::optional<std::string> WatchedFiles::Read(const std::string& path) {
  std::optional<std::string> bytes = files_.Read(path);
  if (bytes) Remember(path, *bytes);
  return bytes;
}

bool WatchedFiles::Replace(const std::string& path, std::string_view bytes) {
  if (!files_.Replace(path, bytes)) return false;
  Remember(path, bytes);
  return true;
}

bool WatchedFiles::Remove(const std::string& path) {
  seen_.erase(Lower(path));
  return files_.Remove(path);
}

bool WatchedFiles::ChangedOutside(const std::string& path) {
  const auto seen = seen_.find(Lower(path));
  if (seen == seen_.end()) return false;
  const std::optional<std::string> bytes = files_.Read(path);
  return bytes && HashOf(*bytes) != seen->second;
}

}  // namespace tarnwick::project
