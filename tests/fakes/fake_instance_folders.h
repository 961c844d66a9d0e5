// Folders of instances over files in memory.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "fakes/memory_files.h"
#include "platform/ports.h"

namespace tarnwick {

/// Folders are named "1", "2", ... under their parent. An instance "ends" by the test's word.
class FakeInstanceFolders final : public InstanceFolderPort {
 public:
  explicit FakeInstanceFolders(MemoryFiles& files) : files_(&files) {}

  /// The instance of a folder has gone, by a crash or otherwise.
  void End(const std::string& path) { running_.erase(path); }
  bool Refuses = false;  ///< no folder can be made

  [[nodiscard]] std::string Claim(const std::string& parent) override {
    if (Refuses) return {};
    std::string path = parent + "\\" + std::to_string(++made_);
    all_.insert(path);
    running_.insert(path);
    return path;
  }
  [[nodiscard]] std::vector<InstanceFolder> List(const std::string& parent) override {
    std::vector<InstanceFolder> folders;
    for (const std::string& path : all_) {
      if (!path.starts_with(parent)) continue;
      folders.push_back({path, running_.contains(path), files_->NamesIn(path)});
    }
    return folders;
  }
  bool Remove(const std::string& path) override {
    files_->SetQuiet(true);
    for (const std::string& name : files_->NamesIn(path)) files_->Remove(path + "\\" + name);
    files_->SetQuiet(false);
    running_.erase(path);
    return all_.erase(path) > 0;
  }

 private:
  MemoryFiles* files_;
  std::set<std::string> all_;
  std::set<std::string> running_;
  int made_ = 0;
};

}  // namespace tarnwick
