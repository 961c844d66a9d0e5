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
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tarnwick-XXXXXX").string();
    if (::mkdtemp(name.data()) != nullptr) native_ = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(native_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The folder, or a name in it, as a machine path.
  [[nodiscard]] std::string Native(std::string_view name = {}) const {
    return name.empty() ? native_ : native_ + "/" + std::string(name);
  }
  /// The same as a Windows path, without a trailing backslash for the folder itself.
  [[nodiscard]] std::string Path(std::string_view name = {}) const {
    return PathFromNative(Native(name));
  }
  void Write(std::string_view name, std::string_view bytes) const {
    std::ofstream(Native(name), std::ios::binary) << bytes;
  }
  [[nodiscard]] std::string Read(std::string_view name) const {
    std::ifstream file(Native(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  /// The names of all entries.
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(native_)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

 private:
  std::string native_;
};

}  // namespace tarnwick
