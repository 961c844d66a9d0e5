// Places of the generated program in the user's words, and the way there.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "codegen/source_map.h"
#include "model/project_records.h"

namespace tarnwick::project {

/// A place of the project that a line of the program comes from.
struct ProgramPlace {
  enum class Sort : std::uint8_t { Code, Declarations, Property };
  Sort What = Sort::Code;
  int Form = 0;
  std::string Owner;  ///< of code, as in event keys: "Button1", "Form", or an item's name
  Event Of = Event::OnClick;
  int Line = 0;  ///< of code and declarations, from 1
  Kind Id = Kind::Form;
  int Index = 0;       ///< of a property: the control's index, 0 for the form itself
  std::string Member;  ///< of a property: as the program names it
};

/// The place of a line of the program, whose text is `line_text`; null for lines that the user has
/// no place for.
[[nodiscard]] std::optional<ProgramPlace> PlaceOfLine(const ProjectTables& tables,
                                                      const SourceLine& line,
                                                      std::string_view line_text);
/// The key in `EventTable` of a place in code: "Form1.Button1.OnClick".
[[nodiscard]] std::string CodeKey(const ProgramPlace& place);
/// A place as messages name it: "Form1.Button1.OnClick, line 3".
[[nodiscard]] std::string PlaceText(const ProjectTables& tables, const ProgramPlace& place);

}  // namespace tarnwick::project
