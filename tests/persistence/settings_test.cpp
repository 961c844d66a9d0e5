#include "persistence/settings.h"

#include <map>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

/// A profile as the platform's calls have it: a read is cut to its buffer, and a write loses the
/// blanks at the end of a value.
class ProfileTexts final : public ProfilePort {
 public:
  std::map<std::string, std::string> Values;
  static std::string Key(const std::string& path, std::string_view section, std::string_view key) {
    return path + "|" + std::string{section} + "|" + std::string{key};
  }
  std::string Read(const std::string& path, std::string_view section, std::string_view key,
                   std::size_t buffer_size) override {
    const auto found = Values.find(Key(path, section, key));
    return found == Values.end() ? "" : found->second.substr(0, buffer_size - 1);
  }
  bool Write(const std::string& path, std::string_view section, std::string_view key,
             std::string_view value) override {
    value = value.substr(0, value.find_last_not_of(' ') + 1);
    Values[Key(path, section, key)] = value;
    return true;
  }
};

TEST(Settings, AFirstRunWithoutTheFileReadsEveryKeyAsEmpty) {
  ProfileTexts profiles;
  const Settings settings{profiles, "C:\\T"};
  for (const SettingKey& key :
       {kProjectFolder, kPictureFolder, kIconFolder, kAnyFileFolder, kPageFolder}) {
    EXPECT_EQ(settings.Read(key), "");
  }
  EXPECT_EQ(settings.ReadEventIndex("Events", "Form1.Button1"), "");
}

TEST(Settings, TheKeysOfTheFoldersAreAsTheyAre) {
  ProfileTexts profiles;
  Settings settings{profiles, "C:\\T"};
  EXPECT_TRUE(settings.Write(kProjectFolder, "C:\\P"));
  settings.Write(kPictureFolder, "1");
  settings.Write(kIconFolder, "2");
  settings.Write(kAnyFileFolder, "3");
  settings.Write(kPageFolder, "4");
  EXPECT_EQ(profiles.Values,
            (std::map<std::string, std::string>{{"C:\\T\\Tarnwick.ini|Paths|OpenDlg", "C:\\P"},
                                                {"C:\\T\\Tarnwick.ini|Path|Bmp", "1"},
                                                {"C:\\T\\Tarnwick.ini|Path|Icon", "2"},
                                                {"C:\\T\\Tarnwick.ini|Path|All", "3"},
                                                {"C:\\T\\Tarnwick.ini|Path|Html", "4"}}));
  EXPECT_EQ(settings.Read(kProjectFolder), "C:\\P");
}

TEST(Settings, AValueComesBackTrimmed) {
  ProfileTexts profiles;
  profiles.Values["C:\\T\\Tarnwick.ini|Path|Bmp"] = "  C:\\Pictures  ";
  const Settings settings{profiles, "C:\\T"};
  EXPECT_EQ(settings.Read("Path", "Bmp"), "C:\\Pictures");
}

TEST(Settings, AValueOverTheBufferComesBackCut) {
  ProfileTexts profiles;
  Settings settings{profiles, "C:\\T"};
  settings.Write(kPictureFolder, std::string(285, 'a'));
  EXPECT_EQ(settings.Read(kPictureFolder).size(), 285U);
  settings.Write(kPictureFolder, std::string(400, 'a'));
  EXPECT_EQ(settings.Read(kPictureFolder), std::string(285, 'a'));
}

TEST(Settings, AnEventIndexKeepsItsTrailingBlanks) {
  ProfileTexts profiles;
  Settings settings{profiles, "C:\\T"};
  EXPECT_TRUE(settings.WriteEventIndex("Events", "Form1.Button1", "OnClick  "));
  EXPECT_EQ(profiles.Values.begin()->first, "C:\\T\\IniEvents.ini|Events|Form1.Button1");
  EXPECT_EQ(profiles.Values.begin()->second, "OnClick  \x8D");
  EXPECT_EQ(settings.ReadEventIndex("Events", "Form1.Button1"), "OnClick  ");
}

TEST(Settings, AnEventIndexEndsAtItsFirstMark) {
  ProfileTexts profiles;
  profiles.Values["C:\\T\\IniEvents.ini|Events|k"] = "one\x8Dtwo\x8D";
  const Settings settings{profiles, "C:\\T"};
  EXPECT_EQ(settings.ReadEventIndex("Events", "k"), "one");
}

TEST(Settings, ACutEventIndexReadsAsEmpty) {
  ProfileTexts profiles;
  Settings settings{profiles, "C:\\T"};
  settings.WriteEventIndex("Events", "k", std::string(48, 'x'));
  EXPECT_EQ(settings.ReadEventIndex("Events", "k"), std::string(48, 'x'));
  settings.WriteEventIndex("Events", "k", std::string(49, 'x'));
  EXPECT_EQ(settings.ReadEventIndex("Events", "k"), "");
}

TEST(Settings, TheTwoFilesLieInTheProgramFolder) {
  ProfileTexts profiles;
  const Settings settings{profiles, "C:\\T"};
  EXPECT_EQ(settings.SettingsPath(), "C:\\T\\Tarnwick.ini");
  EXPECT_EQ(settings.EventIndexPath(), "C:\\T\\IniEvents.ini");
}

}  // namespace
}  // namespace tarnwick
