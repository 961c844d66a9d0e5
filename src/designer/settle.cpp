#include "designer/settle.h"

#include <charconv>
#include <type_traits>
#include <utility>
#include <variant>

#include "designer/object_kinds.h"
#include "text/code_page.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

template <class T>
void RemoveRecord(RecordArray<T>& records, int index) {
  if (index <= records.UBound()) records.Splice(index, 1, 0);
}

/// The rows of popup menus stand in one array for all forms. Rows that a popup of another form
/// shows too stay as they are.
void MovePopUpRows(ProjectTables& tables, int form, int index, int last) {
  for (int i = index; i <= last; ++i) {
    if (PopUpElsewhere(tables, form, i)) continue;
    PopUpFormRec* const rows = tables.PopUpMenus.Ensure(i);
    const PopUpFormRec* const next = std::as_const(tables.PopUpMenus).At(i + 1);
    *rows = next != nullptr && i < last ? *next : PopUpFormRec{};
  }
}

/// A picture's resource name carries the number of its object.
void RenumberPicture(FormRec& record, int form, Kind kind, int index) {
  ObjectRec* const object = record.Objects(kind)->At(index);
  if (object != nullptr && object->Title == PictureResourceName(form, kind, index + 1)) {
    object->Title = PictureResourceName(form, kind, index);
  }
}

void MoveRecords(ProjectTables& tables, const DesignForm& form, Kind kind, int index, int last) {
  FormRec* const record = tables.RecordOf(form);
  if (record == nullptr) return;
  const KindInfo& info = InfoOf(kind);
  std::visit(
      [&](auto home) {
        if constexpr (!std::is_same_v<decltype(home), std::monostate>) {
          RemoveRecord(record->*home, index);
        }
      },
      info.Records);
  if (info.Companion != nullptr) RemoveRecord(record->*info.Companion, index);
  if (kind == Kind::PopUpMenu) MovePopUpRows(tables, form.Number(), index, last);
  if (info.PictureWord.empty()) return;
  for (int i = index; i < last; ++i) RenumberPicture(*record, form.Number(), kind, i);
}

void MoveBarEntries(ProjectTables& tables, int form, Kind kind, int index, int last) {
  const auto slot = static_cast<std::size_t>(form);
  if (slot >= tables.FormsBar.size() || tables.FormsBar[slot] == nullptr) return;
  auto& entries = tables.FormsBar[slot]->Entries;
  const std::string_view word = InfoOf(kind).Array;
  std::erase_if(entries, [&](const FrmBarra::Entry& entry) {
    return NumberBehind(entry.Name, word) == index;
  });
  for (FrmBarra::Entry& entry : entries) {
    const int number = NumberBehind(entry.Name, word);
    if (number <= index || number > last) continue;
    entry.Name = word;
    AppendNumber(entry.Name, std::int64_t{number - 1});
  }
}

}  // namespace

int NumberBehind(std::string_view name, std::string_view word) {
  if (name.size() <= word.size() || !EqualsFolded(name.substr(0, word.size()), word)) return 0;
  int number = 0;
  const char* const end = name.data() + name.size();
  const auto [stop, error] = std::from_chars(name.data() + word.size(), end, number);
  return error == std::errc() && stop == end && number > 0 ? number : 0;
}

bool SettleForm(ProjectTables& tables, DesignForm& form, Kind kind, int index) {
  if (index < 1 || form.UBound(kind) < index || form.Element(kind, index) != nullptr) return false;
  const int last = form.UBound(kind);
  form.CloseGap(kind, index);
  MoveRecords(tables, form, kind, index, last);
  tables.EventTable.RemoveNumber({form.Number(), kind, index}, last);
  MoveBarEntries(tables, form.Number(), kind, index, last);
  return true;
}

}  // namespace tarnwick
