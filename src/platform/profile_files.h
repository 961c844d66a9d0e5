// Profile (INI) files over the file port, read as the platform's profile calls read them.
#pragma once

#include <string>
#include <string_view>

#include "platform/ports.h"

namespace tarnwick {

/// Sections and keys compare without regard to case, and the first match counts. White space
/// around keys and values is dropped, then one pair of quotes of either sort around a value. Lines
/// that begin with ";" and lines without "=" are ignored. Any bytes are harmless.
///
///   ProfileFiles profiles(files);
///   profiles.Write(folder + "\\Tarnwick.ini", "Paths", "OpenDlg", chosen);
class ProfileFiles final : public ProfilePort {
 public:
  /// `files` must live as long as this port.
  explicit ProfileFiles(FilePort& files) : files_(files) {}

  /// "" too when the file cannot be read; longer values are cut to `buffer_size` - 1 bytes.
  [[nodiscard]] std::string Read(const std::string& path, std::string_view section,
                                 std::string_view key, std::size_t buffer_size) override;
  /// The rest of the file keeps every byte. A value ends at its first line end or zero byte. A file
  /// that exists but cannot be read is left alone: false.
  bool Write(const std::string& path, std::string_view section, std::string_view key,
             std::string_view value) override;

 private:
  FilePort& files_;
};

}  // namespace tarnwick
