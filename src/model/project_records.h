// The project tables and their records: all that a project is while it is open.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/design_form.h"
#include "model/event_table.h"
#include "model/form_list.h"
#include "model/record_array.h"

namespace tarnwick {

inline constexpr std::string_view kNoPicture = "(None)";
/// True when a record's picture path names a picture.
[[nodiscard]] inline bool HasPicturePath(std::string_view path) noexcept {
  return !path.empty() && path != kNoPicture;
}
inline constexpr std::string_view kDefaultFile = "(Default)";
inline constexpr std::string_view kFirstMainForm = "Form1 ()";

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
};

struct WinSockRec {
  std::string Family;
  std::string Protocol;
  std::string Type;
  std::string WMessage;
};

struct HtmlViewerRec {
  std::string Navigate;  ///< the page to open
  std::string Left;
  std::string Top;
  std::string Width;
  std::string Height;
};

struct PopUpItemRec {
  std::int16_t Alignment = 0;
  std::int16_t AutoPopUp = 0;
  std::string PopUpMenu;  ///< name of the object that the popup hangs on
};

/// A sub-item of a popup menu.
struct PopUpEntryRec {
  std::string Name;
  std::string Text;
};

/// A top-level row of a popup menu; slot 0 of `Entries` stays empty.
struct PopUpMenuRec {
  std::vector<PopUpEntryRec> Entries;
  std::string Name;
  std::string Caption;
  std::int16_t Level = 0;  ///< number of its sub-items
};

/// One popup menu; slot 0 of `Items` stays empty.
struct PopUpFormRec {
  std::vector<PopUpMenuRec> Items;
  std::int16_t Removed = 0;
};

/// A title of the menu bar.
struct MenuBarRec {
  std::string Caption;
  std::string Tag;
  std::string Reserved;
  std::string Name;
  std::int32_t LastItem = 0;
};

/// An item of the menu bar; items of all titles count through.
struct MenuItemRec {
  std::string Caption;
  std::int16_t Parent = 0;
  std::string Tag;
  std::string Name;
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

/// The events bar of a form: which objects have code, in the order in which they were told.
struct FrmBarra {
  struct Entry {
    std::string Name;   ///< as in event keys: kind word and index, "Form", or a menu item's name
    std::string Event;  ///< event name without a dot
  };
  std::string Caption;
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Height = 50;
  std::vector<Entry> Entries;
};

/// Process-wide state of the open project. The shell owns the one instance and hands it on by
/// reference; no unit keeps a second copy of anything in it.
struct ProjectTables {
  std::int16_t FormsCount = 0;
  std::vector<FormRec> FormsTable{1};
  std::vector<std::unique_ptr<DesignForm>> FormsUser{};
  std::vector<std::unique_ptr<FrmBarra>> FormsBar{};
  RecordArray<PopUpFormRec> PopUpMenus;
  DesignForm* CurrentForm = nullptr;
  EventCodeTable EventTable;
  std::string MainFormName{kFirstMainForm};
  std::string ProjectFile;
  std::string SourceFile;
  std::string ExeFile;
  std::string AccionProject;
  std::string JumpKey;
  std::int16_t LoadingProject = 0;
  std::vector<std::string> MenuRows{1};
  std::vector<MenuBarRec> MenuTitles{1};
  std::vector<MenuItemRec> MenuItems{1};
  FormList ListaFrms;
  std::string ProgramFolder;  ///< without a closing "\"

  /// The record of a form number; null outside 0 to `FormsCount`.
  [[nodiscard]] FormRec* Form(int number) noexcept;
  [[nodiscard]] const FormRec* Form(int number) const noexcept;
  /// True for a number in use whose form was not removed.
  [[nodiscard]] bool IsLive(int number) const noexcept;
  /// The design window of a form number; an empty slot is filled on first touch. Null outside
  /// 1 to `FormsCount`.
  DesignForm* User(int number);
  [[nodiscard]] const DesignForm* UserIfAny(int number) const noexcept;
  FrmBarra* Bar(int number);
  /// The record of a design window, by the number its hidden label holds; null when it has none.
  [[nodiscard]] FormRec* RecordOf(const DesignForm& form) noexcept;
  [[nodiscard]] const FormRec* RecordOf(const DesignForm& form) const noexcept;

  /// Grows the form arrays by one keeping contents, raises `FormsCount`, and returns the new
  /// number; 0 when the 16-bit range is used up.
  int GrowForms();
  /// Empties menu rows, titles and items down to slot 0.
  void ClearMenuArrays();
  /// Drops all forms, code, menus and popups; paths and `MainFormName` stay.
  void Reset();
  /// `ProjectFile` up to and including its last "\".
  [[nodiscard]] std::string ProjectFolder() const;
};

/// The path of a file named in a record: as it stands when its first three characters equal those
/// of the program folder, otherwise relative to the project.
[[nodiscard]] std::string ResolveProjectPath(const ProjectTables& tables, std::string_view path,
                                             bool ignore_case);

/// Resource name of a picture: "Frm" form "Btn" or "Image" index "_Bmp".
[[nodiscard]] std::string PictureResourceName(int form, Kind kind, int index);

}  // namespace tarnwick
