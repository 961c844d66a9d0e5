// Files and folders of a running program. Paths are Windows paths.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::basic {

/// A moment as clocks and file systems of the user show it.
struct LocalTime {
  int Year = 1980;
  int Month = 1;
  int Day = 1;
  int Hour = 0;
  int Minute = 0;
  int Second = 0;
  int Millisecond = 0;
};

/// What DIR$ finds. Attributes: 1 read-only, 2 hidden, 4 system, 16 folder, 32 archive.
struct FileEntry {
  std::string Name;
  std::int64_t Size = 0;
  LocalTime Changed;
  int Attributes = 0;
};

enum class FileMode : std::uint8_t { Read, Write, ReadWrite, Create };

/// An open file. It is closed when this object goes.
class FileStream {
 public:
  virtual ~FileStream() = default;
  /// Up to `count` bytes from the position on; "" at the end and on failure.
  virtual std::string Read(std::size_t count) = 0;
  /// Writes at the position; false when not all could be written.
  virtual bool Write(std::string_view bytes) = 0;
  [[nodiscard]] virtual std::int64_t Position() = 0;
  /// False when the position cannot be taken; it stays where it was.
  virtual bool Seek(std::int64_t position) = 0;
  /// Bytes in the file; 0 when that cannot be found out.
  [[nodiscard]] virtual std::int64_t Size() = 0;
  /// Cuts or lengthens the file; false when it stays.
  virtual bool Resize(std::int64_t size) = 0;
};

class FileHost {
 public:
  virtual ~FileHost() = default;
  [[nodiscard]] virtual bool FileExists(std::string_view path) = 0;
  [[nodiscard]] virtual bool FolderExists(std::string_view path) = 0;
  /// Null when the file cannot be opened in that mode.
  virtual std::unique_ptr<FileStream> Open(std::string_view path, FileMode mode) = 0;
  // The next six return false when nothing was changed.
  virtual bool Delete(std::string_view path) = 0;
  virtual bool Rename(std::string_view from, std::string_view to) = 0;
  virtual bool MakeFolder(std::string_view path) = 0;
  virtual bool RemoveFolder(std::string_view path) = 0;
  virtual bool ChangeFolder(std::string_view path) = 0;
  virtual bool ChangeDrive(std::string_view drive) = 0;
  /// Without a "\" at the end.
  [[nodiscard]] virtual std::string CurrentFolder() = 0;
  /// What fits a mask such as "C:\data\*.txt", sorted by name; folders only when `attributes` has
  /// bit 16. Empty when nothing fits or the folder cannot be read.
  [[nodiscard]] virtual std::vector<FileEntry> List(std::string_view mask, int attributes) = 0;
};

}  // namespace tarnwick::basic
