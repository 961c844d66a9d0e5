#include "platform/native_path.h"

#include <memory>
#include <string_view>

#include <dirent.h>
#include <sys/stat.h>

#include "text/code_page.h"
#include "text/path_text.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

bool IsThere(const std::string& native) {
  struct stat found {};
  return ::lstat(native.c_str(), &found) == 0;
}

/// The entry of a folder whose name is `name` (Windows-1252) but for case; the first in byte order
/// when there are several, so that the result does not depend on the order of the disk.
std::optional<std::string> EntryLike(const std::string& folder, std::string_view name) {
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(folder.c_str()), &::closedir);
  if (!listing) return std::nullopt;
  std::optional<std::string> best;
  while (const dirent* entry = ::readdir(listing.get())) {
    const std::string_view entry_name(entry->d_name);
    if ((!best || entry_name < *best) && EqualsFolded(Utf8ToCodePage(entry_name), name)) {
      best = entry_name;
    }
  }
  return best;
}

/// The machine path; "" for a path that can name no file here.
std::string UsableNative(const std::string& path) {
  std::string native = PathToNative(path);
  if (native.find('\0') != std::string::npos) native.clear();
  return native;
}

/// Walks down from the root or the working folder. When all but the last component is there and
/// `may_be_new` is set, the last one is taken as it is written.
std::optional<std::string> Walk(const std::string& native, bool may_be_new) {
  std::string reached = native.front() == '/' ? "/" : "";
  const std::vector<std::string_view> components = Split(native, "/");
  for (std::size_t i = 0; i < components.size(); ++i) {
    if (components[i].empty()) continue;
    const std::string next = reached + std::string(components[i]);
    if (IsThere(next)) {
      reached = next;
    } else if (const auto entry =
                   EntryLike(reached.empty() ? "." : reached, Utf8ToCodePage(components[i]))) {
      reached += *entry;
    } else if (may_be_new && i + 1 == components.size() && (reached.empty() || IsThere(reached))) {
      return next;
    } else {
      return std::nullopt;
    }
    if (i + 1 != components.size()) reached += '/';
  }
  return reached;
}

}  // namespace

std::optional<std::string> FindNative(const std::string& path) {
  const std::string native = UsableNative(path);
  if (native.empty()) return std::nullopt;
  // The usual case costs one look-up.
  if (IsThere(native)) return native;
  return Walk(native, false);
}

std::optional<std::string> FindNativeForWriting(const std::string& path) {
  const std::string native = UsableNative(path);
  if (native.empty()) return std::nullopt;
  if (IsThere(native)) return native;
  return Walk(native, true);
}

}  // namespace tarnwick
