#include "shell/run_command.h"

#include <utility>

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

/// The name of a file, however its path is written.
std::string_view FileNameOf(std::string_view path) {
  const std::size_t slash = path.find_last_of("\\/");
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

}  // namespace

RunWith RunWithOf(const Settings& settings) {
  const std::string with = Lower(settings.Read(kRunWith));
  if (with == "compiler") return RunWith::Compiler;
  return with == "runner" ? RunWith::Runner : RunWith::Auto;
}

bool RunCommand::Start(std::string text, SourceMap map) {
  if (runner_ == nullptr) return false;
  const ProjectTables& tables = state_.Tables;
  source_ = tables.SourceFile;
  text_ = std::move(text);
  map_ = std::move(map);
  main_form_ = FormListName(tables.MainFormName);
  first_error_.clear();
  notes_ = 0;
  compile_again_ = false;
  lines_.Clear();
  ShowLines();
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

void RunCommand::RunStarted() {
  state_.Say("Running " + main_form_);
}

void RunCommand::RunOutput(std::string_view text) {
  lines_.Print(text);
  ShowLines();
}

void RunCommand::RunMessaged(const RunMessage& message) {
  const bool error = message.Severity == RunSeverity::Error;
  std::string text = TextOf(message);
  if (error && first_error_.empty()) first_error_ = text;
  if (!error) ++notes_;
  lines_.Add(error ? RunLines::Sort::Error : RunLines::Sort::Note, std::move(text),
             IsOurs(message) ? message.Line : 0);
  ShowLines();
}

void RunCommand::RunShows(const RunMessage& place) {
  if (IsOurs(place)) GoToLine(place.Line);
}

bool RunCommand::IsOurs(const RunMessage& message) const {
  return EqualsFolded(FileNameOf(message.File), FileNameOf(source_));
}

void RunCommand::RunEnded(RunnerEnd how) {
  state_.View->CommandsChanged();
  state_.Say(EndText(how));
  if (!std::exchange(compile_again_, false)) return;
  // A command that runs meanwhile has the user's attention; the program is asked for again then.
  if (!state_.Busy) state_.Run(Command::Compile);
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
      return with_error("Stopped");
    case RunnerEnd::Limit:
    case RunnerEnd::Stopped:
      return main_form_ + " stopped";
    case RunnerEnd::BadUsage:
    case RunnerEnd::RunnerFault:
      break;
  }
  return "The runner failed while " + main_form_ + " ran";
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

void RunCommand::GoTo(const project::ProgramPlace& place) {
  if (state_.RaiseOpenCode()) return;
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
