// What a kind of control is: its enumerator, and the row that describes it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "model/kind_rules.h"

namespace tarnwick {

/// The controls of a design form: the object kinds, then the parts that are no objects, in the
/// order in which a new form has them.
enum class Kind : std::uint8_t {
  Button,
  Label,
  Image,
  CheckBox,
  OptionButton,
  TextBox,
  RichTextBox,
  ListBox,
  ComboBox,
  Time,
  OpenDialog,
  SaveDialog,
  FileStream,
  TransparentFrame,
  HtmlViewer,
  WinSock,
  PopUpMenu,
  Menu,      ///< `mnuBar`, a title of the menu bar
  MenuItem,  ///< `ItemMnuBar`, an item under a title
  Numero,    ///< the hidden label with the form's number
  Frame,
  Handle,  ///< `picHandle`
  Form,
};
inline constexpr std::size_t kKindCount = static_cast<std::size_t>(Kind::Form) + 1;
/// The kinds from Button to PopUpMenu: those the tool box places and a form file numbers.
inline constexpr std::size_t kObjectKindCount = static_cast<std::size_t>(Kind::Menu);

/// The tool number of a kind that no tool places.
inline constexpr int kNoTool = -1;

/// The row of a kind. A field that a row does not name keeps the value given here.
struct KindInfo {
  Kind Id{};

  // Words.
  std::string_view Name{};       ///< in files, form list, property sheet and tool box
  std::string_view Tag{};        ///< lower-case array name, by which code compares
  std::string_view Array{};      ///< control array on `FormUser`
  std::string_view NameWord{};   ///< word of `NameObjet`
  std::string_view Prefix{};     ///< of a new object's default name
  std::string_view ComboText{};  ///< suffix in the list of objects, its blanks included

  // On the design form.
  ControlClass Class{};
  EventListId Events = EventListId::None;
  ControlTemplate Template{};
  bool Placed = false;      ///< a press of an armed tool can place it
  bool OnePerForm = false;  ///< a form has one at most, whose name has no index
  SizeRule Size = SizeRule::Free;

  // Records.
  RecordHome Records{};
  RecordArray<std::string> FormRec::*Companion = nullptr;  ///< grows along with the records
  std::span<const RecordDefault> Defaults{};
  TabRule Tab = TabRule::None;
  CopyRule Copy{};
  std::string_view PictureWord{};  ///< in the names of its picture resources; "" for no picture

  int Tool = kNoTool;  ///< the number that chooses its tool
  ProgramRules Program{};
};

}  // namespace tarnwick
