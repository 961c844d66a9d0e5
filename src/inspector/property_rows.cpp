#include "inspector/property_rows.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "model/kinds.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

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

}  // namespace

std::string KindWordOf(std::string_view kind_or_name) {
  std::string word = WithoutDigits(kind_or_name);
  for (const KindInfo& kind : ObjectKinds()) {
    if (kind.Array != kind.NameWord && EqualsFolded(word, kind.Array)) {
      return std::string{kind.NameWord};
    }
  }
  return word;
}

std::span<const PropertyRow> PropertyRowsOf(const language::SupportTables& tables,
                                            std::string_view kind) {
  const std::vector<PropertyRow>* rows = tables.ObjectHelp.Find(kind);
  return rows == nullptr ? std::span<const PropertyRow>{} : *rows;
}

const RowWidgets& WidgetsOf(int mark) noexcept {
  const auto* const found = std::find_if(kWidgets.begin(), kWidgets.end(),
                                         [&](const RowWidgets& w) { return w.Mark == mark; });
  // A byte that is no mark of ours leaves a row to typing.
  return found == kWidgets.end() ? kWidgets.front() : *found;
}

std::string EnumText(const language::SupportTables& tables, std::string_view kind,
                     std::string_view row_name, int value) {
  const std::string_view name = row_name.substr(0, language::NameLengthOf(row_name));
  for (const PropertyRow& row : PropertyRowsOf(tables, kind)) {
    if (!EqualsFolded(row.Name, name)) continue;
    if (value < 0 || static_cast<std::size_t>(value) >= row.Values.size()) return "";
    return row.Values[static_cast<std::size_t>(value)];
  }
  return "";
}

}  // namespace tarnwick
