#include "menus/row_faults.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "project/finding.h"

namespace tarnwick::menus {

namespace {

/// Characters that end a text in the item list of a form file, or come back as others.
constexpr std::string_view kTakenByFile = "\x8C\x8D\x8E\x8F\x95";
constexpr std::string_view kBrackets = "()";

void AddPopUp(NameSet& names, const PopUpFormRec& popup) {
  for (std::size_t row = 1; row < popup.Items.size(); ++row) {
    names.insert(popup.Items[row].Name);
    const std::vector<PopUpEntryRec>& entries = popup.Items[row].Entries;
    for (std::size_t entry = 1; entry < entries.size(); ++entry) names.insert(entries[entry].Name);
  }
}

/// The names of all forms, and of their controls but those that `skip` names.
template <class Skip>
NameSet NamesBeside(const ProjectTables& tables, Skip skip) {
  NameSet names;
  for (int form = 1; form <= tables.FormsCount; ++form) {
    const DesignForm* const window = tables.IsLive(form) ? tables.UserIfAny(form) : nullptr;
    if (window == nullptr) continue;
    names.insert(tables.Form(form)->Name);
    for (const ControlRef& control : window->Controls()) {
      if (!control->Visible || control->Index == 0 || skip(form, *control)) continue;
      names.insert(control->Tag);
    }
  }
  return names;
}

/// True when the brackets of a row are those around its name, and it ends with them.
bool HasBracketsOfItsOwn(std::string_view row) {
  const std::size_t gap = row.find(kMenuGap);
  const std::size_t open = row.find_first_of(kBrackets);
  return gap == std::string_view::npos || open != gap + kMenuGap.size() - 1 ||
         row.find_first_of(kBrackets, open + 1) != row.size() - 1;
}

class RowCheck {
 public:
  RowCheck(const MenuDesign& design, const Rows& rows, const NameSet& others)
      : design_(design), others_(others) {
    for (const std::string& row : rows) {
      if (!IsEmptyMenuRow(row)) ++uses_[std::string(ParseMenuRow(row).Name)];
    }
  }

  std::string Fault(const std::string& row) {
    if (IsEmptyMenuRow(row)) return {};
    const ParsedMenuRow parsed = ParseMenuRow(row);
    under_top_ = under_top_ || !parsed.Nested;
    if (!under_top_) {
      return design_.HasBar ? "It has no title above it and is left out of the menu."
                            : "It has no item above it and is left out of the menu.";
    }
    if (HasBracketsOfItsOwn(row)) {
      return "It holds brackets: its caption and its name end at the first one.";
    }
    std::string fault = NameFault(std::string(parsed.Name));
    return fault.empty() ? CaptionFault(parsed) : fault;
  }

 private:
  std::string NameFault(const std::string& name) {
    if (const auto fault =
            project::FaultOfName(name, design_.HasBar ? Kind::MenuItem : Kind::PopUpMenu)) {
      std::string text = project::TextOfNameFault(*fault, name) + ".";
      text.front() = 'T';
      return text;
    }
    if (uses_[name] > 1) return "The name " + name + " stands twice in this menu.";
    if (others_.contains(name)) return "The name " + name + " is used elsewhere in the project.";
    return {};
  }

  std::string CaptionFault(const ParsedMenuRow& row) const {
    if (row.Caption.find('"') != std::string_view::npos) {
      return "The caption has a double quote, which ends it in the program.";
    }
    if (row.Caption.find_first_of(kTakenByFile) != std::string_view::npos) {
      return "The caption has a character that the form file cannot keep.";
    }
    if (!design_.HasBar && IsDeeperItem(row.Caption)) {
      return "A popup menu has one level of sub-items: the dots become part of the caption.";
    }
    return {};
  }

  const MenuDesign& design_;
  const NameSet& others_;
  std::unordered_map<std::string, int, FoldedHash, FoldedEqual> uses_;
  bool under_top_ = false;
};

}  // namespace

NameSet NamesBesideMenuBar(const ProjectTables& tables, int form) {
  NameSet names = NamesBeside(tables, [form](int number, const DesignControl& control) {
    return number == form && control.Class() == ControlClass::Menu;
  });
  const RecordArray<PopUpFormRec>& popups = tables.PopUpMenus;
  for (int popup = 1; popup <= popups.UBound(); ++popup) {
    AddPopUp(names, RecordOrEmpty(popups, popup));
  }
  return names;
}

NameSet NamesBesidePopUp(const ProjectTables& tables, int index) {
  NameSet names = NamesBeside(tables, [](int, const DesignControl&) { return false; });
  const RecordArray<PopUpFormRec>& popups = tables.PopUpMenus;
  for (int popup = 1; popup <= popups.UBound(); ++popup) {
    if (popup != index) AddPopUp(names, RecordOrEmpty(popups, popup));
  }
  return names;
}

std::vector<std::string> FaultsOfRows(const MenuDesign& design, const Rows& rows,
                                      const NameSet& others) {
  RowCheck check(design, rows, others);
  std::vector<std::string> faults;
  faults.reserve(rows.size());
  for (const std::string& row : rows) faults.push_back(check.Fault(row));
  return faults;
}

}  // namespace tarnwick::menus
