// Findings: what is wrong with a project, and what the user can do about it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/kinds.h"
#include "project/program_place.h"
#include "text/enum_table.h"

namespace tarnwick::project {

enum class Severity : std::uint8_t {
  Note,     ///< the program runs; something in it is never used
  Warning,  ///< the program runs, but not as the project says
  Error,    ///< the program cannot be compiled, or a part of the project was not read
};

enum class FindingId : std::uint8_t {
  FileMissing,
  FileUnreadable,
  NoFormRecord,
  ListedTwice,
  NoRecord,
  NumberLost,
  ValueLost,
  MainFormGone,
  NameEmpty,
  NameDoubled,
  NameReserved,
  NameMalformed,
  NameInBrackets,
  SecondFamily,
  NotDeclared,
  TextQuote,
  TextLineBreak,
  SocketValueEmpty,
  SocketMiscounted,
  PopUpParentGone,
  StrictWithFrame,
  PictureMissing,
  CodeOwnerless,
  CodeLeftOut,
  CodeFaulty,
};
inline constexpr std::size_t kFindingCount = static_cast<std::size_t>(FindingId::CodeFaulty) + 1;

struct FindingInfo {
  FindingId Id;
  Severity How;
  std::string_view ToDo;  ///< what the user can do, a phrase in the imperative
};

inline constexpr std::array<FindingInfo, kFindingCount> kFindings{{
    {FindingId::FileMissing, Severity::Error, "put the file back or save the project without it"},
    {FindingId::FileUnreadable, Severity::Error, "give yourself the right to read the file"},
    {FindingId::NoFormRecord, Severity::Error, "put back the line that begins with [Form]"},
    {FindingId::ListedTwice, Severity::Warning, "take one of its two lines out of the index"},
    {FindingId::NoRecord, Severity::Warning, "correct the line or take it out"},
    {FindingId::NumberLost, Severity::Error, "give the object a number from 1 to 32767"},
    {FindingId::ValueLost, Severity::Warning, "set the property again"},
    {FindingId::MainFormGone, Severity::Error, "choose another with Select Main Form"},
    {FindingId::NameEmpty, Severity::Error, "give it a name"},
    {FindingId::NameDoubled, Severity::Error, "rename one of the two"},
    {FindingId::NameReserved, Severity::Error, "choose another name"},
    {FindingId::NameMalformed, Severity::Error,
     "use letters, digits and _ only, and a letter in front"},
    {FindingId::NameInBrackets, Severity::Error, "choose a name without brackets"},
    {FindingId::SecondFamily, Severity::Error,
     "give all objects of the kind that form an array one name"},
    {FindingId::NotDeclared, Severity::Error,
     "compile while a form with such an object is the current one"},
    {FindingId::TextQuote, Severity::Error, "use ' in its place"},
    {FindingId::TextLineBreak, Severity::Error, "put the text on one line"},
    {FindingId::SocketValueEmpty, Severity::Error, "fill in the row"},
    {FindingId::SocketMiscounted, Severity::Error,
     "keep the sockets of the project on its first form with sockets"},
    {FindingId::PopUpParentGone, Severity::Error, "choose another in the row Parent"},
    {FindingId::StrictWithFrame, Severity::Error,
     "take $TYPECHECK ON out, or the transparent frame off the form"},
    {FindingId::PictureMissing, Severity::Error, "put the file back or choose another"},
    {FindingId::CodeOwnerless, Severity::Note, "move the code to an object that is there"},
    {FindingId::CodeLeftOut, Severity::Note, "move the code to an event that the object has"},
    {FindingId::CodeFaulty, Severity::Error, "correct the code"},
}};
static_assert(HasRowOfEach(kFindings, kFindingCount));

[[nodiscard]] constexpr const FindingInfo& InfoOf(FindingId id) noexcept {
  return kFindings[static_cast<std::size_t>(id)];
}

/// One finding. All texts are in Windows-1252.
struct Finding {
  FindingId Id = FindingId::FileMissing;
  int Form = 0;            ///< its number; 0 for the project as a whole
  Kind Of = Kind::Form;    ///< kind of the object; Form for the form itself
  int Index = 0;           ///< of the object in its control array
  std::string Place{};     ///< form and object by their names, "Form1.Btn1"; "" for the project
  std::string_view Row{};  ///< the row of the property grid, "Caption"; "" for none
  std::string Text{};      ///< what is wrong
  std::string Remedy{};    ///< what to do, where more is known than for every finding of its sort
  std::optional<ProgramPlace> In{};  ///< the line, of a fault of code

  [[nodiscard]] Severity How() const noexcept { return InfoOf(Id).How; }
  [[nodiscard]] std::string_view ToDo() const noexcept {
    return Remedy.empty() ? InfoOf(Id).ToDo : std::string_view(Remedy);
  }
  /// The whole finding in one line: place, what is wrong, what to do.
  [[nodiscard]] std::string Line() const;
};

/// True for kinds whose objects can share an array: the generator declares it by its stem.
[[nodiscard]] bool FormsArrays(Kind kind) noexcept;
/// What is wrong with a name on its own, for a field in which it is typed; nothing for a good one.
/// An array's name, such as "Cmd(1)", is good for the kinds that form arrays. The items of popup
/// menus count as PopUpMenu. Doubled names are found by CheckProject.
[[nodiscard]] std::optional<FindingId> FaultOfName(std::string_view name, Kind kind);
/// The sentence that goes with a fault of a name: "the name End is a word of the language".
[[nodiscard]] std::string TextOfNameFault(FindingId fault, std::string_view name);

}  // namespace tarnwick::project
