// The pickers of the property sheet: dialogs that fill the selected row.
#include <algorithm>
#include <array>
#include <utility>

#include "inspector/control_font.h"
#include "inspector/property_sheet.h"
#include "text/numbers.h"
#include "text/path_text.h"

namespace tarnwick {

namespace {

constexpr std::size_t kLongestFolder = 260;

/// A file dialog by the row's mark; the folder last used is remembered under the key.
struct FilePicker {
  int Mark;
  SettingKey Folder;
  std::string_view Title;
  std::string_view Filter;
};

constexpr std::array kFilePickers{
    FilePicker{row_mark::kPicture, kPictureFolder, "Picture", "Bmps Files|*.bmp"},
    FilePicker{row_mark::kIcon, kIconFolder, "Icon", "Icon Files|*.ico"},
    FilePicker{row_mark::kAnyFile, kAnyFileFolder, "File", "All Files|*.*"},
    FilePicker{row_mark::kHtmlFile, kPageFolder, "Page", "Html Files|*.htm;*.html"},
};
// An image shows icons too.
constexpr std::string_view kImageFilter = "Bmps and Icons Files|*.bmp;*.ico";

}  // namespace

void PropertySheet::PickValue() {
  if (!IsEditable()) return;
  const std::optional<RowTarget> target = Target();
  if (!target) return;
  switch (RowMark(RowIndex_)) {
    case row_mark::kYesNo:
    case row_mark::kList:
      OpenList();
      break;
    case row_mark::kPicture:
    case row_mark::kIcon:
    case row_mark::kAnyFile:
    case row_mark::kHtmlFile:
      PickFile(*target);
      break;
    case row_mark::kFont:
      PickFont(*target);
      break;
    case row_mark::kColor:
    case row_mark::kColorToo:
      PickColor();
      break;
    case row_mark::kFolder:
      PickFolder();
      break;
    case row_mark::kItems:
      OpenDesigner(*target);
      break;
    default:
      break;
  }
}

/// Opens the list with the present value marked; a second press of the button closes it.
void PropertySheet::OpenList() {
  if (is_list_open_) {
    CloseList();
    return;
  }
  list_marked_ = PlaceInList(Text(RowIndex_));
  is_list_open_ = true;
  if (view_ != nullptr) view_->ListOpened(true);
}

void PropertySheet::PickFile(const RowTarget& target) {
  for (const FilePicker& picker : kFilePickers) {
    if (picker.Mark != RowMark(RowIndex_)) continue;
    Settings settings{ports_.Profiles, tables_.ProgramFolder};
    const bool is_image = picker.Mark == row_mark::kPicture && target.Id == Kind::Image;
    const std::optional<std::string> path = ports_.Dialogs.OpenFile(
        {std::string{picker.Title}, std::string{is_image ? kImageFilter : picker.Filter},
         settings.Read(picker.Folder), ""});
    if (!path) return;
    settings.Write(picker.Folder, FolderOf(*path));
    Picked(*path);
    return;
  }
}

void PropertySheet::PickFont(const RowTarget& target) {
  if (target.Control == nullptr) return;
  const RowBinding* color = BindingOf("fontcolor", target.Id);
  FontChoice start = FontOf(*target.Control);
  if (color != nullptr) {
    start.Color = ToInt32(StoredNumber(*color, target).value_or(0)).value_or(0);
  }
  const std::optional<FontChoice> font = ports_.Dialogs.PickFont(start);
  // The dialog ran a loop of its own: look again whether the object is still there.
  const std::optional<RowTarget> now = Target();
  if (!font || !now || now->Control != target.Control) return;
  DesignControl& control = *now->Control;
  control.Set(Member::FontName, font->Name);
  control.Set(Member::FontSize, font->Size);
  control.Set(Member::FontBold, font->Bold);
  control.Set(Member::FontItalic, font->Italic);
  control.Set(Member::FontUnderline, font->Underline);
  control.Set(Member::FontStrikethru, font->Strikethru);
  if (color != nullptr) StoreNumber(*color, *now, font->Color);
  RereadRowsBut(0);
  TellChanged(now->Window.Number(), now->Id);
}

void PropertySheet::PickColor() {
  const std::int32_t start = ToInt32(Val(Text(RowIndex_))).value_or(0);
  if (const auto color = ports_.Dialogs.PickColor(start)) {
    Picked(NumberText(std::int64_t{*color}));
  }
}

void PropertySheet::PickFolder() {
  if (auto folder = ports_.Dialogs.PickFolder(Text(RowIndex_))) {
    folder->resize(std::min(folder->size(), kLongestFolder));
    Picked(*folder);
  }
}

void PropertySheet::OpenDesigner(const RowTarget& target) {
  if (target.Id == Kind::PopUpMenu) {
    host_.OpenFormPopUp(target.Window, target.Index);
  } else {
    host_.OpenFormAddItems(target.Window);
  }
}

/// A picker filled the row. Even the text that stood there is applied again: the file behind it
/// may be another now.
void PropertySheet::Picked(const std::string& text) {
  if (IsEditable()) ApplyToRow(text);
}

void PropertySheet::ResetValue() {
  const Cell* cell = CellAt(RowIndex_);
  if (!IsEditable() || cell->Binding == nullptr || !cell->Binding->HasReset) return;
  Picked(std::string{subject_.Id == Kind::Form ? kDefaultFile : kNoPicture});
  const std::optional<RowTarget> target = Target();
  if (!target || target->Control == nullptr) return;
  target->Control->Set(Member::Picture, std::string{});
  TellChanged(target->Window.Number(), target->Id);
}

}  // namespace tarnwick
