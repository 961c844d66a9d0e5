#include "inspector/form_add_items.h"

#include "designer/history/history.h"
#include "inspector/row_edits.h"
#include "persistence/stored_text.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick {

FormAddItems::FormAddItems(ProjectTables& tables, ProjectObserver& observer, History& steps,
                           DesignForm& form)
    : tables_(tables),
      observer_(observer),
      steps_(steps),
      form_(form.Number()),
      is_list_box_(Contains(form.NameObjet, InfoOf(Kind::ListBox).NameWord)),
      index_(form.IndexObjet),
      control_(form.ControlSel) {
  const ObjectRec* record = Record();
  if (record == nullptr) return;
  for (const std::string& row : ItemRows(record->Items)) text_.append(row).append(kLineEnd);
}

std::string FormAddItems::Storable(std::string_view text) {
  std::string storable{text};
  for (const char mark : {kStoredLineBreak, kStoredListComma}) ReplaceByte(storable, mark, '?');
  return storable;
}

bool FormAddItems::Ok(std::string_view text) {
  ObjectRec* record = Record();
  if (record == nullptr) return false;
  const HistoryStep step(steps_, form_, EditStepName("AddItems", control_.lock()->Tag));
  std::string lines = Storable(text);
  if (!lines.empty() && !lines.ends_with('\n')) lines.append(kLineEnd);
  record->Items =
      ReplaceAll(ReplaceAll(lines, kLineEnd, "\n"), "\n", std::string_view{&kStoredLineBreak, 1});
  if (const ControlRef control = control_.lock(); control && control->Has(Member::List)) {
    control->Items = ItemRows(record->Items);
  }
  observer_.ControlsChanged(form_);
  return true;
}

ObjectRec* FormAddItems::Record() {
  FormRec* form = tables_.Form(form_);
  if (form == nullptr || control_.expired()) return nullptr;
  return (is_list_box_ ? form->ListBoxes : form->ComboBoxes).Ensure(index_);
}

}  // namespace tarnwick
