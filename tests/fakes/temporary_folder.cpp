#include "fakes/temporary_folder.h"

namespace tarnwick {

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "tarnwick-XXXXXX").string();
  if (::mkdtemp(name.data()) != nullptr) native_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(native_, ignored);
}

std::string TemporaryFolder::Native(std::string_view name) const {
  return name.empty() ? native_ : native_ + "/" + std::string(name);
}

std::string TemporaryFolder::Path(std::string_view name) const {
  return PathFromNative(Native(name));
}

void TemporaryFolder::Write(std::string_view name, std::string_view bytes) const {
  std::ofstream(Native(name), std::ios::binary) << bytes;
}

std::string TemporaryFolder::Read(std::string_view name) const {
  std::ifstream file(Native(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> TemporaryFolder::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(native_)) {
    names.push_back(entry.path().filename().string());
  }
  return names;
}

}  // namespace tarnwick
