// Folders of running instances on the machine's disk.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/ports.h"

namespace tarnwick {

/// Holds a folder by a lock on a file in it, which the system lets go when the process ends,
/// killed or not.
class NativeInstanceFolders final : public InstanceFolderPort {
 public:
  NativeInstanceFolders() = default;
  NativeInstanceFolders(const NativeInstanceFolders&) = delete;
  NativeInstanceFolders& operator=(const NativeInstanceFolders&) = delete;
  ~NativeInstanceFolders() override;

  [[nodiscard]] std::string Claim(const std::string& parent) override;
  [[nodiscard]] std::vector<InstanceFolder> List(const std::string& parent) override;
  bool Remove(const std::string& path) override;

 private:
  std::map<std::string, int> held_;  ///< the locked file of each folder, by Windows path
};

}  // namespace tarnwick
