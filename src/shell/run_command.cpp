#include "shell/run_command.h"

#include <utility>

#include "codegen/program_source.h"
#include "editor/code_target.h"
#include "inspector/property_sheet.h"
#include "shell/design_surfaces.h"
#include "shell/events_bar.h"
#include "shell/form_commands.h"
#include "shell/status_text.h"
#include "text/code_page.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

constexpr SettingKey kRunWith{"Run", "With"};

struct RunWithRow {
  RunWith With;
  std::string_view Word;  ///< of the settings file
  std::string_view Status;
};
/// The choices, by enumerator.
constexpr RunWithRow kRunWithRows[] = {
    {RunWith::Auto, "auto", "F5 starts Rc.exe, and the runner where there is none"},
    {RunWith::Compiler, "compiler", "F5 starts Rc.exe"},
    {RunWith::Runner, "runner", "F5 starts the runner, tarnwick-run"},
};

/// The name of a file, however its path is written.
std::string_view FileNameOf(std::string_view path) {
  const std::size_t slash = path.find_last_of("\\/");
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

}  // namespace

RunWith RunCommand::ReadChoice() {
  const std::string word = state_.Settings.Read(kRunWith);
  with_ = RunWith::Auto;
  for (const RunWithRow& row : kRunWithRows) {
    if (EqualsFolded(row.Word, word)) with_ = row.With;
  }
  return *with_;
}

RunWith RunCommand::With() {
  return with_ ? *with_ : ReadChoice();
}

void RunCommand::Choose(RunWith with) {
  with_ = with;
  const RunWithRow& row = kRunWithRows[static_cast<std::size_t>(with)];
  state_.Settings.Write(kRunWith, row.Word);
  state_.Say(row.Status);
  state_.View->CommandsChanged();
}

bool RunCommand::Start(std::string text, SourceMap map) {
  if (runner_ == nullptr) return false;
  const ProjectTables& tables = state_.Tables;
  source_ = tables.SourceFile;
  text_ = std::move(text);
  map_ = std::move(map);
  main_form_ = FirstShownForm(tables);
  first_error_.clear();
  first_error_line_ = 0;
  notes_ = 0;
  began_ = false;
  opened_ = false;
  compile_again_ = false;
  ClearLines();
  const bool started = runner_->Start({source_, tables.ProgramFolder, tables.ExeFile}, *this);
  if (started) state_.View->CommandsChanged();
  return started;
}

void RunCommand::Stop() {
  compile_again_ = false;
  if (Running()) runner_->Stop();
}

void RunCommand::StopAndCompile() {
  Stop();
  compile_again_ = true;
}

void RunCommand::ProjectReplaced() {
  map_ = {};
  text_.clear();
  lines_.ForgetPlaces();
}

void RunCommand::ClearLines() {
  lines_.Clear();
  if (view_ != nullptr) view_->RunLinesChanged();
}

void RunCommand::ShowLines(bool must_see) {
  if (view_ != nullptr) view_->RunLinesChanged();
  if (!must_see && std::exchange(opened_, true)) return;
  opened_ = true;
  if (!state_.IsShown(Panel::Output)) state_.ShowPanel(Panel::Output, true);
}

void RunCommand::RunStarted() {
  began_ = true;
  state_.Say("Running " + main_form_);
}

void RunCommand::RunOutput(std::string_view text) {
  lines_.Print(text);
  ShowLines(false);
}

void RunCommand::RunMessaged(const RunMessage& message) {
  const bool error = message.Severity == RunSeverity::Error;
  std::string text = TextOf(message);
  const int line = IsOurs(message) ? message.Line : 0;
  if (error && first_error_.empty()) {
    first_error_ = text;
    first_error_line_ = line;
    // The program goes on showing its own message; what happened is known already.
    if (began_) state_.Say("Stopped: " + text);
  }
  if (!error) ++notes_;
  lines_.Add(error ? RunLines::Sort::Error : RunLines::Sort::Note, std::move(text), line);
  ShowLines(error);
}

void RunCommand::RunShows(const RunMessage& place) {
  if (IsOurs(place)) GoToLine(place.Line);
}

bool RunCommand::IsOurs(const RunMessage& message) const {
  return EqualsFolded(FileNameOf(message.File), FileNameOf(source_));
}

void RunCommand::RunEnded(RunnerEnd how) {
  state_.View->CommandsChanged();
  const bool compile_again = std::exchange(compile_again_, false);
  // What cannot be run is shown where it stands.
  if (how == RunnerEnd::SourceFaulty && !compile_again && PlaceOf(first_error_line_)) {
    GoToLine(first_error_line_);
  }
  state_.Say(EndText(how));
  // While a command runs the program is not started again: the user asks for it then.
  if (compile_again && !state_.Busy) state_.Run(Command::Compile);
}

