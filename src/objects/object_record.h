// The record of an object: the truth of which a widget is the view.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "basic/hosts/file_host.h"
#include "basic/hosts/object_host.h"
#include "objects/class_table.h"

namespace tarnwick::objects {

using basic::ObjectId;
using basic::Value;

/// Entries of a list box, list of files, drop-down list, string list or tab control, in order.
struct ListItems {
  struct Item {
    std::string Text;
    bool Selected = false;  ///< of a list box with MultiSelect
  };
  std::vector<Item> Items;
  std::uint32_t FileTypes =
      64;               ///< of a list of files, bit n: files of kind n; plain ones at first
  bool Filled = false;  ///< of a list of files: the folder was read
};

/// Rows below a menu or menu item, in order; and for a main menu the forms on which it hangs.
struct MenuRows {
  std::vector<ObjectId> Rows;
  std::vector<ObjectId> Forms;
};

/// Bytes in memory, or an open file, with a position.
struct StreamState {
  std::unique_ptr<basic::FileStream> File;  ///< null: closed, or a stream in memory
  std::string Bytes;                        ///< of a stream in memory
  std::int64_t Position = 0;                ///< of a stream in memory
  std::string Path;
};

/// The files picked in a dialog, full paths; and the options of the dialog.
struct PickedFiles {
  std::vector<std::string> Files;
  std::int64_t Options = 0;  ///< bit n: option n
};

/// Where each line of a text begins; filled when asked for and emptied when the text changes.
struct TextLines {
  std::vector<std::size_t> Starts;
};

/// The cells of a grid that were set, by row * 65536 + column; sizes in pixels of the columns and
/// rows that have one of their own.
struct GridCells {
  std::map<std::uint32_t, std::string> Texts;
  std::map<int, int> ColumnWidths;
  std::map<int, int> RowHeights;
  std::uint32_t Options = 31;  ///< bit n: option n; lines and a range of cells at first
};

/// The panels of a status bar, objects of their own, from the left.
struct Panels {
  std::vector<ObjectId> All;
};

/// Items of a list with columns, in order. The first text of an item is its caption.
struct ListRows {
  struct Column {
    std::string Caption;
    int Width = 50;     ///< pixels
    int Alignment = 0;  ///< 0 left, 1 right, 2 centre
  };
  struct Row {
    std::vector<std::string> Texts;
    int Image = -1;  ///< index of its picture; -1: none
    bool Checked = false;
    bool Selected = false;  ///< of a list with MultiSelect
  };
  std::vector<Column> Columns;
  std::vector<Row> Rows;
  std::vector<ObjectId> ItemObjects;    ///< that stand for rows, by index; made when asked for
  std::vector<ObjectId> ColumnObjects;  ///< that stand for columns
};

/// Nodes of a tree: each one in front of those below it, which have the next level.
struct TreeNodes {
  struct Node {
    std::string Text;
    int Level = 0;
    bool Expanded = false;
    int Image = -1;          ///< index of its picture; -1: none
    int SelectedImage = -1;  ///< of its picture while it is picked; -1: the same
  };
  std::vector<Node> All;
  std::vector<ObjectId> Objects;  ///< that stand for nodes, by index; made when asked for
};

/// What a form keeps besides its properties.
struct FormState {
  bool Centered = false;           ///< placed in the middle of the screen when it is shown
  bool Modal = false;              ///< ShowModal waits for it
  bool Shown = false;              ///< has been shown once
  ObjectId Menu = ObjectId::None;  ///< the main menu that hangs on it
  std::int64_t Icons = 7;          ///< buttons of its title bar, bit n: icon n
};

using ObjectState = std::variant<std::monostate, ListItems, MenuRows, StreamState, PickedFiles,
                                 TextLines, GridCells, Panels, ListRows, TreeNodes, FormState>;

/// One object of the running program.
struct ObjectRecord {
  ObjectId Id = ObjectId::None;
  basic::ClassId Class{};
  std::string Name;  ///< of the variable, as first written; of an array the name of the array
  int Index = -1;    ///< of an element of an array; else -1
  ObjectId Parent = ObjectId::None;
  std::vector<ObjectId> Children;       ///< in the order in which they got this parent
  std::vector<Value> Values;            ///< of the properties, by `MemberInfo::Slot`
  std::vector<basic::EventHook> Hooks;  ///< of the events, by `MemberInfo::Slot`
  std::uint64_t Order = 0;              ///< grows with each object that is made
  int Handlers = 0;                     ///< handlers of its events that are running
  bool Drawn = false;                   ///< a drawing method was called
  bool Realised = false;                ///< a widget shows it
  ObjectState State;

  [[nodiscard]] const ClassInfo& Info() const { return InfoOf(Class); }
  [[nodiscard]] bool Is(ObjectClass kind) const {
    return Class == static_cast<basic::ClassId>(kind);
  }
  [[nodiscard]] bool Has(Word property) const { return Info().Find(property) != nullptr; }
  /// The value of a property; Empty (which reads as 0, "" and no object) when the class has none of
  /// that name.
  [[nodiscard]] const Value& At(Word property) const;
  [[nodiscard]] std::int64_t Number(Word property) const { return At(property).AsInteger(); }
  [[nodiscard]] bool Truth(Word property) const { return Number(property) != 0; }
  [[nodiscard]] std::string_view Text(Word property) const { return At(property).View(); }
  [[nodiscard]] ObjectId Object(Word property) const { return At(property).AsObject(); }
  /// True when a procedure is tied to the event.
  [[nodiscard]] bool IsHooked(Word event) const;
  /// "Form1", "Cmd(2)".
  [[nodiscard]] std::string FullName() const;
  /// What an object of its class keeps besides its properties; null when that is something else.
  template <class Kept>
  [[nodiscard]] const Kept* As() const {
    return std::get_if<Kept>(&State);
  }
  template <class Kept>
  [[nodiscard]] Kept* As() {
    return std::get_if<Kept>(&State);
  }

  /// Stores a value as it is. Nothing when the class has no such property.
  void Put(Word property, Value value);
};

/// A font as an object has it.
struct FontValues {
  std::string Name = "MS Sans Serif";
  std::int64_t Size = 8;  ///< points
  std::int64_t Color = 0;
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  bool StrikeOut = false;
  friend bool operator==(const FontValues&, const FontValues&) = default;
};

}  // namespace tarnwick::objects
