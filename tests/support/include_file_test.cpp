#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "built_files.h"

namespace tarnwick::support {
namespace {

std::vector<std::string> LinesOfInclude() {
  std::vector<std::string> lines;
  const std::string text = Delivered("Tarnwick1.lib");
  for (const auto line : Split(text, "\r\n")) lines.emplace_back(line);
  return lines;
}

struct Constant {
  std::string Name;
  long Value;
};

std::vector<Constant> Constants() {
  std::vector<Constant> constants;
  for (const std::string& line : LinesOfInclude()) {
    const auto words = WordsOf(line);
    if (words.size() != 4 || words[0] != "CONST") continue;
    EXPECT_EQ(words[2], "=") << line;
    constants.push_back({words[1], std::stol(words[3])});
  }
  return constants;
}

/// The names that routines, declarations and variables of the file bring in.
std::vector<std::string> OwnNames() {
  std::vector<std::string> names;
  for (const std::string& line : LinesOfInclude()) {
    const auto words = WordsOf(line);
    if (words.size() < 2) continue;
    if (words[0] == "SUB" || words[0] == "FUNCTION" || words[0] == "DIM") {
      names.push_back(words[1]);
    } else if (words[0] == "DECLARE" && words.size() > 2) {
      names.push_back(words[2]);
    }
  }
  return names;
}

TEST(IncludeFile, EveryConstantIsDefinedOnce) {
  std::set<std::string> names;
  for (const Constant& constant : Constants()) {
    EXPECT_TRUE(names.insert(Lower(constant.Name)).second) << constant.Name;
  }
  EXPECT_GE(names.size(), 200U);
}

TEST(IncludeFile, ValuesAreThoseOfTheLanguage) {
  std::map<std::string, long> constants;
  for (const Constant& constant : Constants()) constants[Lower(constant.Name)] = constant.Value;
  std::size_t checked = 0;
  for (const MemberEntry& member : Sources().Members) {
    for (const auto pair : Split(member.Values, ";")) {
      const std::size_t sign = pair.find('=');
      if (sign == std::string_view::npos) continue;
      const std::string name(pair.substr(sign + 1));
      const auto found = constants.find(Lower(name));
      // Words such as "left" tell what a parameter means; a constant has a capital in it.
      if (name == "False" || name == "True" || name == Lower(name)) continue;
      ASSERT_NE(found, constants.end()) << name;
      EXPECT_EQ(found->second, std::stol(std::string(pair.substr(0, sign)))) << name;
      ++checked;
    }
  }
  EXPECT_GE(checked, 300U);
}

TEST(IncludeFile, EveryNameShownInTheGridIsDefined) {
  std::set<std::string> names;
  for (const Constant& constant : Constants()) names.insert(constant.Name);
  for (const GridRow& row : Sources().Rows) {
    for (const std::string& value : row.Values) EXPECT_TRUE(names.contains(value)) << value;
  }
}

TEST(IncludeFile, KeysAndMessageBoxesHaveTheNumbersOfWindows) {
  std::map<std::string, long> constants;
  for (const Constant& constant : Constants()) constants[constant.Name] = constant.Value;
  EXPECT_EQ(constants["VK_RETURN"], 13);
  EXPECT_EQ(constants["VK_ESCAPE"], 27);
  EXPECT_EQ(constants["VK_DELETE"], 46);
  EXPECT_EQ(constants["VK_NUMPAD9"], 105);
  EXPECT_EQ(constants["VK_F1"], 112);
  EXPECT_EQ(constants["VK_F12"], 123);
  EXPECT_EQ(constants["MB_YESNO"], 4);
  EXPECT_EQ(constants["MB_ICONQUESTION"], 32);
  EXPECT_EQ(constants["IDYES"], 6);
}

TEST(IncludeFile, MessageDialogsAndNumbersInStreamsHaveTheirNames) {
  std::map<std::string, long> constants;
  for (const Constant& constant : Constants()) constants[constant.Name] = constant.Value;
  long number = 0;
  for (const char* sign : {"mtWarning", "mtError", "mtInformation", "mtConfirmation", "mtCustom"}) {
    ASSERT_TRUE(constants.contains(sign)) << sign;
    EXPECT_EQ(constants[sign], number++) << sign;
  }
  long bit = 1;
  for (const char* button :
       {"mbYes", "mbNo", "mbOK", "mbCancel", "mbAbort", "mbRetry", "mbIgnore", "mbAll", "mbHelp"}) {
    EXPECT_EQ(constants[button], bit) << button;
    bit *= 2;
  }
  number = 1;
  for (const char* type :
       {"Num_BYTE", "Num_SHORT", "Num_WORD", "Num_LONG", "Num_DWORD", "Num_SINGLE", "Num_DOUBLE"}) {
    EXPECT_EQ(constants[type], number++) << type;
  }
  EXPECT_EQ(constants["Num_INTEGER"], constants["Num_LONG"]);
}

TEST(IncludeFile, GridsListsOfFilesAndSoundsHaveTheirNames) {
  std::map<std::string, long> constants;
  for (const Constant& constant : Constants()) constants[constant.Name] = constant.Value;
  long number = 0;
  for (const char* option :
       {"goFixedVertLine", "goFixedHorzLine", "goVertLine", "goHorzLine", "goRangeSelect",
        "goDrawFocusSelected", "goRowSizing", "goColSizing", "goRowMoving", "goColMoving",
        "goEditing", "goTabs", "goRowSelect", "goAlwaysShowEditor", "goThumbTracking"}) {
    ASSERT_TRUE(constants.contains(option)) << option;
    EXPECT_EQ(constants[option], number++) << option;
  }
  number = 0;
  for (const char* type : {"ftReadOnly", "ftHidden", "ftSystem", "ftVolumeID", "ftDirectory",
                           "ftArchive", "ftNormal"}) {
    ASSERT_TRUE(constants.contains(type)) << type;
    EXPECT_EQ(constants[type], number++) << type;
  }
  number = 0;
  for (const char* style : {"vsIcon", "vsSmallIcon", "vsList", "vsReport"}) {
    ASSERT_TRUE(constants.contains(style)) << style;
    EXPECT_EQ(constants[style], number++) << style;
  }
  EXPECT_EQ(constants["stBoth"], 3);
  EXPECT_EQ(constants["poLandscape"], 1);
  ASSERT_TRUE(constants.contains("SND_SYNC"));
  EXPECT_EQ(constants["SND_SYNC"], 0);
  EXPECT_EQ(constants["SND_ASYNC"], 1);
  EXPECT_EQ(constants["SND_NODEFAULT"], 2);
  EXPECT_EQ(constants["SND_LOOP"], 8);
}

TEST(IncludeFile, NothingOfTheLanguageIsDefinedAnew) {
  std::set<std::string> taken;
  for (const Word& word : Sources().Keywords) taken.insert(Lower(word.Text));
  for (const Word& word : Sources().Types) taken.insert(Lower(word.Text));
  for (const Constant& constant : Constants()) {
    EXPECT_FALSE(taken.contains(Lower(constant.Name))) << constant.Name;
  }
  for (const std::string& name : OwnNames()) EXPECT_FALSE(taken.contains(Lower(name))) << name;
}

TEST(IncludeFile, TrueAndFalseAreOnlyDefinedWhereTheyAreMissing) {
  const auto lines = LinesOfInclude();
  for (const char* name : {"TRUE", "FALSE"}) {
    const auto guard = std::find(lines.begin(), lines.end(), std::string("$IFNDEF ") + name);
    ASSERT_NE(guard, lines.end()) << name;
    EXPECT_TRUE((guard + 1)->starts_with(std::string("  $DEFINE ") + name)) << name;
    EXPECT_EQ(*(guard + 2), "$ENDIF") << name;
  }
}

TEST(IncludeFile, NoNameOfGeneratedProgramsIsTaken) {
  const std::set<std::string> generated{"font", "menubar", "xpfl",        "axp$",
                                        "axp",  "i",       "default_icon"};
  for (const Constant& constant : Constants()) {
    EXPECT_FALSE(generated.contains(Lower(constant.Name))) << constant.Name;
  }
  const auto names = OwnNames();
  EXPECT_GE(names.size(), 20U);
  for (const std::string& name : names) EXPECT_TRUE(name.starts_with("Tw")) << name;
}

TEST(IncludeFile, EveryBlockIsClosedAndNoneIsNested) {
  std::string open;
  for (const std::string& line : LinesOfInclude()) {
    const auto words = WordsOf(line);
    if (words.empty()) continue;
    if (words[0] == "SUB" || words[0] == "FUNCTION") {
      EXPECT_EQ(open, "") << line;
      open = words[0];
    } else if (words[0] == "END" && words.size() > 1 && words[1] != "IF") {
      EXPECT_EQ(words[1], open) << line;
      open.clear();
    }
  }
  EXPECT_EQ(open, "");
  int depth = 0;
  for (const std::string& line : LinesOfInclude()) {
    if (Trim(line).starts_with("$IFNDEF")) ++depth;
    if (Trim(line) == "$ENDIF") --depth;
    EXPECT_TRUE(depth == 0 || depth == 1) << line;
  }
  EXPECT_EQ(depth, 0);
}

TEST(IncludeFile, EveryRoutineForProgramsHasHelpAndEveryHelpARoutine) {
  std::set<std::string> routines;
  for (const std::string& line : LinesOfInclude()) {
    const auto words = WordsOf(line);
    if (words.size() > 1 && (words[0] == "SUB" || words[0] == "FUNCTION"))
      routines.insert(words[1]);
  }
  routines.erase("TwLastSlash");  // Serves the routines for paths alone.
  std::set<std::string> described;
  for (const FunctionEntry& function : Sources().Functions) {
    if (function.Group == "library") described.insert(function.Name);
  }
  EXPECT_EQ(routines, described);
}

TEST(IncludeFile, EveryLineEndsInCarriageReturnAndLineFeed) {
  for (const char* name : {"Tarnwick1.lib", "Add001.tn", "Add002.tn", "Add003.tn", "Add004.tn"}) {
    const std::string text = Delivered(name);
    EXPECT_TRUE(text.ends_with("\r\n")) << name;
    for (std::size_t at = 0; at < text.size(); ++at) {
      if (text[at] == '\n') {
        ASSERT_TRUE(at > 0 && text[at - 1] == '\r') << name << " " << at;
      }
      if (text[at] == '\r') {
        ASSERT_TRUE(at + 1 < text.size() && text[at + 1] == '\n') << name << " " << at;
      }
    }
  }
}

TEST(IconFile, HoldsThreeSizesWithAlpha) {
  const std::string icon = Delivered("IconApp.ico");
  ASSERT_GE(icon.size(), 54U);
  EXPECT_EQ(icon.substr(0, 6), std::string("\0\0\1\0\3\0", 6));
  const int sizes[]{16, 32, 48};
  for (std::size_t n = 0; n < 3; ++n) {
    const std::size_t entry = 6 + 16 * n;
    EXPECT_EQ(icon[entry], sizes[n]);
    EXPECT_EQ(icon[entry + 1], sizes[n]);
    EXPECT_EQ(icon[entry + 6], 32) << "bits per pixel";
  }
}

}  // namespace
}  // namespace tarnwick::support
