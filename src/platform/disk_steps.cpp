#include "platform/disk_steps.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick {

int DiskSteps::Create(const std::string& path, unsigned mode) {
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
}

bool DiskSteps::Write(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file, bytes.data(), bytes.size());
    if (written > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (written == 0 || errno != EINTR) {
      return false;
    }
  }
  return true;
}

bool DiskSteps::CopyOwner(int file, const std::string& from) {
  struct stat old {};
  if (::stat(from.c_str(), &old) != 0) return false;
  // Only root may give files away; for others the file becomes their own, as after any edit. The
  // owner goes first, because a change of owner takes bits off the permissions.
  if (::fchown(file, old.st_uid, old.st_gid) != 0) errno = 0;
  return ::fchmod(file, old.st_mode & 07777U) == 0;
}

bool DiskSteps::Flush(int file) {
  return ::fsync(file) == 0;
}

bool DiskSteps::Close(int file) {
  return ::close(file) == 0;
}

bool DiskSteps::Rename(const std::string& from, const std::string& to) {
  return std::rename(from.c_str(), to.c_str()) == 0;
}

bool DiskSteps::FlushFolder(const std::string& folder) {
  const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return false;
  const bool flushed = ::fsync(opened) == 0;
  ::close(opened);
  return flushed;
}

bool DiskSteps::Remove(const std::string& path) {
  return ::unlink(path.c_str()) == 0;
}

}  // namespace tarnwick
