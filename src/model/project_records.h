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
#include "model/form_record.h"
#include "model/record_array.h"

namespace tarnwick {

inline constexpr std::string_view kFirstMainForm = "Form1 ()";

/// A sub-item of a popup menu.
struct PopUpEntryRec {
  std::string Name;
  std::string Text;
  friend bool operator==(const PopUpEntryRec&, const PopUpEntryRec&) = default;
};

/// A top-level row of a popup menu; slot 0 of `Entries` stays empty.
struct PopUpMenuRec {
  std::vector<PopUpEntryRec> Entries;
  std::string Name;
  std::string Caption;
  std::int16_t Level = 0;  ///< number of its sub-items
  friend bool operator==(const PopUpMenuRec&, const PopUpMenuRec&) = default;
};

/// One popup menu; slot 0 of `Items` stays empty.
struct PopUpFormRec {
  std::vector<PopUpMenuRec> Items;
  std::int16_t Removed = 0;
  friend bool operator==(const PopUpFormRec&, const PopUpFormRec&) = default;
};

/// A title of the menu bar.
struct MenuBarRec {
  std::string Caption;
  std::string Tag;
  std::string Reserved;
  std::string Name;
  std::int32_t LastItem = 0;
  friend bool operator==(const MenuBarRec&, const MenuBarRec&) = default;
};

/// An item of the menu bar; items of all titles count through.
struct MenuItemRec {
  std::string Caption;
  std::int16_t Parent = 0;
  std::string Tag;
  std::string Name;
  friend bool operator==(const MenuItemRec&, const MenuItemRec&) = default;
};

/// The events bar of a form: the objects that have code, in the order in which it was added.
struct FrmBarra {
  struct Entry {
    std::string Name;   ///< as in event keys: kind word and index, "Form", or a menu item's name
    std::string Event;  ///< event name without a dot
    friend bool operator==(const Entry&, const Entry&) = default;
  };
  std::string Caption;
  std::int32_t Left = 0;
  std::int32_t Top = 0;
  std::int32_t Height = 50;
  std::vector<Entry> Entries;
};

/// Process-wide state of the open project. The shell owns the one instance and passes it by
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
  std::string ProgramFolder;     ///< without a closing "\"
  std::string ExecutableFolder;  ///< where the program itself lies, likewise; "" when not known

  ProjectTables();
  ProjectTables(ProjectTables&& other) noexcept;
  ProjectTables& operator=(ProjectTables&& other) noexcept;
  ~ProjectTables();

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

/// The path of a file named in a record: unchanged when its first three characters equal those
/// of the program folder, otherwise relative to the project.
[[nodiscard]] std::string ResolveProjectPath(const ProjectTables& tables, std::string_view path,
                                             bool ignore_case);

/// Resource name of a picture: "Frm", form, the kind's word for pictures, index, "_Bmp".
[[nodiscard]] std::string PictureResourceName(int form, Kind kind, int index);

}  // namespace tarnwick
