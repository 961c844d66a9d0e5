#include "inspector/head_list.h"

#include <algorithm>
#include <cstddef>

namespace tarnwick {

void HeadList::Fill() {
  const DesignForm* form = tables_.CurrentForm;
  const FormRec* record = form != nullptr ? tables_.RecordOf(*form) : nullptr;
  is_changing_ = true;
  rows_.Clear();
  if (record != nullptr) {
    rows_.Fill(*form, record->Name);
    const DesignControl* selected = form->ControlSel.get();
    const Kind kind = selected != nullptr ? selected->Id : Kind::Form;
    rows_.Bring(selected, selected != nullptr ? selected->Tag : record->Name,
                InfoOf(kind).ComboText);
  }
  if (view_ != nullptr) view_->ComboChanged();
  is_changing_ = false;
}

void HeadList::Clear() {
  rows_.Clear();
  if (view_ != nullptr) view_->ComboChanged();
}

void HeadList::Bring(const DesignControl* object, std::string_view name, Kind kind) {
  is_changing_ = true;
  const int before = rows_.Selected();
  const bool is_new = rows_.Bring(object, name, InfoOf(kind).ComboText);
  if (view_ != nullptr && is_new) {
    view_->ComboChanged();
  } else if (view_ != nullptr && rows_.Selected() != before) {
    view_->ComboRowSelected(rows_.Selected());
  }
  is_changing_ = false;
}

void HeadList::Rename(const DesignControl* object, std::string_view name, std::string_view kind) {
  is_changing_ = true;
  const int row = rows_.Rename(object, std::string{name}.append("   (").append(kind).append(")"));
  if (row >= 0 && view_ != nullptr) view_->ComboRowTextChanged(row);
  is_changing_ = false;
}

void HeadList::Remove(const DesignControl& object) {
  if (rows_.Remove(object) && view_ != nullptr) view_->ComboChanged();
}

bool HeadList::Choose(int row) {
  DesignForm* form = tables_.CurrentForm;
  const auto& rows = rows_.Rows();
  if (is_changing_ || form == nullptr || tables_.RecordOf(*form) == nullptr || row < 0 ||
      static_cast<std::size_t>(row) >= rows.size()) {
    return false;
  }
  const DesignControl* object = rows[static_cast<std::size_t>(row)].Object;
  if (object == nullptr) {
    host_.SelectObject(*form, nullptr);
    return true;
  }
  const auto& controls = form->Controls();
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [object](const ControlRef& c) { return c.get() == object; });
  if (found == controls.end()) return false;
  const ControlRef control = *found;
  host_.SelectObject(*form, control);
  return true;
}

}  // namespace tarnwick
