#include "shell/mdi_form.h"

#include <algorithm>
#include <utility>

#include "inspector/objects_examiner.h"
#include "inspector/property_sheet.h"
#include "project/recovery.h"
#include "project/watched_files.h"
#include "shell/command_center.h"
#include "shell/compile_command.h"
#include "shell/design_surfaces.h"
#include "shell/designer_link.h"
#include "shell/edit_commands.h"
#include "shell/events_bar.h"
#include "shell/findings_list.h"
#include "shell/form_commands.h"
#include "shell/local_time.h"
#include "shell/project_commands.h"
#include "shell/run_command.h"
#include "shell/shell_state.h"
#include "shell/start_up.h"
#include "shell/status_follower.h"
#include "shell/window_placement.h"

namespace tarnwick {

/// The parts, in the order in which they need each other.
struct MDIForm1::Rooms {
  Rooms(const Ports& ports, InstanceFolderPort& instances, std::string program_folder)
      : Files(ports.Files),
        State({Files, ports.Profiles, ports.Processes, ports.Messages, ports.Dialogs, ports.Screen},
              std::move(program_folder)),
        Designer(State),
        Surfaces(State, Designer),
        Bar(State, Surfaces),
        Inspector(State, Surfaces),
        Sheet(State.Tables, State.Support, State.Ports, State.Observer, Inspector, State.Steps),
        Forms(State, Sheet),
        Context{State.Tables,
                State.Ports.Files,
                State.Ports.Messages,
                State.Ports.Dialogs,
                State.Ports.Screen,
                State.Observer,
                Forms},
        Recovery(
            State.Tables, ports.Files, instances, State.Tables.ProgramFolder + "\\recovery",
            [this] { return State.Now(); },
            [this] {
              return State.Code == nullptr ? project::TypedCode() : State.Code->TypedCode();
            }),
        Project(State, Context, Files, Recovery, Forms),
        Edit(State, Surfaces, Forms),
        Run(State, {Forms, Surfaces, Bar, Sheet}),
        Findings(State, Surfaces, Forms, Sheet),
        Compile(State, Project, Findings, Run),
        Commands(State, Project, Forms, Edit, Compile, Run, Findings, Sheet),
        Examiner(State.Support, Sheet),
        Start(State, Forms),
        Status(State) {
    State.Now = LocalTime;
    Designer.SetSheet(Sheet);
    State.Steps.Changed = [this] {
      if (State.View != nullptr) State.View->CommandsChanged();
    };
    State.Steps.NumberMoved = [this](const ObjectPlace& object, bool back) {
      if (FormUser* const user = Surfaces.Of(object.Form)) user->NumberMoved(object, back);
    };
    State.ProjectSaved = [this] { Findings.ProjectSaved(); };
    State.ProjectReplaced = [this] {
      Findings.ProjectReplaced();
      Run.ProjectReplaced();
    };
    State.Run = [this](Command command) { Commands.Run(command); };
    State.Observer.Add(Surfaces);
    State.Observer.Add(Status);
    for (const Panel panel : {Panel::Properties, Panel::Forms, Panel::EventsBar}) {
      State.Flags.PanelShown[static_cast<std::size_t>(panel)] = true;
    }
  }

