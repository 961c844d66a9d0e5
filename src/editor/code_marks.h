// The mistakes of a code that is being typed.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// Checks a text, with copies of all that it reads besides: it may run on another thread.
class CodeCheck {
 public:
  /// What included files hold, by path; nothing for one that is not there.
  using Files = std::map<std::string, std::optional<std::string>>;
  struct Found {
    std::vector<CodeMark> Marks;  ///< sorted by place
    /// Files that the program includes and the check does not know. They are taken as missing: to
    /// be read, and the text checked again.
    std::vector<std::string> Unread;
  };

  [[nodiscard]] Found Run(std::string_view text) const;

 private:
  friend class CodeMarks;
  class Sources;
  [[nodiscard]] std::vector<CodeMark> MarksOf(std::string_view text, std::string_view before,
                                              Sources& reader) const;

  std::string project_file_;
  std::string program_folder_;
  std::string before_;  ///< what the program holds ahead of the text
  /// What it may hold there as well; "" for nothing else. A mistake is one behind both.
  std::string other_before_;
  std::string_view head_;
  std::string_view tail_;
  std::shared_ptr<const Files> files_;
};

/// Finds mistakes with the language's own reader and parser: texts without closing quote, blocks
/// without end, statements that cannot be read. Names are not looked up, because other forms and
/// the generated lines declare many of them.
///
/// A text is read as the generated program will hold it: behind the program's own include file and
/// the Public Declarations, whose macros and directives count in it. The code of other events may
/// define macros too; whether it stands ahead of the text or behind it, what is no mistake with
/// them or without them is not marked. When a file that the declarations include is not there, its
/// macros are unknown, so only what does not depend on macros is reported.
class CodeMarks {
 public:
  CodeMarks(const ProjectTables& project, FilePort& files) : project_(project), files_(files) {}

  /// The check of the code of the event with this key. The code is what stands between `Sub` and
  /// `End Sub`, and may itself end that Sub and begin others.
  [[nodiscard]] CodeCheck EventCheck(std::string_view key) const;
  /// The check of a form's Public Declarations. Forms behind it do not count in them.
  [[nodiscard]] CodeCheck DeclarationsCheck(int form) const;
  /// Reads files for the checks that are made from now on.
  void Read(const std::vector<std::string>& paths);
  /// Reads included files again at the next check.
  void ForgetFiles() { included_ = std::make_shared<const CodeCheck::Files>(); }

 private:
  [[nodiscard]] CodeCheck MakeCheck() const;
  /// The include file and the declarations of the forms in front of a number, each ending with a
  /// line end.
  [[nodiscard]] std::string DeclarationsBefore(int form) const;
  [[nodiscard]] std::string MacrosOfEvents(std::string_view but_key) const;

  const ProjectTables& project_;
  FilePort& files_;
  /// What was read so far; checks that run share it.
  std::shared_ptr<const CodeCheck::Files> included_ = std::make_shared<const CodeCheck::Files>();
};

}  // namespace tarnwick::editor
