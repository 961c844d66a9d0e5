#include "hosts/disk_files.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <system_error>

#include <sys/stat.h>

#include "hosts/local_clock.h"
#include "platform/native_path.h"
#include "text/code_page.h"
#include "text/path_text.h"

namespace tarnwick::hosts {
namespace {

namespace fs = std::filesystem;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

class DiskStream final : public basic::FileStream {
 public:
  explicit DiskStream(std::FILE* file) : file_(file) {}

  std::string Read(std::size_t count) override {
    Turn(false);
    const std::int64_t left = std::max<std::int64_t>(Size() - Position(), 0);
    std::string bytes(std::min(count, static_cast<std::size_t>(left)), '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file_.get()));
    return bytes;
  }
  bool Write(std::string_view bytes) override {
    Turn(true);
    return std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) == bytes.size();
  }
  std::int64_t Position() override { return std::max<std::int64_t>(::ftello(file_.get()), 0); }
  bool Seek(std::int64_t position) override {
    return position >= 0 && ::fseeko(file_.get(), position, SEEK_SET) == 0;
  }
  std::int64_t Size() override {
    std::fflush(file_.get());
    struct stat found {};
    return ::fstat(::fileno(file_.get()), &found) == 0 ? found.st_size : 0;
  }
  bool Resize(std::int64_t size) override {
    return std::fflush(file_.get()) == 0 && size >= 0 &&
           ::ftruncate(::fileno(file_.get()), size) == 0;
  }

 private:
  /// C streams want a seek between reading and writing.
  void Turn(bool writes) {
    if (writes != writes_) ::fseeko(file_.get(), 0, SEEK_CUR);
    writes_ = writes;
  }