std::optional<project::ProgramPlace> RunCommand::PlaceOf(int source_line) const {
  if (source_line <= 0) return std::nullopt;
  const auto line = map_.At(static_cast<std::size_t>(source_line));
  if (!line) return std::nullopt;
  return project::PlaceOfLine(state_.Tables, *line,
                              LineOf(text_, static_cast<std::size_t>(source_line)));
}

std::string RunCommand::TextOf(const RunMessage& message) const {
  std::string text;
  if (const std::optional<project::ProgramPlace> place =
          IsOurs(message) ? PlaceOf(message.Line) : std::nullopt) {
    text = project::PlaceText(state_.Tables, *place) + ": ";
  } else if (message.Line > 0) {
    text.append(FileNameOf(message.File)).append(", line ");
    text.append(NumberText(std::int64_t{message.Line})).append(": ");
  }
  return text + message.Text;
}

std::string RunCommand::EndText(RunnerEnd how) const {
  const auto with_error = [&](std::string_view what) {
    return first_error_.empty() ? main_form_ + " stopped"
                                : std::string(what).append(": ").append(first_error_);
  };
  switch (how) {
    case RunnerEnd::Ended: {
      std::string text = main_form_ + " ended";
      if (notes_ > 0) {
        text.append(". ").append(NumberText(std::int64_t{notes_}));
        text.append(notes_ == 1 ? " note" : " notes");
      }
      return text;
    }
    case RunnerEnd::SourceFaulty:
      return with_error("Not started");
    case RunnerEnd::RunTimeError:
    case RunnerEnd::Stopped:
      return with_error("Stopped");
    case RunnerEnd::Limit:
      return main_form_ + " stopped";
    case RunnerEnd::BadUsage:
    case RunnerEnd::RunnerFault:
      break;
  }
  const std::string text = "The runner failed while " + main_form_ + " ran";
  return first_error_.empty() ? text : text + ": " + first_error_;
}

bool RunCommand::Jump(std::size_t line) {
  return line < lines_.All().size() && GoToLine(lines_.All()[line].SourceLine);
}

bool RunCommand::GoToLine(int source_line) {
  if (state_.Busy) return false;
  const std::optional<project::ProgramPlace> place = PlaceOf(source_line);
  if (place) {
    GoTo(*place);
  } else if (source_line > 0) {
    state_.Say("Line " + NumberText(std::int64_t{source_line}) + " of " + source_);
  }
  return place.has_value();
}

void RunCommand::ShowCodeByKey(const project::ProgramPlace& place) {
  std::string key = project::CodeKey(place);
  const std::string_view owner = std::string_view(key).substr(0, key.rfind('.'));
  // Nothing can be selected while the editor is open: of what is selected the event is enough,
  // and for all else the whole key says what is meant.
  const DesignForm* const current = state_.Tables.CurrentForm;
  const bool selected =
      current != nullptr &&
      EqualsFolded(editor::KeyPrefixOf(editor::TargetOfSelection(*current)), owner);
  state_.Tables.JumpKey = selected ? std::string(InfoOf(place.Of).Name) : std::move(key);
  state_.Busy = true;
  state_.Code->OpenCode();
  state_.Busy = false;
  state_.Code->ShowLine(place.Line);
}

void RunCommand::GoTo(const project::ProgramPlace& place) {
  if (state_.Code->IsCodeOpen()) {
    if (place.What == project::ProgramPlace::Sort::Code) return ShowCodeByKey(place);
    state_.Code->BringCodeToFront();
    return;
  }
  ways_.Forms.BringUp(place.Form);
  switch (place.What) {
    case project::ProgramPlace::Sort::Declarations:
      state_.Run(Command::PublicDeclarations);
      state_.Code->ShowLine(place.Line);
      return;
    case project::ProgramPlace::Sort::Code: {
      ways_.Bar.btncodigo_Click(place.Owner);
      const auto& rows = ways_.Bar.ProssItem();
      for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row] != InfoOf(place.Of).Name) continue;
        ways_.Bar.ProssItem_Click(static_cast<int>(row));
        state_.Code->ShowLine(place.Line);
        return;
      }
      return;
    }
    case project::ProgramPlace::Sort::Property: {
      FormUser* const surface = ways_.Surfaces.Of(place.Form);
      if (surface == nullptr) return;
      if (place.Id == Kind::Form) {
        surface->SelectForm();
      } else if (const ControlRef control = surface->Form().Element(place.Id, place.Index)) {
        surface->SelectObject(control);
      }
      PropertySheet& sheet = ways_.Sheet;
      for (int row = 0; row < sheet.RowCount(); ++row) {
        if (EqualsFolded(sheet.Label(row), place.Member)) return sheet.SelectRow(row);
      }
      return;
    }
  }
}

}  // namespace tarnwick
