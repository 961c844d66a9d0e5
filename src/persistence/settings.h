// Settings: remembered folders, and the scratch index of the code editor's navigation.
#pragma once

#include <string>
#include <string_view>

#include "platform/ports.h"

namespace tarnwick {

/// The folders that the dialogs remember, as section and key of the settings file.
struct SettingKey {
  std::string_view Section;
  std::string_view Key;
};
inline constexpr SettingKey kProjectFolder{"Paths", "OpenDlg"};
inline constexpr SettingKey kPictureFolder{"Path", "Bmp"};
inline constexpr SettingKey kIconFolder{"Path", "Icon"};
inline constexpr SettingKey kAnyFileFolder{"Path", "All"};
inline constexpr SettingKey kPageFolder{"Path", "Html"};

/// "\Tarnwick.ini" and "\IniEvents.ini" of the program folder, one key at a time. There are no
/// defaults: an absent key, or an absent file, reads as "".
class Settings {
 public:
  Settings(ProfilePort& profiles, const std::string& program_folder);

  /// A setting without blanks at its ends; returns at most 285 characters.
  [[nodiscard]] std::string Read(std::string_view section, std::string_view key) const;
  [[nodiscard]] std::string Read(const SettingKey& key) const;
  /// False when the file cannot be written.
  bool Write(std::string_view section, std::string_view key, std::string_view value);
  bool Write(const SettingKey& key, std::string_view value);

  /// A value of the scratch index: the text ahead of its closing mark. A value so long that the
  /// read cuts its mark off (49 characters and more) reads as "".
  [[nodiscard]] std::string ReadEventIndex(std::string_view section, std::string_view key) const;
  /// Writes a value with its closing mark, which keeps trailing blanks from being trimmed.
  bool WriteEventIndex(std::string_view section, std::string_view key, std::string_view value);

  [[nodiscard]] const std::string& SettingsPath() const noexcept { return settings_path_; }
  /// The scratch file, which is deleted at start and with every new project.
  [[nodiscard]] const std::string& EventIndexPath() const noexcept { return event_index_path_; }

 private:
  ProfilePort& profiles_;
  std::string settings_path_;
  std::string event_index_path_;
};

}  // namespace tarnwick
