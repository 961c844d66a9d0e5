#include "persistence/settings.h"

#include <cstddef>

#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

// Buffer sizes of the two reads, closing zero included: hard limits on the length of a value.
constexpr std::size_t kSettingBuffer = 286;
constexpr std::size_t kEventIndexBuffer = 50;

}  // namespace

Settings::Settings(ProfilePort& profiles, const std::string& program_folder)
    : profiles_(profiles),
      settings_path_(program_folder + "\\Tarnwick.ini"),
      event_index_path_(program_folder + "\\IniEvents.ini") {}

std::string Settings::Read(std::string_view section, std::string_view key) const {
  return std::string{Trim(profiles_.Read(settings_path_, section, key, kSettingBuffer))};
}

std::string Settings::Read(const SettingKey& key) const {
  return Read(key.Section, key.Key);
}

bool Settings::Write(std::string_view section, std::string_view key, std::string_view value) {
  return profiles_.Write(settings_path_, section, key, value);
}

bool Settings::Write(const SettingKey& key, std::string_view value) {
  return Write(key.Section, key.Key, value);
}

std::string Settings::ReadEventIndex(std::string_view section, std::string_view key) const {
  const std::string value = profiles_.Read(event_index_path_, section, key, kEventIndexBuffer);
  const std::size_t mark = value.find(kStoredComma);
  return mark == std::string::npos ? std::string{} : value.substr(0, mark);
}

bool Settings::WriteEventIndex(std::string_view section, std::string_view key,
                               std::string_view value) {
  return profiles_.Write(event_index_path_, section, key, std::string{value} + kStoredComma);
}

}  // namespace tarnwick
