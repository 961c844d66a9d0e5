// Edits of the property sheet: what a typed text or a picked row does.
#include <algorithm>
#include <array>
#include <utility>

#include "inspector/property_sheet.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

/// Rows whose value goes through `RowChoice` into the record of the kind.
bool GoesThroughRowChoice(std::string_view row) noexcept {
  constexpr std::array<std::string_view, 4> kRows{"cursor", "enabled", "taborder", "visible"};
  return std::any_of(kRows.begin(), kRows.end(),
                     [row](std::string_view known) { return EqualsFolded(known, row); });
}

bool IsHeldAsText(RowShape shape) noexcept {
  return shape == RowShape::Choice || shape == RowShape::Parent;
}

}  // namespace

bool PropertySheet::IsEditable() const noexcept {
  return GridBusy_ == 0 && is_row_live_ && CellAt(RowIndex_) != nullptr;
}

bool PropertySheet::ApplyText(std::string_view text) {
  if (!IsEditable() || Text(RowIndex_) == text) return false;
  return ApplyToRow(std::string{text});
}

/// Takes a text into the selected row and applies it; the row keeps it even where it is refused.
bool PropertySheet::ApplyToRow(const std::string& text) {
  const int row = RowIndex_;
  const std::optional<RowTarget> target = Target();
  SetText(row, text);
  if (!target) return false;
  if (row == 0) {
    Rename(*target, text);
    return true;
  }
  const Cell& cell = *CellAt(row);
  if (cell.Binding == nullptr || !ApplyTyped(cell, *target, text)) return false;
  RereadRowsBut(row);
  return true;
}

bool PropertySheet::ApplyTyped(const Cell& cell, const RowTarget& target, const std::string& text) {
  const RowBinding& binding = *cell.Binding;
  // In a row of a list a typed text counts once it names a value.
  if (WidgetsOf(cell.Row.Mark).List) {
    const int place = PlaceInList(text);
    if (place < 0) return false;
    return StoreChoice(binding, target, list_rows_[static_cast<std::size_t>(place)], place);
  }
  if (GoesThroughRowChoice(binding.Row) && binding.Shape == RowShape::Number) {
    return StoreRowChoice(binding, target, Val(text));
  }
  if (!StoreText(binding, target, text)) return false;
  Finish(binding, target);
  return true;
}

bool PropertySheet::ApplyChoice(std::string_view text, int index) {
  if (!IsEditable() || index < 0) return false;
  const int row = RowIndex_;
  const std::string value{text};
  CloseList();
  SetText(row, value);
  const std::optional<RowTarget> target = Target();
  const RowBinding* binding = CellAt(row)->Binding;
  if (!target || binding == nullptr || !StoreChoice(*binding, *target, value, index)) return false;
  RereadRowsBut(row);
  return true;
}

bool PropertySheet::StoreChoice(const RowBinding& binding, const RowTarget& target,
                                const std::string& value, int place) {
  if (GoesThroughRowChoice(binding.Row)) return StoreRowChoice(binding, target, place);
  const bool is_stored = IsHeldAsText(binding.Shape) ? StoreText(binding, target, value)
                                                     : StoreNumber(binding, target, place);
  if (is_stored) Finish(binding, target);
  return is_stored;
}

bool PropertySheet::StoreRowChoice(const RowBinding& binding, const RowTarget& target,
                                   double value) {
  const std::optional<std::int16_t> choice = ToInt16(value);
  if (!choice) return false;
  RowChoice_ = *choice;
  return Sync(binding, target);
}

void PropertySheet::SyncRow(std::string_view name_objet, std::string_view row_name) {
  if (tables_.CurrentForm != nullptr) SyncRow(*tables_.CurrentForm, name_objet, row_name);
}

void PropertySheet::SyncRow(DesignForm& form, std::string_view name_objet,
                            std::string_view row_name) {
  const Subject subject = SubjectOf(&form, KindWordOf(name_objet));
  const std::optional<RowTarget> target = TargetOf(subject);
  const RowBinding* binding = target ? BindingOf(row_name, target->Id) : nullptr;
  if (binding == nullptr || !Sync(*binding, *target)) return;
  if (subject.Window != subject_.Window || subject.Control.lock() != subject_.Control.lock()) {
    return;
  }
  for (int i = 1; i < RowCount(); ++i) {
    if (CellAt(i)->Binding == binding) SetText(i, ValueText(*binding, *target));
  }
}

