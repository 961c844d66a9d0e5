// The single steps of replacing a file, so that each can be made to fail.
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// Machine paths, UTF-8. Every step returns whether it succeeded.
class DiskSteps {
 public:
  virtual ~DiskSteps() = default;
  /// Makes a new file, which must not exist yet, and returns its descriptor; -1 on failure.
  virtual int Create(const std::string& path, unsigned mode);
  /// Writes all bytes.
  virtual bool Write(int file, std::string_view bytes);
  /// Gives the file the permissions, and where that is allowed the owner, of another.
  virtual bool CopyOwner(int file, const std::string& from);
  /// Forces the file's bytes to the disk.
  virtual bool Flush(int file);
  virtual bool Close(int file);
  virtual bool Rename(const std::string& from, const std::string& to);
  /// Forces a folder's entries to the disk.
  virtual bool FlushFolder(const std::string& folder);
  virtual bool Remove(const std::string& path);
};

}  // namespace tarnwick
