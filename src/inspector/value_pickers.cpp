#include "inspector/value_pickers.h"

#include <algorithm>
#include <array>

#include "inspector/property_rows.h"
#include "persistence/settings.h"
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

std::optional<std::string> ValuePickers::File(int mark, Kind kind) {
  for (const FilePicker& picker : kFilePickers) {
    if (picker.Mark != mark) continue;
    Settings settings{ports_.Profiles, tables_.ProgramFolder};
    const bool is_image = mark == row_mark::kPicture && kind == Kind::Image;
    std::optional<std::string> path = ports_.Dialogs.OpenFile(
        {std::string{picker.Title}, std::string{is_image ? kImageFilter : picker.Filter},
         settings.Read(picker.Folder), ""});
    if (path) settings.Write(picker.Folder, FolderOf(*path));
    return path;
  }
  return std::nullopt;
}

std::optional<std::string> ValuePickers::Folder(const std::string& start) {
  std::optional<std::string> folder = ports_.Dialogs.PickFolder(start);
  if (folder) folder->resize(std::min(folder->size(), kLongestFolder));
  return folder;
}

std::optional<std::int32_t> ValuePickers::Color(std::int32_t start) {
  return ports_.Dialogs.PickColor(start);
}

std::optional<FontChoice> ValuePickers::Font(const FontChoice& start) {
  return ports_.Dialogs.PickFont(start);
}

}  // namespace tarnwick
