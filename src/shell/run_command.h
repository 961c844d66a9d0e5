// The program that the IDE runs: what it says, how it ends, and the way to a place in the project.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "codegen/source_map.h"
#include "platform/runner_port.h"
#include "project/program_place.h"
#include "shell/run_lines.h"
#include "shell/shell_state.h"

namespace tarnwick {

class DesignSurfaces;
class EventsBar;
class FormCommands;
class PropertySheet;

/// What starts a generated program: the compiler, the runner beside the IDE, or the one that is
/// there, the compiler first.
enum class RunWith : std::uint8_t { Auto, Compiler, Runner };

/// One running program at a time. Its messages are lines of the output panel, and each knows its
/// place in the project as it was when the program was made.
///
///   if (run.Start(std::move(text), std::move(map))) ...
///   run.Jump(3);  // a double click on the panel's line 3
class RunCommand final : public RunListener {
 public:
  /// The rooms through which a jump goes.
  struct Ways {
    FormCommands& Forms;
    DesignSurfaces& Surfaces;
    EventsBar& Bar;
    PropertySheet& Sheet;
  };

  RunCommand(ShellState& state, const Ways& ways) : state_(state), ways_(ways) {}

  /// The runner to use; without one no program is ever started.
  void Use(RunnerPort& runner) noexcept { runner_ = &runner; }
  /// What shows the lines; null for none.
  void SetView(RunLinesView* view) noexcept { view_ = view; }

  [[nodiscard]] bool HasRunner() const noexcept { return runner_ != nullptr; }
  [[nodiscard]] bool Running() const { return runner_ != nullptr && runner_->Running(); }
  /// Runs the source file, whose text and map these are. False when there is no runner.
  bool Start(std::string text, SourceMap map);
  /// Ends the running program; nothing when none runs.
  void Stop();
  /// The same, and compiles again as soon as it has ended.
  void StopAndCompile();

  /// The user's choice, "With" of section "Run" of the settings, as it was read or made last.
  [[nodiscard]] RunWith With();
  /// The same, read again.
  RunWith ReadChoice();
  /// Keeps the choice in the settings and says what F5 starts from now on.
  void Choose(RunWith with);

  /// The project is another one now, and so nothing of the running program has a place in it.
  void ProjectReplaced();

  [[nodiscard]] const RunLines& Lines() const noexcept { return lines_; }
  void ClearLines();
  /// Goes to the place of a line of the panel, from 0: to the code, the declarations or the row of
  /// the property sheet. False when the line has none, or a command runs.
  bool Jump(std::size_t line);

  void RunStarted() override;
  void RunOutput(std::string_view text) override;
  void RunMessaged(const RunMessage& message) override;
  void RunShows(const RunMessage& place) override;
  void RunEnded(RunnerEnd how) override;

 private:
  /// True when a message is about the source that runs, not about a file that it includes.
  [[nodiscard]] bool IsOurs(const RunMessage& message) const;
  bool GoToLine(int source_line);
  [[nodiscard]] std::optional<project::ProgramPlace> PlaceOf(int source_line) const;
  [[nodiscard]] std::string TextOf(const RunMessage& message) const;
  [[nodiscard]] std::string EndText(RunnerEnd how) const;
  void GoTo(const project::ProgramPlace& place);
  /// In the code editor, which is open already.
  void ShowCodeByKey(const project::ProgramPlace& place);
  /// Notifies the view, and opens the panel for the first line of a run and for each error: between
  /// them the user can close it.
  void ShowLines(bool must_see);

  ShellState& state_;
  Ways ways_;
  RunnerPort* runner_ = nullptr;
  RunLinesView* view_ = nullptr;
  RunLines lines_;
  std::string source_;  ///< path of the text that runs
  std::string text_;
  SourceMap map_;
  std::string main_form_;
  std::string first_error_;
  int first_error_line_ = 0;  ///< of the source that runs; 0 for none
  int notes_ = 0;
  bool began_ = false;   ///< its first line has run
  bool opened_ = false;  ///< the panel was opened for this run
  bool compile_again_ = false;
  std::optional<RunWith> with_;
};

}  // namespace tarnwick
