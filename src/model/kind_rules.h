// What a kind is: the fields of its row in the table of kinds.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "model/form_record.h"
#include "model/members.h"
#include "model/vocabulary.h"

namespace tarnwick {

/// The controls that a new design form has of a kind.
struct ControlTemplate {
  int Elements = 1;  ///< 1 is the template alone; 0 for a kind that is no control
  int Width = 0;     ///< pixels
  int Height = 0;    ///< pixels
  std::int32_t BackColor = 12632256;
};

/// How a control's size takes part in a gesture.
enum class SizeRule : std::uint8_t { Free, KeepsHeight, KeepsBoth };

/// Where the tab order of a new object goes. All but None raise the form's running number.
enum class TabRule : std::uint8_t {
  None,
  Own,          ///< into the object's record
  InTextBoxes,  ///< into the record of the TextBox of the same index, if there is one
  CountOnly,    ///< nowhere
};

/// The array of a form that holds a kind's records; empty for a kind without records.
using RecordHome =
    std::variant<std::monostate, RecordArray<ObjectRec> FormRec::*,
                 RecordArray<WinSockRec> FormRec::*, RecordArray<HtmlViewerRec> FormRec::*,
                 RecordArray<PopUpItemRec> FormRec::*>;

/// A field of a record.
using RecordField =
    std::variant<std::int16_t ObjectRec::*, std::int32_t ObjectRec::*, std::string ObjectRec::*,
                 std::string WinSockRec::*, std::string HtmlViewerRec::*,
                 std::int16_t PopUpItemRec::*, std::string PopUpItemRec::*, std::int16_t FormRec::*,
                 std::int32_t FormRec::*, std::string FormRec::*>;

/// The name of the object's form, as a value.
struct NameOfForm {};

/// What a field of a new record holds beyond the empty text and zero of all others.
struct RecordDefault {
  RecordField Field;
  std::variant<std::int16_t, std::string_view, NameOfForm> Value;
  /// An array whose record of the same index takes the value, where there is one, in place of the
  /// object's own record.
  RecordArray<ObjectRec> FormRec::*Into = nullptr;
};

/// What a paste makes of a kind.
struct CopyRule {
  bool Copied = false;        ///< false: a paste makes nothing
  std::string_view Prefix{};  ///< of the copy's name, where it differs from a new object's
  /// Kinds without a tab order of their own are counted all the same, but for labels and images.
  TabRule Tab = TabRule::CountOnly;
  std::span<const RecordField> Fields{};  ///< those of its record that the copy takes over
  std::optional<Member> First{};          ///< the member that the copy takes before all others
};

/// How the generated program declares the objects of a kind.
enum class DimRule : std::uint8_t {
  None,
  Plain,      ///< every object by its name
  Stem,       ///< names in array form: one line with the stem and the highest index
  WholeName,  ///< the same, but with the whole name in front of the highest index
  FirstOnly,  ///< object 1 alone
  PopUps,     ///< every object, each followed by its items
  MenuBar,    ///< the menu bar, its titles and items
};

struct Declaration {
  DimRule Rule = DimRule::None;
  std::string_view Class{};  ///< with the capitals that the language's users know
  int Order = 0;             ///< among the kinds, from 1
  /// The kind is declared only while the form in focus has an object of it too.
  bool FocusGuard = false;
};

/// What the generated set-up of a form writes for an object of a kind.
enum class SetUpRule : std::uint8_t {
  None,
  OwnLines,  ///< the lines of its kind only
  AllLines,  ///< the common lines, those of its kind, and the hooks of its events
  PopUp,     ///< a popup menu with its items
  MenuBar,   ///< the menu bar, at its first title
};

/// How the generator's loops over event code treat an object of a kind.
enum class EventWalk : std::uint8_t {
  PassedOver,
  Unnumbered,  ///< looked up under the running number of the object before it
  Numbered,    ///< steps the running number of its kind
};

/// How long the generator keeps the running number of a kind.
enum class CounterLife : std::uint8_t {
  Walk,     ///< set back before each walk over event code
  Form,     ///< set back before each form's set-up
  Process,  ///< never set back
};

/// What the generator does with a kind.
struct ProgramRules {
  Declaration Dim{};
  SetUpRule SetUp = SetUpRule::None;
  /// Members that the control has, but that no common line writes.
  MemberSet HeldBack = SetOf({Member::Appearance});
  EventWalk Events = EventWalk::PassedOver;
  CounterLife Counter = CounterLife::Walk;
};

}  // namespace tarnwick
