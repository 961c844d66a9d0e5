#include "inspector/property_rows.h"

#include <algorithm>
#include <array>

#include "model/vocabulary.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kRowSeparator{"\x95"};
constexpr std::string_view kValueSeparator{"\x8B"};
constexpr int kFirstMark = 0x80;

constexpr std::array kWidgets{
    RowWidgets{row_mark::kText, false, false, false, false},
    RowWidgets{row_mark::kYesNo, false, true, false, true},
    RowWidgets{row_mark::kPicture, true, false, true, false},
    RowWidgets{row_mark::kIcon, true, false, true, false},
    RowWidgets{row_mark::kFont, true, false, true, false},
    RowWidgets{row_mark::kColor, false, true, true, false},
    RowWidgets{row_mark::kColorToo, false, true, false, false},
    RowWidgets{row_mark::kFolder, true, false, false, false},
    RowWidgets{row_mark::kList, false, true, false, true},
    RowWidgets{row_mark::kItems, true, false, true, false},
    RowWidgets{row_mark::kAnyFile, true, false, true, false},
    RowWidgets{row_mark::kHtmlFile, true, false, true, false},
};

bool IsMark(char c) noexcept {
  return static_cast<unsigned char>(c) >= kFirstMark;
}

}  // namespace

std::size_t NameLengthOf(std::string_view row) noexcept {
  return static_cast<std::size_t>(std::find_if(row.begin(), row.end(), IsMark) - row.begin());
}

PropertyRow ParseRow(std::string_view row) noexcept {
  const std::size_t length = NameLengthOf(row);
  if (length == row.size()) return {row, row_mark::kText, {}};
  return {row.substr(0, length), static_cast<unsigned char>(row[length]), row.substr(length + 1)};
}

std::string KindWordOf(std::string_view kind_or_name) {
  std::string word = WithoutDigits(kind_or_name);
  for (const Kind kind : {Kind::Image, Kind::PopUpMenu}) {
    if (EqualsFolded(word, InfoOf(kind).Array)) return std::string{InfoOf(kind).NameWord};
  }
  return word;
}

std::vector<PropertyRow> PropertyRowsOf(const SupportTables& tables, std::string_view kind) {
  std::vector<PropertyRow> rows;
  const std::string* line = tables.ObjectHelp.Find(kind);
  if (line == nullptr || line->empty()) return rows;
  for (const std::string_view row : Split(*line, kRowSeparator)) rows.push_back(ParseRow(row));
  return rows;
}

std::vector<std::string_view> ValuesOf(const PropertyRow& row) {
  if (row.Mark == row_mark::kYesNo) return {"False", "True"};
  if (row.Mark != row_mark::kList || row.Rest.empty()) return {};
  return Split(row.Rest, kValueSeparator);
}

const RowWidgets& WidgetsOf(int mark) noexcept {
  const auto* const found = std::find_if(kWidgets.begin(), kWidgets.end(),
                                         [&](const RowWidgets& w) { return w.Mark == mark; });
  // A byte that is no mark of ours leaves a row to typing.
  return found == kWidgets.end() ? kWidgets.front() : *found;
}

std::string EnumText(const SupportTables& tables, std::string_view kind, std::string_view row_name,
                     int value) {
  const std::string_view name = row_name.substr(0, NameLengthOf(row_name));
  for (const PropertyRow& row : PropertyRowsOf(tables, kind)) {
    if (!EqualsFolded(row.Name, name)) continue;
    const std::vector<std::string_view> values = ValuesOf(row);
    if (value < 0 || static_cast<std::size_t>(value) >= values.size()) return "";
    return std::string{values[static_cast<std::size_t>(value)]};
  }
  return "";
}

}  // namespace tarnwick
