#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "built_files.h"
#include "model/kinds.h"

namespace tarnwick::support {
namespace {

using Rows = std::vector<std::string>;

using ReadRow = language::PropertyRow;

std::vector<ReadRow> GridOf(std::string_view kind) {
  const std::vector<ReadRow>* rows = DeliveredTables().ObjectHelp.Find(kind);
  return rows == nullptr ? std::vector<ReadRow>{} : *rows;
}

const Rows kKinds{"FORM",        "BUTTON",      "TEXTBOX",    "IMAGE",
                  "LABEL",       "LISTBOX",     "COMBOBOX",   "CHECKBOX",
                  "RICHTEXTBOX", "TIME",        "OPENDIALOG", "SAVEDIALOG",
                  "FILESTREAM",  "HTMLVIEWER",  "WINSOCK",    "TRANSPARENTFRAME",
                  "POPUPMENU",   "OPTIONBUTTON"};

TEST(GridFile, EveryKindHasALineAndNothingElseHas) {
  EXPECT_EQ(DeliveredTables().ObjectHelp.Size(), kKinds.size());
  for (const std::string& kind : kKinds) EXPECT_FALSE(GridOf(kind).empty()) << kind;
  // The key is the kind word of a selection.
  for (const KindInfo& kind : AllKinds().first<kObjectKindCount>()) {
    EXPECT_NE(DeliveredTables().ObjectHelp.Find(kind.NameWord), nullptr) << kind.Name;
  }
}

TEST(GridFile, EveryRowIsOneThatTheGridCanRead) {
  const std::set<std::string> readable{
      "parent",    "family",      "protocol",  "type",        "wmessage",       "alignment",
      "autopopup", "autosize",    "bmphandle", "cancel",      "caption",        "title",
      "cursor",    "default",     "enabled",   "font",        "fontcolor",      "height",
      "hint",      "left",        "top",       "width",       "columns",        "borderstyle",
      "center",    "color",       "icon(app)", "icohandle",   "windowstate",    "readonly",
      "text",      "taborder",    "visible",   "wordwrap",    "hidescrollbars", "scrollbars",
      "checked",   "additems",    "sorted",    "filename",    "filter",         "initialdir",
      "stretch",   "multiselect", "align",     "transparent", "transparency",   "transpcolor",
      "interval",  "navigate"};
  for (const std::string& kind : kKinds) {
    for (const ReadRow& row : GridOf(kind)) {
      EXPECT_TRUE(readable.contains(Lower(row.Name))) << kind << " " << row.Name;
    }
  }
}

TEST(GridFile, NameIsNeverWrittenAndRowsStandByAlphabetOnce) {
  for (const std::string& kind : kKinds) {
    Rows names;
    for (const ReadRow& row : GridOf(kind)) names.push_back(Lower(row.Name));
    EXPECT_EQ(std::count(names.begin(), names.end(), "name"), 0) << kind;
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end())) << kind;
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end()) << kind;
  }
}

TEST(GridFile, EveryRowHasTheMarkOfWhatItHolds) {
  std::map<std::string, int> marks{{"bmphandle", 0x98}, {"font", 0x9A},       {"additems", 0x9F},
                                   {"filename", 0xA1},  {"initialdir", 0x9D}, {"navigate", 0xA2}};
  for (const char* row :
       {"center", "enabled", "visible", "readonly", "stretch", "autosize", "transparent",
        "wordwrap", "multiselect", "sorted", "checked", "hidescrollbars", "autopopup"}) {
    marks[row] = 0x97;
  }
  for (const char* row : {"icohandle", "icon(app)"}) marks[row] = 0x99;
  for (const char* row : {"color", "fontcolor", "transpcolor"}) marks[row] = 0x9B;
  for (const char* row : {"borderstyle", "cursor", "windowstate", "scrollbars", "align", "family",
                          "protocol", "type", "alignment", "parent"}) {
    marks[row] = 0x9E;
  }
  for (const std::string& kind : kKinds) {
    for (const ReadRow& row : GridOf(kind)) {
      const auto mark = marks.find(Lower(row.Name));
      EXPECT_EQ(row.Mark, mark == marks.end() ? 0 : mark->second) << kind << " " << row.Name;
    }
  }
}

TEST(GridFile, OnlyListRowsHaveValuesAndOnlyParentHasNone) {
  for (const std::string& kind : kKinds) {
    for (const ReadRow& row : GridOf(kind)) {
      const bool has_values = row.Mark == 0x9E && row.Name != "Parent";
      EXPECT_EQ(!row.Values.empty(), has_values || row.Mark == language::row_mark::kYesNo)
          << kind << " " << row.Name;
    }
  }
}