  std::unique_ptr<std::FILE, CloseFile> file_;
  bool writes_ = false;
};

constexpr int kReadOnly = 1;
constexpr int kHidden = 2;
constexpr int kFolder = 16;
constexpr int kArchive = 32;

basic::FileEntry EntryOf(const std::string& native, std::string name) {
  basic::FileEntry entry;
  entry.Name = std::move(name);
  struct stat found {};
  if (::stat(native.c_str(), &found) != 0) return entry;
  const bool folder = S_ISDIR(found.st_mode);
  entry.Size = folder ? 0 : found.st_size;
  entry.Changed = LocalTimeOf(found.st_mtime, 0);
  entry.Attributes = folder ? kFolder : kArchive;
  if ((found.st_mode & S_IWUSR) == 0) entry.Attributes |= kReadOnly;
  if (entry.Name.starts_with('.')) entry.Attributes |= kHidden;
  return entry;
}

}  // namespace

bool FitsMask(std::string_view name, std::string_view mask) {
  if (mask == "*.*") mask = "*";
  std::size_t n = 0;
  std::size_t m = 0;
  std::size_t star = std::string_view::npos;
  std::size_t resume = 0;
  while (n < name.size()) {
    if (m < mask.size() && mask[m] == '*') {
      star = m++;
      resume = n;
    } else if (m < mask.size() && (mask[m] == '?' || LowerByte(mask[m]) == LowerByte(name[n]))) {
      ++m;
      ++n;
    } else if (star != std::string_view::npos) {
      m = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  while (m < mask.size() && mask[m] == '*') ++m;
  return m == mask.size();
}

DiskFiles::DiskFiles() {
  std::error_code ignored;
  current_ = PathFromNative(fs::current_path(ignored).string());
  if (current_.empty()) current_ = "Z:";
  if (current_.ends_with('\\')) current_.pop_back();
}

std::string DiskFiles::FullPath(std::string_view path) const {
  std::string text(path);
  std::replace(text.begin(), text.end(), '/', '\\');
  if (text.size() < 2 || text[1] != ':') {
    text = text.starts_with('\\') ? current_.substr(0, 2) + text : current_ + "\\" + text;
  }
  std::vector<std::string> parts;
  std::size_t from = 0;
  while (from <= text.size()) {
    const std::size_t end = std::min(text.find('\\', from), text.size());
    const std::string part = text.substr(from, end - from);
    if (part == "..") {
      if (parts.size() > 1) parts.pop_back();
    } else if (!part.empty() && part != ".") {
      parts.push_back(part);
    }
    from = end + 1;
  }
  std::string full;
  for (const std::string& part : parts) full += (full.empty() ? "" : "\\") + part;
  return full.size() == 2 ? full + "\\" : full;
}

bool DiskFiles::FileExists(std::string_view path) {
  const auto native = FindNative(FullPath(path));
  std::error_code ignored;
  return !path.empty() && native && fs::is_regular_file(*native, ignored);
}

bool DiskFiles::FolderExists(std::string_view path) {
  const auto native = FindNative(FullPath(path));
  std::error_code ignored;
  return !path.empty() && native && fs::is_directory(*native, ignored);
}

std::unique_ptr<basic::FileStream> DiskFiles::Open(std::string_view path, basic::FileMode mode) {
  const bool creates = mode == basic::FileMode::Create;
  const std::string full = FullPath(path);
  const auto native = creates ? FindNativeForWriting(full) : FindNative(full);
  std::error_code ignored;
  if (path.empty() || !native || fs::is_directory(*native, ignored)) return nullptr;
  const char* const how = creates ? "w+b" : mode == basic::FileMode::Read ? "rb" : "r+b";
  std::FILE* const file = std::fopen(native->c_str(), how);
  return file == nullptr ? nullptr : std::make_unique<DiskStream>(file);
}

bool DiskFiles::Delete(std::string_view path) {
  const auto native = FindNative(FullPath(path));
  std::error_code error;
  return FileExists(path) && native && fs::remove(*native, error);
}

bool DiskFiles::Rename(std::string_view from, std::string_view to) {
  const auto source = FindNative(FullPath(from));
  const auto target = FindNativeForWriting(FullPath(to));
  std::error_code error;
  if (from.empty() || to.empty() || !source || !target || fs::exists(*target, error)) return false;
  fs::rename(*source, *target, error);
  return !error;
}

bool DiskFiles::MakeFolder(std::string_view path) {
  const auto native = FindNativeForWriting(FullPath(path));
  std::error_code error;
  return !path.empty() && native && fs::create_directory(*native, error);
}

bool DiskFiles::RemoveFolder(std::string_view path) {
  const auto native = FindNative(FullPath(path));
  std::error_code error;
  return FolderExists(path) && native && fs::remove(*native, error);
}

bool DiskFiles::ChangeFolder(std::string_view path) {
  if (!FolderExists(path)) return false;
  current_ = FullPath(path);
  if (current_.ends_with('\\')) current_.pop_back();
  return true;
}

bool DiskFiles::ChangeDrive(std::string_view drive) {
  if (drive.empty()) return false;
  if (UpperByte(drive[0]) == UpperByte(current_[0])) return true;
  const std::string root(std::string(1, UpperByte(drive[0])) + ":");
  if (!FolderExists(root + "\\")) return false;
  current_ = root;
  return true;
}

std::vector<basic::FileEntry> DiskFiles::List(std::string_view mask, int attributes) {
  const std::string full = FullPath(mask);
  const std::string folder(FolderOf(full));
  const std::string_view names = BareName(full);
  std::vector<basic::FileEntry> found;
  const auto native = FindNative(folder);
  if (mask.empty() || !native) return found;
  std::error_code error;
  for (fs::directory_iterator row(*native, error), end; !error && row != end;
       row.increment(error)) {
    std::string name = Utf8ToCodePage(row->path().filename().string());
    if (!FitsMask(name, names)) continue;
    basic::FileEntry entry = EntryOf(row->path().string(), std::move(name));
    if ((entry.Attributes & kFolder) != 0 && (attributes & kFolder) == 0) continue;
    found.push_back(std::move(entry));
  }
  std::sort(found.begin(), found.end(),
            [](const basic::FileEntry& a, const basic::FileEntry& b) { return a.Name < b.Name; });
  return found;
}

}  // namespace tarnwick::hosts
