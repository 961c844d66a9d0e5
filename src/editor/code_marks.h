// The mistakes of a code that is being typed.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basic/source/source_set.h"
#include "model/project_records.h"
#include "platform/ports.h"

namespace tarnwick::editor {

/// One mistake. Lines and columns count from 0, columns and lengths in characters.
struct CodeMark {
  enum class Sort {
    Error,  ///< the program cannot start
    Note,   ///< it starts, but this line does not do what it seems to
  };
  Sort What = Sort::Error;
  int Line = 0;
  int Column = 0;
  int Length = 0;    ///< at least 1; it may reach past the end of the line
  std::string Text;  ///< what is wrong and, where it is known, what to do about it

  friend bool operator==(const CodeMark&, const CodeMark&) = default;
};

/// Finds mistakes with the language's own reader and parser: texts without closing quote, blocks
/// without end, statements that cannot be read. Names are not looked up, because other forms and
/// the generated lines declare many of them.
///
/// A text is read as the generated program will hold it: behind the Public Declarations, whose
/// macros and directives count in it. When a file that they include is not there, its macros are
/// unknown, so only what does not depend on macros is reported.
class CodeMarks {
 public:
  CodeMarks(const ProjectTables& project, FilePort& files) : project_(project), files_(files) {}

  /// The marks of an event's code, sorted by place. The code is what stands between `Sub` and
  /// `End Sub`, and may itself end that Sub and begin others.
  [[nodiscard]] std::vector<CodeMark> OfEvent(std::string_view code);
  /// The marks of a form's Public Declarations. Forms behind it do not count in them.
  [[nodiscard]] std::vector<CodeMark> OfDeclarations(int form, std::string_view text);
  /// Reads included files again at the next check.
  void ForgetFiles() { included_.clear(); }

 private:
  /// The Public Declarations of the forms in front of a number, each ending with a line end.
  [[nodiscard]] std::string DeclarationsBefore(int form) const;
  [[nodiscard]] std::vector<CodeMark> Check(std::string_view before, std::string_view head,
                                            std::string_view text, std::string_view tail);

  /// Reads included files once and keeps them.
  class Sources;

  const ProjectTables& project_;
  FilePort& files_;
  std::map<std::string, std::optional<std::string>> included_;
};

}  // namespace tarnwick::editor
