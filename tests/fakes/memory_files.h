// A file port in memory, with failure on demand.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "fakes/call_log.h"
#include "platform/ports.h"
#include "text/code_page.h"

namespace tarnwick {

/// Paths compare without regard to case. Log entries: "read P", "replace P", "remove P".
///
///   MemoryFiles files(log);
///   files.Put("Z:\\p\\a.tnp", "...");
///   files.FailAtStep(2);   // the second read, replace or remove from here on fails, once
class MemoryFiles final : public FilePort {
 public:
  explicit MemoryFiles(CallLog& log);
  ~MemoryFiles() override;

  /// Lays a file down without a log entry.
  void Put(const std::string& path, std::string bytes);
  /// A file's bytes without a log entry; nothing when it is not there.
  [[nodiscard]] std::optional<std::string> Bytes(const std::string& path) const;
  [[nodiscard]] std::size_t Count() const { return files_.size(); }
  /// The n-th read, replace or remove from now on fails; 0 takes the order back.
  void FailAtStep(int step) { fail_at_ = step; }
  /// From now on every replace and remove fails, as on a write-protected disk.
  void SetReadOnly(bool read_only) { read_only_ = read_only; }
  /// Operations still succeed or fail, but leave no log entry and count as no step.
  void SetQuiet(bool quiet) { quiet_ = quiet; }

  [[nodiscard]] std::string WhyNotReplaced() override {
    return read_only_ ? "Read-only file system" : "";
  }
  /// The names of the files in a folder, without a log entry.
  [[nodiscard]] std::vector<std::string> NamesIn(const std::string& folder) const;
  [[nodiscard]] bool Exists(const std::string& path) override;
  [[nodiscard]] std::optional<std::string> Read(const std::string& path) override;
  bool Replace(const std::string& path, std::string_view bytes) override;
  bool Remove(const std::string& path) override;
  [[nodiscard]] std::string ShortPathOf(const std::string& path) override;

 private:
  struct File {
    std::string Path;
    std::string Bytes;
  };

  bool Step(std::string entry);

  CallLog* log_;
  std::map<std::string, File> files_;
  int fail_at_ = 0;
  bool read_only_ = false;
  bool quiet_ = false;
};

}  // namespace tarnwick
