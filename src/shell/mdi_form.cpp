#include "shell/mdi_form.h"

#include <utility>

#include "inspector/property_sheet.h"
#include "shell/compile_command.h"
#include "shell/design_surfaces.h"
#include "shell/designer_link.h"
#include "shell/edit_commands.h"
#include "shell/events_bar.h"
#include "shell/form_commands.h"
#include "shell/project_commands.h"
#include "shell/shell_state.h"
#include "shell/start_up.h"
#include "shell/status_follower.h"
#include "shell/status_text.h"

namespace tarnwick {

/// The parts, in the order in which they need each other.
struct MDIForm1::Rooms {
  Rooms(const Ports& ports, ShellView& view, SideWindows& windows, ProjectObserver& observer,
        std::string program_folder)
      : State(ports, view, windows, std::move(program_folder)),
        Designer(State),
        Surfaces(State, Designer),
        Bar(State, Surfaces),
        Inspector(State, Surfaces),
        Sheet(State.Tables, State.Support, State.Ports, State.Observer, Inspector),
        Forms(State, Sheet),
        Context{State.Tables,
                State.Ports.Files,
                State.Ports.Messages,
                State.Ports.Dialogs,
                State.Ports.Screen,
                State.Observer,
                Forms},
        Project(State, Context, Forms),
        Edit(State, Surfaces, Forms),
        Compile(State, Project),
        Start(State, Forms, Project),
        Status(State, Project) {
    Designer.SetSheet(Sheet);
    Designer.SetBar(Bar);
    State.Observer.Add(observer);
    State.Observer.Add(Surfaces);
    State.Observer.Add(Status);
    for (const Panel panel : {Panel::Properties, Panel::Forms, Panel::EventsBar}) {
      State.Flags.PanelShown[static_cast<std::size_t>(panel)] = true;
    }
  }

