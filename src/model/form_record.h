// The record of a form and those of its objects.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/record_array.h"

namespace tarnwick {

enum class Kind : std::uint8_t;

inline constexpr std::string_view kNoPicture = "(None)";
/// True when a record's picture path names a picture.
[[nodiscard]] inline bool HasPicturePath(std::string_view path) noexcept {
  return !path.empty() && path != kNoPicture;
}
inline constexpr std::string_view kDefaultFile = "(Default)";

/// The properties of one object that its design control cannot carry. One record serves all
/// kinds; each uses some of the fields.
struct ObjectRec {
  // Numbers first: what every object has lies together.
  std::int16_t Interval = 0;
  std::int16_t Checked = 0;
  std::int16_t Sorted = 0;
  std::int16_t MultiSelect = 0;
  std::int16_t HideScrollBars = 0;
  std::int16_t Icon = 0;  ///< the stored word wrap of Label and RichTextBox
  std::int16_t ScrollBars = 0;
  std::int16_t Visible = 0;
  std::int16_t Enabled = 0;
  std::int16_t Cursor = 0;
  std::int16_t Columns = 0;
  std::int16_t TabOrder = 0;
  std::int16_t ReadOnly = 0;
  std::int16_t HasPicture = 0;
  std::int32_t FontColor = 0;
  std::string ImageFile;
  std::string Items;
  std::string Title;  ///< dialog title; for Button and Image the picture's resource name
  std::string Filter;
  std::string InitialDir;
  std::string FileName;
  std::string PictureName;
  friend bool operator==(const ObjectRec&, const ObjectRec&) = default;
};

struct WinSockRec {
  std::string Family;
  std::string Protocol;
  std::string Type;
  std::string WMessage;
  friend bool operator==(const WinSockRec&, const WinSockRec&) = default;
};

struct HtmlViewerRec {
  std::string Navigate;  ///< the page to open
  std::string Left;
  std::string Top;
  std::string Width;
  std::string Height;
  friend bool operator==(const HtmlViewerRec&, const HtmlViewerRec&) = default;
};

struct PopUpItemRec {
  std::int16_t Alignment = 0;
  std::int16_t AutoPopUp = 0;
  std::string PopUpMenu;  ///< name of the object that the popup hangs on
  friend bool operator==(const PopUpItemRec&, const PopUpItemRec&) = default;
};

/// One form of the project. A slot whose `Removed` is 1 is skipped by every loop over forms and
/// its number is never used again.
struct FormRec {
  std::int16_t Removed = 0;
  std::int16_t Left = 0;
  std::int16_t Top = 0;
  std::int16_t Width = 0;   ///< pixels
  std::int16_t Height = 0;  ///< pixels
  std::string Reserved;
  std::string FileName;
  std::string Name;
  std::int16_t Visible = 0;
  std::string Hint;
  std::int16_t Cursor = 0;
  std::int16_t BorderStyle = 0;
  std::int16_t Center = 0;
  std::int16_t WndState = 0;
  std::string IconFile;
  std::string ImageFile;
  RecordArray<PopUpItemRec> PopUps;
  RecordArray<ObjectRec> Buttons;
  RecordArray<ObjectRec> Labels;
  RecordArray<ObjectRec> ListBoxes;
  RecordArray<ObjectRec> OptionButtons;
  RecordArray<ObjectRec> CheckBoxes;
  RecordArray<ObjectRec> TextBoxes;
  RecordArray<ObjectRec> RichTextBoxes;
  RecordArray<ObjectRec> ComboBoxes;
  RecordArray<ObjectRec> Images;
  RecordArray<ObjectRec> OpenDialogs;
  RecordArray<ObjectRec> SaveDialogs;
  RecordArray<ObjectRec> Times;
  RecordArray<WinSockRec> WinSocks;
  RecordArray<HtmlViewerRec> HtmlViewers;
  std::int16_t TfAlign = 5;
  std::int32_t TfColor = 0;
  std::int16_t TfCursor = 0;
  std::int16_t TfHeight = 0;
  std::int16_t TfLeft = 0;
  std::int16_t TfTop = 0;
  std::int16_t TfTransparency = 0;
  std::int32_t TfTranspColor = 0;
  std::int16_t TfWidth = 0;
  std::string TfString;
  std::string DeclarePbl;
  RecordArray<std::string> ComboItems;

  /// The record array of a kind; null for kinds whose records are of another type or none.
  [[nodiscard]] RecordArray<ObjectRec>* Objects(Kind kind) noexcept;
  [[nodiscard]] const RecordArray<ObjectRec>* Objects(Kind kind) const noexcept;
};

}  // namespace tarnwick
