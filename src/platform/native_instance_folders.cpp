#include "platform/native_instance_folders.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/native_path.h"
#include "text/path_text.h"

namespace tarnwick {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kLockName = "lock";
constexpr int kMostNames = 100;

/// The locked file, or -1: another process holds it, or it cannot be made.
int LockIn(const fs::path& folder, int flags) {
  const int file = ::open((folder / kLockName).c_str(), O_RDWR | O_CLOEXEC | flags, 0600);
  if (file < 0) return -1;
  if (::flock(file, LOCK_EX | LOCK_NB) == 0) return file;
  ::close(file);
  return -1;
}

/// True while the instance of a folder holds it.
bool IsHeld(const fs::path& folder) {
  const int file = ::open((folder / kLockName).c_str(), O_RDWR | O_CLOEXEC);
  if (file < 0) return false;
  const bool free = ::flock(file, LOCK_EX | LOCK_NB) == 0;
  ::close(file);
  return !free;
}

}  // namespace

NativeInstanceFolders::~NativeInstanceFolders() {
  for (const auto& [path, file] : held_) ::close(file);
}

std::string NativeInstanceFolders::Claim(const std::string& parent) {
  const std::optional<std::string> found = FindNativeForWriting(parent);
  if (!found) return {};
  std::error_code failed;
  fs::create_directories(*found, failed);
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto stamp = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
  for (int i = 0; i < kMostNames; ++i) {
    const std::string name =
        std::to_string(stamp) + "-" + std::to_string(::getpid()) + "-" + std::to_string(i);
    const fs::path folder = fs::path(*found) / name;
    if (!fs::create_directory(folder, failed)) continue;
    const int file = LockIn(folder, O_CREAT);
    if (file < 0) return {};
    std::string path = parent + "\\" + name;
    held_[path] = file;
    return path;
  }
  return {};
}

std::vector<InstanceFolder> NativeInstanceFolders::List(const std::string& parent) {
  std::vector<InstanceFolder> folders;
  const std::optional<std::string> found = FindNative(parent);
  if (!found) return folders;
  std::error_code failed;
  for (const fs::directory_entry& entry : fs::directory_iterator(*found, failed)) {
    if (!entry.is_directory(failed)) continue;
    InstanceFolder folder{
        parent + "\\" + entry.path().filename().string(), IsHeld(entry.path()), {}};
    for (const fs::directory_entry& file : fs::directory_iterator(entry.path(), failed)) {
      std::string name = file.path().filename().string();
      if (name != kLockName) folder.Files.push_back(std::move(name));
    }
    folders.push_back(std::move(folder));
  }
  return folders;
}

bool NativeInstanceFolders::Remove(const std::string& path) {
  if (const auto held = held_.find(path); held != held_.end()) {
    ::close(held->second);
    held_.erase(held);
  }
  const std::optional<std::string> found = FindNative(path);
  std::error_code failed;
  return found && fs::remove_all(*found, failed) > 0 && !failed;
}

}  // namespace tarnwick
