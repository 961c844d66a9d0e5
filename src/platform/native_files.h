// Files on the machine's disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/disk_steps.h"
#include "platform/ports.h"

namespace tarnwick {

/// The file port over the disk. Windows paths are mapped to machine paths, without regard to case
/// where there is no exact match.
class NativeFiles final : public FilePort {
 public:
  NativeFiles() : steps_(&own_steps_) {}
  /// With other steps, which must outlive the port.
  explicit NativeFiles(DiskSteps& steps) : steps_(&steps) {}
  NativeFiles(const NativeFiles&) = delete;
  NativeFiles& operator=(const NativeFiles&) = delete;

  [[nodiscard]] bool Exists(const std::string& path) override;
  /// Only plain files are read, and none above half a gigabyte, far more than any project file has.
  [[nodiscard]] std::optional<std::string> Read(const std::string& path) override;
  /// Temporary file in the same folder, write, flush, rename, flush the folder. A link stays a
  /// link: its target is replaced. A file without write permission is not replaced.
  bool Replace(const std::string& path, std::string_view bytes) override;
  [[nodiscard]] std::string WhyNotReplaced() override { return why_not_; }
  bool Remove(const std::string& path) override;
  /// There are no short names here: the path itself.
  [[nodiscard]] std::string ShortPathOf(const std::string& path) override;

 private:
  bool TryReplace(const std::string& path, std::string_view bytes);
  bool ReplaceNative(const std::string& target, bool is_new, std::string_view bytes);
  bool FillTemporary(int file, const std::string& target, bool is_new, std::string_view bytes);

  DiskSteps own_steps_;
  DiskSteps* steps_;
  std::string why_not_;  ///< of the last Replace
};

}  // namespace tarnwick
