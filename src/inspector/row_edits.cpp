#include "inspector/row_edits.h"

#include <algorithm>
#include <array>

#include "inspector/row_store.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

/// Rows that share one value: what the last of them was given is what `Sync` brings to a record.
bool SharesChoice(std::string_view row) noexcept {
  constexpr std::array<std::string_view, 4> kRows{"cursor", "enabled", "taborder", "visible"};
  return std::any_of(kRows.begin(), kRows.end(),
                     [row](std::string_view known) { return EqualsFolded(known, row); });
}

bool IsHeldAsText(RowShape shape) noexcept {
  return shape == RowShape::Choice || shape == RowShape::Parent;
}

}  // namespace

bool RowEdits::Number(const RowBinding& binding, const RowTarget& target, double value) {
  if (!StoreNumber(binding, target, value)) return false;
  if (SharesChoice(binding.Row)) last_choice_ = value;
  Finish(binding, target);
  return true;
}

bool RowEdits::Text(const RowBinding& binding, const RowTarget& target, std::string_view text) {
  if (!StoreText(binding, target, text)) return false;
  Finish(binding, target);
  return true;
}

bool RowEdits::Choice(const RowBinding& binding, const RowTarget& target, std::string_view value,
                      int index) {
  return IsHeldAsText(binding.Shape) ? Text(binding, target, value)
                                     : Number(binding, target, index);
}

bool RowEdits::Sync(const RowBinding& binding, const RowTarget& target) {
  if (!SharesChoice(binding.Row)) return SyncRecord(binding, target);
  return Number(binding, target, last_choice_);
}

void RowEdits::Font(const RowTarget& target, const FontChoice& font) {
  DesignControl& control = *target.Control;
  control.Set(Member::FontName, font.Name);
  control.Set(Member::FontSize, font.Size);
  control.Set(Member::FontBold, font.Bold);
  control.Set(Member::FontItalic, font.Italic);
  const RowBinding* color = BindingOf("fontcolor", target.Id);
  if (color != nullptr) StoreNumber(*color, target, font.Color);
  TellChanged(target.Window.Number(), target.Id);
}

void RowEdits::RemovePicture(const RowTarget& target) {
  target.Control->Set(Member::Picture, std::string{});
  TellChanged(target.Window.Number(), target.Id);
}

void RowEdits::Rename(const RowTarget& target, const std::string& name) {
  const int form = target.Window.Number();
  const Kind kind = target.Id;
  const std::string old_name = kind == Kind::Form ? target.Record.Name : target.Control->Tag;
  if (kind == Kind::Form) {
    RenameForm(target, old_name, name);
  } else {
    target.Control->Tag = name;
  }
  host_.NameChanged(target.Window, old_name, name);
  observer_.EventsBarChanged(form);
  TellChanged(form, kind);
}

void RowEdits::RenameForm(const RowTarget& target, const std::string& old_name,
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
/// again lets other windows run, so nothing is read from the target afterwards.
void RowEdits::Finish(const RowBinding& binding, const RowTarget& target) {
  const int form = target.Window.Number();
  const Kind kind = target.Id;
  if (target.Control != nullptr && IsMeasure(binding.Shape)) host_.PlaceChanged(target.Window);
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

void RowEdits::LoadWindowIcon(const RowTarget& target) {
  const std::string& file = target.Record.ImageFile;
  const std::string path = file == kDefaultFile ? tables_.ProgramFolder + "\\iconapp.ico" : file;
  if (const auto loadable = LoadablePath(path)) target.Window.WindowIcon = *loadable;
}

void RowEdits::LoadPicture(const RowTarget& target, const std::string& path) {
  if (!HasPicturePath(path)) {
    target.Control->Set(Member::Picture, std::string{});
  } else if (const auto loadable = LoadablePath(path)) {
    target.Control->Set(Member::Picture, *loadable);
  }
}

/// The path as it stands, or within the project; nothing when neither is a picture, and what was
/// shown before stays.
std::optional<std::string> RowEdits::LoadablePath(const std::string& path) {
  if (path.empty()) return std::nullopt;
  if (host_.PictureLoads(path)) return path;
  std::string resolved = ResolveProjectPath(tables_, path, true);
  if (resolved != path && host_.PictureLoads(resolved)) return resolved;
  return std::nullopt;
}

void RowEdits::TellChanged(int form, Kind kind) {
  if (kind == Kind::Form) {
    observer_.FormChanged(form);
  } else {
    observer_.ControlsChanged(form);
  }
}

}  // namespace tarnwick
