// A folder of the test's own on the disk, gone with all its files at the end.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <unistd.h>

#include "text/path_text.h"

namespace tarnwick {

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The folder, or a name in it, as a machine path.
  [[nodiscard]] std::string Native(std::string_view name = {}) const;
  /// The same as a Windows path, without a trailing backslash for the folder itself.
  [[nodiscard]] std::string Path(std::string_view name = {}) const;
  void Write(std::string_view name, std::string_view bytes) const;
  [[nodiscard]] std::string Read(std::string_view name) const;
  /// The names of all entries.
  [[nodiscard]] std::vector<std::string> Names() const;

 private:
  std::string native_;
};

}  // namespace tarnwick
