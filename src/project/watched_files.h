// Files that notice when another program changed them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/ports.h"

namespace tarnwick::project {

/// A file port that remembers what each file held when it was last read or replaced through it.
class WatchedFiles final : public FilePort {
 public:
  explicit WatchedFiles(FilePort& files) : files_(files) {}

  [[nodiscard]] bool Exists(const std::string& path) override { return files_.Exists(path); }
  [[nodiscard]] std::optional<std::string> Read(const std::string& path) override;
  bool Replace(const std::string& path, std::string_view bytes) override;
  [[nodiscard]] std::string WhyNotReplaced() override { return files_.WhyNotReplaced(); }
  bool Remove(const std::string& path) override;
  [[nodiscard]] std::string ShortPathOf(const std::string& path) override {
    return files_.ShortPathOf(path);
  }

  /// True when the file was read or replaced here before and holds other bytes now. A file that
  /// has gone since, or was never read, counts as unchanged: nothing of it can be lost.
  [[nodiscard]] bool ChangedOutside(const std::string& path);

 private:
  void Remember(const std::string& path, std::string_view bytes);

  FilePort& files_;
  std::unordered_map<std::string, std::size_t> seen_;  ///< hash of the bytes, by folded path
};

}  // namespace tarnwick::project