bool PropertySheet::Sync(const RowBinding& binding, const RowTarget& target) {
  if (!GoesThroughRowChoice(binding.Row)) return SyncRecord(binding, target);
  if (!StoreNumber(binding, target, RowChoice_)) return false;
  Finish(binding, target);
  return true;
}

void PropertySheet::Rename(const RowTarget& target, const std::string& name) {
  const std::string old_name = target.Id == Kind::Form ? target.Record.Name : target.Control->Tag;
  SelName_ = name;
  if (target.Id == Kind::Form) {
    RenameForm(target, old_name, name);
  } else {
    target.Control->Tag = name;
  }
  // The list of objects is edited under its guard: its own change must select nothing.
  combo_busy_ = true;
  const int row = combo_.Rename(target.Control, old_name, name + "   (" + SelKind_ + ")");
  if (row >= 0 && view_ != nullptr) view_->ComboRowTextChanged(row);
  combo_busy_ = false;
  const int form = target.Window.Number();
  const Kind kind = target.Id;
  host_.NameChanged(target.Window, old_name, name);
  observer_.EventsBarChanged(form);
  TellChanged(form, kind);
}

void PropertySheet::RenameForm(const RowTarget& target, const std::string& old_name,
                               const std::string& name) {
  const int form = target.Window.Number();
  target.Record.Name = name;
  // The main form is kept by its whole list text, so this holds only for one typed without a file.
  if (tables_.MainFormName == old_name) tables_.MainFormName = name;
  tables_.ListaFrms.SetText(form, FormListText(name, target.Record.FileName));
  if (FrmBarra* bar = tables_.Bar(form)) bar->Caption = name + "  Procedures";
  observer_.FormListChanged();
}

/// What an edit does besides storing its value, and the word to the views. Painting a window
/// anew lets other windows run, so nothing is read from the target afterwards.
void PropertySheet::Finish(const RowBinding& binding, const RowTarget& target) {
  const int form = target.Window.Number();
  const Kind kind = target.Id;
  switch (binding.Effect) {
    case RowEffect::None:
      break;
    case RowEffect::Recolor:
      host_.FormRecolored(target.Window);
      break;
    case RowEffect::WindowIcon:
      LoadWindowIcon(target);
      break;
    case RowEffect::Picture:
      LoadPicture(target, StoredText(binding, target).value_or(""));
      break;
    case RowEffect::Resource: {
      const std::string file = StoredText(binding, target).value_or("");
      LoadPicture(target, file);
      ObjectRec* record = target.Record.Objects(target.Id)->At(target.Index);
      record->Title = HasPicturePath(file)
                          ? PictureResourceName(target.Window.Number(), target.Id, target.Index)
                          : std::string{kNoPicture};
      break;
    }
    case RowEffect::Frame:
      host_.borderstylea(target.Window, target.Record.BorderStyle);
      break;
  }
  TellChanged(form, kind);
}

void PropertySheet::LoadWindowIcon(const RowTarget& target) {
  const std::string& file = target.Record.ImageFile;
  const std::string path = file == kDefaultFile ? tables_.ProgramFolder + "\\iconapp.ico" : file;
  if (const auto loadable = LoadablePath(path)) target.Window.WindowIcon = *loadable;
}

void PropertySheet::LoadPicture(const RowTarget& target, const std::string& path) {
  if (!HasPicturePath(path)) {
    target.Control->Set(Member::Picture, std::string{});
  } else if (const auto loadable = LoadablePath(path)) {
    target.Control->Set(Member::Picture, *loadable);
  }
}

/// The path as it stands, or within the project; nothing when neither is a picture, and what was
/// shown before stays.
std::optional<std::string> PropertySheet::LoadablePath(const std::string& path) {
  if (path.empty()) return std::nullopt;
  if (host_.PictureLoads(path)) return path;
  std::string resolved = ResolveProjectPath(tables_, path, true);
  if (resolved != path && host_.PictureLoads(resolved)) return resolved;
  return std::nullopt;
}

void PropertySheet::TellChanged(int form, Kind kind) {
  if (kind == Kind::Form) {
    observer_.FormChanged(form);
  } else {
    observer_.ControlsChanged(form);
  }
}

/// Place of a text among the rows of the selected row's list, blanks and case aside.
int PropertySheet::PlaceInList(std::string_view text) const noexcept {
  for (std::size_t i = 0; i < list_rows_.size(); ++i) {
    if (EqualsFolded(Trim(list_rows_[i]), Trim(text))) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace tarnwick