/// What the language calls each value of a property: its numbers by name, over all kinds.
std::map<std::string, long> NumbersOf(std::string_view kind, std::string_view property) {
  std::map<std::string, long> numbers;
  for (const MemberEntry& member : Sources().Members) {
    if (!EqualsFolded(member.Kind, kind) || !EqualsFolded(member.Name, property)) continue;
    for (const auto pair : Split(member.Values, ";")) {
      const std::size_t sign = pair.find('=');
      if (sign == std::string_view::npos) continue;
      numbers[std::string(pair.substr(sign + 1))] = std::stol(std::string(pair.substr(0, sign)));
    }
  }
  return numbers;
}

TEST(GridFile, AValuesPlaceIsTheNumberOfTheLanguage) {
  std::size_t lists = 0;
  for (const std::string& kind : kKinds) {
    for (const ReadRow& row : GridOf(kind)) {
      // The texts of a socket are written as they stand; their numbers are no places.
      if (row.Mark != language::row_mark::kList || row.Values.empty() || kind == "WINSOCK")
        continue;
      ++lists;
      const auto numbers = NumbersOf(kind, row.Name);
      EXPECT_EQ(numbers.size(), row.Values.size()) << kind << " " << row.Name;
      // A cursor is generated behind a minus sign.
      const long sign = row.Name == "Cursor" ? -1 : 1;
      for (std::size_t place = 0; place < row.Values.size(); ++place) {
        const auto number = numbers.find(row.Values[place]);
        ASSERT_NE(number, numbers.end()) << kind << " " << row.Values[place];
        EXPECT_EQ(number->second, sign * static_cast<long>(place)) << kind << row.Values[place];
      }
    }
  }
  EXPECT_GE(lists, 13U);
}

TEST(GridFile, TheTextsOfASocketAreNamesOfTheLanguage) {
  std::size_t values = 0;
  for (const ReadRow& row : GridOf("WINSOCK")) {
    for (const std::string& value : row.Values) {
      ++values;
      EXPECT_TRUE(NumbersOf("WinSock", row.Name).contains(value)) << value;
    }
  }
  EXPECT_EQ(values, 6U);
}

TEST(GridFile, AListRowIsFoundByItsNameAndMark) {
  // "HideScrollBars" ends in the name of another row, so the search text carries the mark.
  const std::string text = Delivered("Add004.tn");
  const std::size_t line = text.find("[RICHTEXTBOX]");
  ASSERT_NE(line, std::string::npos);
  const std::size_t found = FindFolded(text, "scrollbars\x9E", line);
  ASSERT_LT(found, text.find("\r\n", line));
  EXPECT_TRUE(text.substr(found + 11).starts_with("ssNone\x8BssHorizontal"));
}

TEST(GridFile, GeometryIsThereForEveryKind) {
  for (const std::string& kind : kKinds) {
    Rows names;
    for (const ReadRow& row : GridOf(kind)) names.push_back(row.Name);
    for (const char* needed : {"Left", "Top"}) {
      EXPECT_EQ(std::count(names.begin(), names.end(), needed), 1) << kind << needed;
    }
  }
}

TEST(GridFile, TheLineOfAFormIsByteExact) {
  const std::string text = Delivered("Add004.tn");
  const std::string cursors =
      "crDefault\x8B"
      "crNone\x8B"
      "crArrow\x8B"
      "crCross\x8B"
      "crIBeam\x8B"
      "crSize\x8B"
      "crSizeNESW\x8B"
      "crSizeNS\x8B"
      "crSizeNWSE\x8B"
      "crSizeWE\x8B"
      "crUpArrow\x8B"
      "crHourGlass\x8B"
      "crDrag\x8B"
      "crNoDrop\x8B"
      "crHSplit\x8B"
      "crVSplit\x8B"
      "crMultiDrag\x8B"
      "crSQLWait\x8B"
      "crNo\x8B"
      "crAppStart\x8B"
      "crHelp\x8B"
      "crHandPoint";
  const std::string form =
      "[FORM]\x8D"
      "BorderStyle\x9E"
      "bsNone\x8B"
      "bsSingle\x8B"
      "bsSizeable\x8B"
      "bsDialog\x8B"
      "bsToolWindow\x8B"
      "bsSizeToolWin\x95"
      "Caption\x95"
      "Center\x97\x95"
      "Color\x9B\x95"
      "Cursor\x9E" +
      cursors +
      "\x95Height\x95Hint\x95IcoHandle\x99\x95Icon(App)\x99\x95Left\x95Top\x95Width\x95"
      "WindowState\x9EwsNormal\x8BwsMinimized\x8BwsMaximized\x8E\r\n";
  EXPECT_EQ(text.substr(0, form.size()), form);
}

}  // namespace
}  // namespace tarnwick::support