  project::WatchedFiles Files;
  ShellState State;
  DesignerLink Designer;
  DesignSurfaces Surfaces;
  EventsBar Bar;
  InspectorLink Inspector;
  PropertySheet Sheet;
  FormCommands Forms;
  project::ProjectContext Context;
  project::Recovery Recovery;
  ProjectCommands Project;
  EditCommands Edit;
  RunCommand Run;
  FindingsList Findings;
  CompileCommand Compile;
  CommandCenter Commands;
  FormViewObjects Examiner;
  StartUp Start;
  StatusFollower Status;
  bool Closed = false;
};

MDIForm1::MDIForm1(const Ports& ports, InstanceFolderPort& instances, std::string program_folder,
                   std::string executable_folder)
    : rooms_(std::make_unique<Rooms>(ports, instances, std::move(program_folder))) {
  rooms_->State.Tables.ExecutableFolder = std::move(executable_folder);
}

MDIForm1::~MDIForm1() = default;

void MDIForm1::AddObserver(ProjectObserver& observer) {
  rooms_->State.Observer.Add(observer);
}

void MDIForm1::Load(const ShellWindows& windows) {
  ShellState& state = rooms_->State;
  ReadPanels(state.Settings, state.Flags.PanelShown);
  rooms_->Sheet.SetPanelVisible(state.IsShown(Panel::Properties));
  rooms_->Start.Load(windows);
}

void MDIForm1::Time_Timer() {
  if (rooms_->Start.Done()) return rooms_->State.View->StopTimer();
  rooms_->Start.Time_Timer();
  if (!rooms_->Start.Done()) return;
  rooms_->Recovery.Begin();
  rooms_->Recovery.Settle();
}

bool MDIForm1::KeepWork() {
  ShellState& state = rooms_->State;
  if (!rooms_->Start.Done() || rooms_->Closed) return true;
  if (state.Busy) return false;
  if (rooms_->Recovery.Keep() && state.SaysSaved) state.Say("");
  rooms_->Findings.Refresh();
  return true;
}

void MDIForm1::OfferCrashedWork() {
  ShellState& state = rooms_->State;
  if (state.Busy || !rooms_->Start.Done()) return;
  const auto offers = rooms_->Recovery.Offers();
  const bool crashed =
      std::any_of(offers.begin(), offers.end(), [](const auto& offer) { return offer.Crashed; });
  if (!crashed) return;
  state.Busy = true;
  state.View->RunRestoreDialog();
  state.Busy = false;
}

void MDIForm1::OpenNamed(const std::string& path) {
  ShellState& state = rooms_->State;
  if (state.Busy || !rooms_->Start.Done()) return;
  state.Busy = true;
  rooms_->Project.OpenNamed(path);
  state.Busy = false;
}

bool MDIForm1::Close() {
  if (rooms_->Closed) return true;
  // A close request in the midst of a command, or of the start, waits for its end.
  ShellState& state = rooms_->State;
  if (state.Busy || !rooms_->Start.Done()) return false;
  state.Busy = true;
  const bool may_close = rooms_->Project.MayClose();
  if (may_close) Unload();
  rooms_->Closed = may_close;
  state.Busy = false;
  return may_close;
}

void MDIForm1::Unload() {
  ShellState& state = rooms_->State;
  WritePanels(state.Settings, state.Flags.PanelShown);
  for (std::size_t i = 0; i < kSideWindowCount; ++i) {
    state.View->UnloadWindow(static_cast<SideWindow>(i));
  }
  rooms_->Forms.CloseAll();
  state.View->UnloadContainer();
  state.EnableCommands(false);
  rooms_->Recovery.End();
}

void MDIForm1::RefreshStatus() {
  rooms_->Status.Refresh();
}

CommandCenter& MDIForm1::Commands() noexcept {
  return rooms_->Commands;
}

FormCommands& MDIForm1::Forms() noexcept {
  return rooms_->Forms;
}

ProjectCommands& MDIForm1::Projects() noexcept {
  return rooms_->Project;
}

PropertySheet& MDIForm1::Sheet() noexcept {
  return rooms_->Sheet;
}

RunCommand& MDIForm1::Runner() noexcept {
  return rooms_->Run;
}

EventsBar& MDIForm1::Bar() noexcept {
  return rooms_->Bar;
}

FindingsList& MDIForm1::Findings() noexcept {
  return rooms_->Findings;
}

FormViewObjects& MDIForm1::Examiner() noexcept {
  return rooms_->Examiner;
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

History& MDIForm1::Steps() noexcept {
  return rooms_->State.Steps;
}

void MDIForm1::Undo() {
  rooms_->Commands.Run(Command::Undo);
}

void MDIForm1::Redo() {
  rooms_->Commands.Run(Command::Redo);
}

FormUser* MDIForm1::User(int form) {
  return rooms_->Surfaces.Of(form);
}

FormUser* MDIForm1::CurrentUser() {
  return rooms_->Surfaces.Current();
}

}  // namespace tarnwick
