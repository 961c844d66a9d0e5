#include "shell/command_center.h"

#include "inspector/property_sheet.h"
#include "shell/compile_command.h"
#include "shell/edit_commands.h"
#include "shell/findings_list.h"
#include "shell/form_commands.h"
#include "shell/help_pages.h"
#include "shell/project_commands.h"
#include "shell/run_command.h"
#include "shell/shell_state.h"
#include "shell/status_text.h"

namespace tarnwick {

namespace {

bool IsRunWith(Command command) {
  return command == Command::RunWithEither || command == Command::RunWithCompiler ||
         command == Command::RunWithRunner;
}

/// What a row of Run With chooses.
RunWith ChoiceOf(Command command) {
  if (command == Command::RunWithCompiler) return RunWith::Compiler;
  return command == Command::RunWithRunner ? RunWith::Runner : RunWith::Auto;
}

}  // namespace

void CommandCenter::Run(Command command) {
  if (state_.Busy || !State(command).Enabled) return;
  if (command == Command::Exit) {
    state_.View->CloseMainWindow();
    return;
  }
  if (WaitsForCodeEditor(command) && state_.RaiseOpenCode()) return;
  state_.Busy = true;
  state_.Say("");
  Dispatch(command);
  state_.Busy = false;
}

void CommandCenter::Dispatch(Command command) {
  switch (command) {
    case Command::New:
      return project_.New();
    case Command::Open:
      return project_.Open(false);
    case Command::OpenOld:
      return project_.Open(true);
    case Command::Save:
      project_.Save();
      return;
    case Command::SaveAs:
      return project_.SaveAs();
    case Command::SaveForm:
      return project_.SaveForm();
    case Command::SaveFormAs:
      return project_.SaveFormAs();
    case Command::Undo:
      return edit_.Undo();
    case Command::Redo:
      return edit_.Redo();
    case Command::Code:
      return state_.Code->OpenCode();
    case Command::PublicDeclarations:
      return state_.Code->OpenPublicDeclarations();
    case Command::Properties:
      return Toggle(Panel::Properties);
    case Command::Forms:
      return Toggle(Panel::Forms);
    case Command::EventsBar:
      return Toggle(Panel::EventsBar);
    case Command::ObjectBar:
      return Toggle(Panel::ObjectBar);
    case Command::Examiner:
      return state_.Examiner->OpenExaminer();
    case Command::AddNewForm:
      return forms_.AddNew();
    case Command::Remove:
      return forms_.Remove();
    case Command::SelectMainForm:
      return forms_.SelectMainForm();
    case Command::MenuEdit:
      return state_.Menus->OpenMenuEdit();
    case Command::Compile:
      return compile_.Run();
    case Command::Stop:
      return run_.Stop();
    case Command::RunWithEither:
    case Command::RunWithCompiler:
    case Command::RunWithRunner:
      return run_.Choose(ChoiceOf(command));
    case Command::Check:
      return ShowFindings();
    case Command::Output:
      return Toggle(Panel::Output);
    case Command::Help:
      return OpenHelp();
    case Command::HelpRunning:
    case Command::HelpChoices:
    case Command::HelpSupported:
      return state_.View->ShowHelpPage(*HelpPageOf(command));
    case Command::Restore:
      return state_.View->RunRestoreDialog();
    case Command::About:
      return state_.View->ShowAbout(state_.Tables.ProgramFolder);
    default:
      return edit_.Run(command);
  }
}

void CommandCenter::OpenHelp() {
  const std::string path = state_.Tables.ProgramFolder + "\\Tarnwick.chm";
  if (!state_.Ports.Files.Exists(path) || !state_.Ports.Processes.OpenDocument(path)) {
    state_.Say(NoHelpStatus(path));
  }
}

void CommandCenter::ShowFindings() {
  project_.TakePending();
  findings_.CheckAll();
  SetPanelShown(Panel::Findings, true);
  state_.View->FocusFindings();
}

void CommandCenter::OpenRecent(const std::string& path) {
  if (state_.Busy || !State(Command::Open).Enabled) return;
  state_.Busy = true;
  project_.OpenRecent(path);
  state_.Busy = false;
}

void CommandCenter::Escape() {
  if (state_.Busy || state_.RaiseOpenCode()) return;
  edit_.ReleaseTool();
}

CommandState CommandCenter::State(Command command) const {
  if (command == Command::Undo) {
    return {state_.Flags.CommandsEnabled && state_.Steps.CanUndo(), false};
  }
  if (command == Command::Redo) {
    return {state_.Flags.CommandsEnabled && state_.Steps.CanRedo(), false};
  }
  if (command == Command::Stop) return {run_.Running(), false};
  if (IsRunWith(command)) {
    return {state_.Flags.CommandsEnabled, run_.With() == ChoiceOf(command)};
  }
  return StateOf(command, state_.Tables, state_.Flags);
}

std::string CommandCenter::Caption(Command command) const {
  const bool undo = command == Command::Undo;
  const std::string_view step = undo                       ? state_.Steps.UndoName()
                                : command == Command::Redo ? state_.Steps.RedoName()
                                                           : std::string_view();
  if (!step.empty()) return std::string(undo ? "&Undo " : "&Redo ").append(step);
  return CaptionOf(command, state_.Tables);
}

void CommandCenter::PressTool(int number) {
  if (state_.Busy || !ToolState(number).Enabled) return;
  // What a tool would select is what the open code editor works on.
  if (state_.RaiseOpenCode()) return;
  state_.Busy = true;
  edit_.PressTool(number);
  state_.Busy = false;
}

CommandState CommandCenter::ToolState(int number) const {
  return StateOfTool(number, state_.Tables, state_.Flags);
}

bool CommandCenter::PanelShown(Panel panel) const {
  return state_.IsShown(panel);
}

void CommandCenter::Toggle(Panel panel) {
  SetPanelShown(panel, !PanelShown(panel));
}

void CommandCenter::SetPanelShown(Panel panel, bool shown) {
  if (PanelShown(panel) == shown) return;
  state_.ShowPanel(panel, shown);
  if (panel == Panel::Properties) {
    sheet_.SetPanelVisible(shown);
    if (shown) sheet_.ShowSelection();
  }
}

}  // namespace tarnwick
