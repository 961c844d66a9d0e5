// Files and folders of a running program on the machine's disk.
#pragma once

#include <string>

#include "basic/hosts/file_host.h"

namespace tarnwick::hosts {

/// Windows paths are found on the disk without regard to case. Relative ones count from the
/// program's current folder, which is at first that of the process.
class DiskFiles final : public basic::FileHost {
 public:
  DiskFiles();

  bool FileExists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  std::unique_ptr<basic::FileStream> Open(std::string_view path, basic::FileMode mode) override;
  bool Delete(std::string_view path) override;
  bool Rename(std::string_view from, std::string_view to) override;
  bool MakeFolder(std::string_view path) override;
  bool RemoveFolder(std::string_view path) override;
  bool ChangeFolder(std::string_view path) override;
  bool ChangeDrive(std::string_view drive) override;
  std::string CurrentFolder() override { return current_; }
  std::vector<basic::FileEntry> List(std::string_view mask, int attributes) override;

  /// A path as it counts from the current folder, with "." and ".." carried out.
  [[nodiscard]] std::string FullPath(std::string_view path) const;

 private:
  std::string current_;
};

/// True when a file name fits a mask with "*" and "?", without regard to case. "*.*" fits names
/// without a dot too.
[[nodiscard]] bool FitsMask(std::string_view name, std::string_view mask);

}  // namespace tarnwick::hosts