  ShellState State;
  DesignerLink Designer;
  DesignSurfaces Surfaces;
  EventsBar Bar;
  InspectorLink Inspector;
  PropertySheet Sheet;
  FormCommands Forms;
  project::ProjectContext Context;
  ProjectCommands Project;
  EditCommands Edit;
  CompileCommand Compile;
  StartUp Start;
  StatusFollower Status;
  bool Busy = false;  ///< a command runs: the windows may be used to look, not to start another
  bool Closed = false;
};

MDIForm1::MDIForm1(const Ports& ports, ShellView& view, SideWindows& windows,
                   ProjectObserver& observer, std::string program_folder)
    : rooms_(std::make_unique<Rooms>(ports, view, windows, observer, std::move(program_folder))) {
  rooms_->State.Run = [this](Command command) { Run(command); };
}

MDIForm1::~MDIForm1() = default;

void MDIForm1::Load() {
  rooms_->Start.Load();
}

void MDIForm1::Time_Timer() {
  rooms_->Start.Time_Timer();
}

void MDIForm1::OpenNamed(const std::string& path) {
  if (rooms_->Busy || !rooms_->Start.Done()) return;
  rooms_->Busy = true;
  rooms_->Project.OpenNamed(path);
  rooms_->Busy = false;
}

bool MDIForm1::Close() {
  if (rooms_->Closed) return true;
  // A close request in the midst of a command, or of the start, waits for its end.
  if (rooms_->Busy || !rooms_->Start.Done()) return false;
  rooms_->Busy = true;
  const bool may_close = rooms_->Project.MayClose();
  if (may_close) Unload();
  rooms_->Closed = may_close;
  rooms_->Busy = false;
  return may_close;
}

void MDIForm1::Unload() {
  ShellState& state = rooms_->State;
  for (std::size_t i = 0; i < kSideWindowCount; ++i) {
    state.View.UnloadWindow(static_cast<SideWindow>(i));
  }
  rooms_->Forms.CloseAll();
  state.View.UnloadContainer();
  state.EnableCommands(false);
}

void MDIForm1::Run(Command command) {
  if (rooms_->Busy || !State(command).Enabled) return;
  if (command == Command::Exit) {
    rooms_->State.View.CloseMainWindow();
    return;
  }
  if (WaitsForCodeEditor(command) && rooms_->State.RaiseOpenCode()) return;
  rooms_->Busy = true;
  Dispatch(command);
  rooms_->Busy = false;
}

void MDIForm1::Dispatch(Command command) {
  ShellState& state = rooms_->State;
  switch (command) {
    case Command::New:
      return rooms_->Project.New();
    case Command::Open:
      return rooms_->Project.Open(false);
    case Command::OpenOld:
      return rooms_->Project.Open(true);
    case Command::Save:
      rooms_->Project.Save();
      return;
    case Command::SaveAs:
      return rooms_->Project.SaveAs();
    case Command::SaveForm:
      return rooms_->Project.SaveForm();
    case Command::SaveFormAs:
      return rooms_->Project.SaveFormAs();
    case Command::Code:
      return state.Windows.OpenCode();
    case Command::PublicDeclarations:
      return state.Windows.OpenPublicDeclarations();
    case Command::Properties:
      return Toggle(Panel::Properties);
    case Command::Forms:
      return Toggle(Panel::Forms);
    case Command::EventsBar:
      return Toggle(Panel::EventsBar);
    case Command::ObjectBar:
      return Toggle(Panel::ObjectBar);
    case Command::Examiner:
      return state.Windows.OpenExaminer();
    case Command::AddNewForm:
      return rooms_->Forms.AddNew();
    case Command::Remove:
      return rooms_->Forms.Remove();
    case Command::SelectMainForm:
      return rooms_->Forms.SelectMainForm();
    case Command::MenuEdit:
      return state.Windows.OpenMenuEdit();
    case Command::Compile:
      return rooms_->Compile.Run();
    case Command::Help:
      state.Ports.Processes.OpenDocument(state.Tables.ProgramFolder + "\\Tarnwick.chm");
      return;
    case Command::About:
      return state.View.ShowAbout(state.Tables.ProgramFolder);
    default:
      return rooms_->Edit.Run(command);
  }
}

void MDIForm1::Toggle(Panel panel) {
  SetPanelShown(panel, !PanelShown(panel));
}

void MDIForm1::SetPanelShown(Panel panel, bool shown) {
  if (PanelShown(panel) == shown) return;
  rooms_->State.ShowPanel(panel, shown);
  if (panel == Panel::Properties) {
    rooms_->Sheet.SetPanelVisible(shown);
    if (shown) rooms_->Sheet.ShowSelection();
  }
}

bool MDIForm1::PanelShown(Panel panel) const {
  return rooms_->State.IsShown(panel);
}

CommandState MDIForm1::State(Command command) const {
  return StateOf(command, rooms_->State.Tables, rooms_->State.Flags);
}

std::string MDIForm1::Caption(Command command) const {
  return CaptionOf(command, rooms_->State.Tables);
}

CommandState MDIForm1::ToolState(int number) const {
  return StateOfTool(number, rooms_->State.Tables, rooms_->State.Flags);
}

void MDIForm1::PressTool(int number) {
  if (rooms_->Busy || !ToolState(number).Enabled) return;
  // What a tool would select is what the open code editor works on.
  if (rooms_->State.RaiseOpenCode()) return;
  rooms_->Busy = true;
  rooms_->Edit.PressTool(number);
  rooms_->Busy = false;
}

void MDIForm1::SelectFormLine(int place) {
  if (!rooms_->Busy) rooms_->Forms.SelectLine(place);
}

void MDIForm1::FormActivated(int form) {
  if (!rooms_->Busy) rooms_->Forms.Activated(form);
}

FormListMarks MDIForm1::FormMarks() const {
  return MarksOf(rooms_->State.Tables);
}

void MDIForm1::TakeMainForm(const FormMain& dialog) {
  dialog.Command1_Click(rooms_->State.Tables);
  rooms_->State.Observer.FormListChanged();
}

std::string MDIForm1::SelectionText() const {
  return SelectionStatus(rooms_->State.Tables);
}

void MDIForm1::RefreshStatus() {
  rooms_->Status.Refresh();
}

ProjectTables& MDIForm1::Tables() noexcept {
  return rooms_->State.Tables;
}

project::ProjectContext& MDIForm1::Context() noexcept {
  return rooms_->Context;
}

Settings& MDIForm1::SettingsFile() noexcept {
  return rooms_->State.Settings;
}

const language::SupportTables& MDIForm1::Support() const noexcept {
  return rooms_->State.Support;
}

PropertySheet& MDIForm1::Sheet() noexcept {
  return rooms_->Sheet;
}

EventsBar& MDIForm1::Bar() noexcept {
  return rooms_->Bar;
}

FormUser* MDIForm1::User(int form) {
  return rooms_->Surfaces.Of(form);
}

FormUser* MDIForm1::CurrentUser() {
  return rooms_->Surfaces.Current();
}

}  // namespace tarnwick
