#include "platform/native_files.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/native_path.h"

namespace tarnwick {
namespace {

/// What the system's short-path buffer holds.
constexpr std::size_t kShortPathSize = 165;
constexpr off_t kLargestFile = off_t{512} << 20U;
/// How many links may follow one another before they count as a cycle.
constexpr int kMostLinks = 40;
/// How many names are tried for a temporary file.
constexpr int kMostNames = 100;

std::string NativeFolderOf(const std::string& native) {
  const std::size_t slash = native.rfind('/');
  return slash == std::string::npos ? std::string() : native.substr(0, slash + 1);
}

/// The target at the end of a chain of links, which need not exist; null for a cycle.
std::optional<std::string> LinkTarget(std::string native) {
  for (int i = 0; i < kMostLinks; ++i) {
    std::array<char, PATH_MAX> buffer{};
    const ssize_t size = ::readlink(native.c_str(), buffer.data(), buffer.size());
    if (size < 0) return native;
    const std::string_view target(buffer.data(), static_cast<std::size_t>(size));
    // A relative target starts at the link's own folder.
    std::string next = target.substr(0, 1) == "/" ? std::string() : NativeFolderOf(native);
    next.append(target);
    native = std::move(next);
  }
  return std::nullopt;
}

/// A name no other save uses: process number and a running number.
std::string TemporaryName() {
  static std::atomic<unsigned> next{0};
  return ".tarnwick-" + std::to_string(::getpid()) + "-" + std::to_string(next++) + ".tmp";
}

bool ReadAll(int file, std::string& bytes) {
  struct stat info {};
  // A pipe would never end, and a folder has no bytes.
  if (::fstat(file, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > kLargestFile) {
    return false;
  }
  bytes.resize(static_cast<std::size_t>(info.st_size));
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t got = ::read(file, bytes.data() + filled, bytes.size() - filled);
    if (got > 0) {
      filled += static_cast<std::size_t>(got);
    } else if (got == 0) {
      break;
    } else if (errno != EINTR) {
      return false;
    }
  }
  bytes.resize(filled);
  return true;
}

}  // namespace

bool NativeFiles::Exists(const std::string& path) {
  const std::optional<std::string> native = FindNative(path);
  struct stat info {};
  return native && ::stat(native->c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

std::optional<std::string> NativeFiles::Read(const std::string& path) {
  const std::optional<std::string> native = FindNative(path);
  if (!native) return std::nullopt;
  const int file = ::open(native->c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return std::nullopt;
  std::string bytes;
  const bool read = ReadAll(file, bytes);
  ::close(file);
  if (!read) return std::nullopt;
  return bytes;
}

bool NativeFiles::Replace(const std::string& path, std::string_view bytes) {
  errno = 0;
  const bool replaced = TryReplace(path, bytes);
  why_not_ = replaced || errno == 0 ? std::string() : std::generic_category().message(errno);
  return replaced;
}

bool NativeFiles::TryReplace(const std::string& path, std::string_view bytes) {
  const std::optional<std::string> native = FindNativeForWriting(path);
  if (!native) {
    errno = ENOENT;
    return false;
  }
  const std::optional<std::string> target = LinkTarget(*native);
  if (!target) return false;
  struct stat info {};
  const bool is_new = ::stat(target->c_str(), &info) != 0;
  if (is_new && errno != ENOENT) return false;
  // The rename needs no right to the file itself, so write protection is checked here.
  const bool writable = is_new || (S_ISREG(info.st_mode) && ::access(target->c_str(), W_OK) == 0);
  return writable && ReplaceNative(*target, is_new, bytes);
}

bool NativeFiles::ReplaceNative(const std::string& target, bool is_new, std::string_view bytes) {
  const std::string folder = NativeFolderOf(target);
  // Until it has the old file's permissions, no other user may read the temporary file.
  const unsigned mode = is_new ? 0666U : 0600U;
  std::string temporary;
  int file = -1;
  for (int i = 0; i < kMostNames && file < 0; ++i) {
    temporary = folder + TemporaryName();
    file = steps_->Create(temporary, mode);
    // Another try helps only when the name is taken.
    if (file < 0 && errno != EEXIST) return false;
  }
  if (file < 0) return false;
  const bool filled = FillTemporary(file, target, is_new, bytes);
  const bool closed = steps_->Close(file);
  if (!filled || !closed || !steps_->Rename(temporary, target)) {
    const int why = errno;
    steps_->Remove(temporary);
    errno = why;
    return false;
  }
  // The new bytes are in place even when this fails; it only makes them survive a power cut.
  steps_->FlushFolder(folder.empty() ? "." : folder);
  return true;
}

bool NativeFiles::FillTemporary(int file, const std::string& target, bool is_new,
                                std::string_view bytes) {
  if (!is_new && !steps_->CopyOwner(file, target)) return false;
  return steps_->Write(file, bytes) && steps_->Flush(file);
}

bool NativeFiles::Remove(const std::string& path) {
  const std::optional<std::string> native = FindNative(path);
  return native && steps_->Remove(*native);
}

std::string NativeFiles::ShortPathOf(const std::string& path) {
  return Exists(path) ? path.substr(0, kShortPathSize) : std::string();
}

}  // namespace tarnwick
