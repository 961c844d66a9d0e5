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
  explicit FakeInstanceFolders(MemoryFiles& files);
  ~FakeInstanceFolders() override;

  /// The instance of a folder has gone, by a crash or otherwise.
  void End(const std::string& path);
  bool Refuses = false;  ///< no folder can be made

  [[nodiscard]] std::string Claim(const std::string& parent) override;
  [[nodiscard]] std::vector<InstanceFolder> List(const std::string& parent) override;
  bool Remove(const std::string& path) override;

 private:
  MemoryFiles* files_;
  std::set<std::string> all_;
  std::set<std::string> running_;
  int made_ = 0;
};

}  // namespace tarnwick
