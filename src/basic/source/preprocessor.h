// From the main file to the tokens of the whole program: directives and macros.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "basic/source/arena.h"
#include "basic/source/logical_line.h"
#include "basic/source/macro_table.h"
#include "basic/source/messages.h"
#include "basic/source/source_set.h"
#include "basic/source/source_token.h"

namespace tarnwick::basic {

/// Where includes are looked for.
struct SourceOptions {
  std::string ProgramFolder;  ///< without "\" at the end; "" for none
};

/// Reads the program whose main file is file 0 of the set, a line at a time. Carries out $INCLUDE,
/// $DEFINE, $UNDEF, $IFDEF, $IFNDEF, $ELSE, $ENDIF, $MACRO and $ESCAPECHARS, drops $OPTIMIZE, and
/// hands the other directives on. Faults go to `messages`; when those are full the program ends
/// there. The views of the tokens point into the source set and into this.
class Preprocessor final : public TokenLines {
 public:
  Preprocessor(SourceSet& files, SourceReader& reader, SourceOptions options, Messages& messages);

  void Next(std::vector<SourceToken>& line) override;

 private:
  using Tokens = std::vector<SourceToken>;
  using Handler = void (Preprocessor::*)(const Tokens& line, std::string_view rest);
  struct Row {
    std::string_view Name;
    Handler Run;
    bool Always;  ///< also where lines are passed over
  };
  static const std::array<Row, 10> kRows;

  /// A file that is being read, and how many conditions were open when it began.
  struct OpenFile {
    LineReader Lines;
    std::uint16_t Index;
    std::size_t Conditions;
  };
  /// One $IFDEF that is open.
  struct Condition {
    SourcePlace At;
    bool Outer;  ///< the lines around it count
    bool Holds;  ///< the lines of the present branch count
    bool Else;   ///< $ELSE has been met
  };

  void OpenUp(std::uint16_t file);
  void CloseFile();
  [[nodiscard]] bool Counts() const { return conditions_.empty() || conditions_.back().Holds; }
  [[nodiscard]] bool IsSettled(const Tokens& line) const;
  bool FinishLine(Tokens& line);
  void FollowRoutines(const Tokens& line);
  bool TakeDirective(Tokens& line, std::string_view rest);
  const SourceToken* NameOf(const Tokens& line);
  void Include(const Tokens& line, std::string_view rest);
  void Define(const Tokens& line, std::string_view rest);
  void Undefine(const Tokens& line, std::string_view rest);
  void AddMacro(const Tokens& line, std::string_view rest);
  void Open(const Tokens& line, bool wanted);
  void IfDefined(const Tokens& line, std::string_view rest);
  void IfNotDefined(const Tokens& line, std::string_view rest);
  void Else(const Tokens& line, std::string_view rest);
  void EndIf(const Tokens& line, std::string_view rest);
  void EscapeChars(const Tokens& line, std::string_view rest);
  void PassOver(const Tokens& line, std::string_view rest);

  SourceSet& files_;
  SourceReader& reader_;
  SourceOptions options_;
  Messages& messages_;
  Arena memory_;
  MacroTable macros_;
  std::vector<OpenFile> open_;
  std::vector<Condition> conditions_;
  SourcePlace end_;  ///< of the last line
  bool escapes_ = false;
  bool seen_include_ = false;
  bool in_routine_ = false;
};

}  // namespace tarnwick::basic
