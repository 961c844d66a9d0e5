#include "fakes/memory_files.h"

namespace tarnwick {

MemoryFiles::MemoryFiles(CallLog& log) : log_(&log) {}

MemoryFiles::~MemoryFiles() = default;

void MemoryFiles::Put(const std::string& path, std::string bytes) {
  files_[Lower(path)] = File{path, std::move(bytes)};
}

std::optional<std::string> MemoryFiles::Bytes(const std::string& path) const {
  const auto found = files_.find(Lower(path));
  if (found == files_.end()) return std::nullopt;
  return found->second.Bytes;
}

std::vector<std::string> MemoryFiles::NamesIn(const std::string& folder) const {
  const std::string head = Lower(folder) + "\\";
  std::vector<std::string> names;
  for (const auto& [key, file] : files_) {
    if (key.starts_with(head)) names.push_back(file.Path.substr(head.size()));
  }
  return names;
}

bool MemoryFiles::Exists(const std::string& path) {
  return files_.count(Lower(path)) != 0;
}

std::optional<std::string> MemoryFiles::Read(const std::string& path) {
  if (!Step("read " + path)) return std::nullopt;
  return Bytes(path);
}

bool MemoryFiles::Replace(const std::string& path, std::string_view bytes) {
  if (!Step("replace " + path) || read_only_) return false;
  File& file = files_[Lower(path)];
  file.Path = path;
  file.Bytes = bytes;
  return true;
}

bool MemoryFiles::Remove(const std::string& path) {
  if (!Step("remove " + path) || read_only_) return false;
  return files_.erase(Lower(path)) != 0;
}

std::string MemoryFiles::ShortPathOf(const std::string& path) {
  return Exists(path) ? path.substr(0, 165) : std::string();
}

bool MemoryFiles::Step(std::string entry) {
  if (quiet_) return true;
  log_->Add(std::move(entry));
  return fail_at_ == 0 || --fail_at_ != 0;
}

}  // namespace tarnwick
