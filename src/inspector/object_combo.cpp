#include "inspector/object_combo.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

/// Kinds that a popup menu cannot hang on.
constexpr std::array<std::string_view, 8> kNoParents{"time",       "htmlviewer",      "opendialog",
                                                     "savedialog", "filestream",      "winsock",
                                                     "popupmenu",  "transparentframe"};

}  // namespace

std::string_view ComboRowName(std::string_view row) noexcept {
  return Trim(row.substr(0, row.rfind('(')));
}

std::string_view ComboRowKind(std::string_view row) noexcept {
  const std::size_t open = row.rfind('(');
  if (open == std::string_view::npos) return {};
  const std::string_view rest = row.substr(open + 1);
  return rest.substr(0, rest.find(')'));
}

void ObjectCombo::Clear() noexcept {
  rows_.clear();
  selected_ = -1;
}

void ObjectCombo::Fill(const DesignForm& form, std::string_view form_name) {
  Clear();
  rows_.reserve(form.Controls().size() + 1);
  rows_.push_back({std::string{form_name}.append(InfoOf(Kind::Form).ComboText), nullptr});
  for (const ControlRef& control : form.Controls()) {
    // Templates, menu entries, handles and the hidden label have no row.
    if (control->Index == 0 || !IsObjectKind(control->Id)) continue;
    std::string text = control->Tag;
    rows_.push_back({std::move(text.append(InfoOf(control->Id).ComboText)), control.get()});
  }
}

bool ObjectCombo::Bring(const DesignControl* object, std::string_view name,
                        std::string_view suffix) {
  selected_ = PositionOf(object);
  if (selected_ >= 0) return false;
  selected_ = static_cast<int>(rows_.size());
  rows_.push_back({std::string{name}.append(suffix), object});
  return true;
}

int ObjectCombo::Rename(const DesignControl* object, std::string text) {
  const int index = PositionOf(object);
  if (index >= 0) rows_[static_cast<std::size_t>(index)].Text = std::move(text);
  return index;
}

bool ObjectCombo::Remove(const DesignControl& object) {
  const int row = PositionOf(&object);
  if (row < 0) return false;
  rows_.erase(rows_.begin() + row);
  if (selected_ == row) {
    selected_ = -1;
  } else if (selected_ > row) {
    --selected_;
  }
  return true;
}

int ObjectCombo::Search(std::string_view text) const noexcept {
  int holding = -1;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const std::size_t at = FindFolded(ComboRowName(rows_[i].Text), text);
    if (at == 0) return static_cast<int>(i);
    if (at != std::string_view::npos && holding < 0) holding = static_cast<int>(i);
  }
  return holding;
}

std::vector<std::string> ObjectCombo::ParentNames() const {
  std::vector<std::string> names;
  for (const Row& row : rows_) {
    const std::string kind = Lower(ComboRowKind(row.Text));
    if (std::find(kNoParents.begin(), kNoParents.end(), kind) == kNoParents.end()) {
      names.emplace_back(ComboRowName(row.Text));
    }
  }
  return names;
}

int ObjectCombo::PositionOf(const DesignControl* object) const noexcept {
  const auto found = std::find_if(rows_.begin(), rows_.end(),
                                  [object](const Row& row) { return row.Object == object; });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

}  // namespace tarnwick
