// What the commands of the main window share.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "designer/history/history.h"
#include "language/support_tables.h"
#include "model/project_records.h"
#include "persistence/settings.h"
#include "platform/ports.h"
#include "shell/command_state.h"
#include "shell/observer_hub.h"
#include "shell/shell_view.h"
#include "shell/shell_windows.h"

namespace tarnwick {

/// Values of the application that is being made; all empty in a new project.
struct ApplicationRec {
  std::string ExeName;
  std::string Icono;
  std::string Compilador;
  std::string Debugger;
  std::string Applicacion;
};

/// The one project and the doors to everything around it. Lives as long as `MDIForm1`.
struct ShellState {
  ShellState(const tarnwick::Ports& ports, std::string program_folder)
      : Ports(ports), Settings(ports.Profiles, program_folder) {
    Tables.ProgramFolder = std::move(program_folder);
  }

  tarnwick::Ports Ports;
  tarnwick::Settings Settings;
  ProjectTables Tables;
  language::SupportTables Support;
  ApplicationRec Application;
  ShellFlags Flags;
  bool Busy = false;  ///< a command runs: no other one starts
  ObserverHub Observer;
  bool SaysSaved = false;            ///< the status bar says that the project is saved
  std::function<std::string()> Now;  ///< the local time, "2026-03-01 14:05:09"
  History Steps{Tables, Observer};
  // The windows, from the load of the main window on; no command is enabled before.
  ShellView* View = nullptr;
  CodeWindows* Code = nullptr;
  MenuWindows* Menus = nullptr;
  ExaminerWindow* Examiner = nullptr;
  /// Called when the project was saved, and when it is another one.
  std::function<void()> ProjectSaved;
  std::function<void()> ProjectReplaced;
  /// Runs a command that another room asks for.
  std::function<void(Command)> Run;

  void Use(const ShellWindows& windows) {
    View = &windows.Main;
    Code = &windows.Code;
    Menus = &windows.Menus;
    Examiner = &windows.Examiner;
  }
  /// Enables or disables all buttons, tools and menu entries.
  void EnableCommands(bool on) {
    Flags.CommandsEnabled = on;
    View->CommandsChanged();
  }
  /// While the code editor is open: brings it to the front and returns true. Its text belongs to
  /// what is selected, so nothing else can be chosen meanwhile.
  bool RaiseOpenCode() const {
    if (!Code->IsCodeOpen()) return false;
    Code->BringCodeToFront();
    return true;
  }
  /// The quiet text at the foot of the window; the next command takes it away.
  void Say(std::string_view text) {
    SaysSaved = false;
    View->SetStatus(text);
  }
  /// The same for the word that a save succeeded: a later change of the project takes it away.
  void SaySaved(std::string_view text) {
    View->SetStatus(text);
    SaysSaved = true;
  }
  [[nodiscard]] bool IsShown(Panel panel) const {
    return Flags.PanelShown[static_cast<std::size_t>(panel)];
  }
  void ShowPanel(Panel panel, bool shown) {
    Flags.PanelShown[static_cast<std::size_t>(panel)] = shown;
    View->ShowPanel(panel, shown);
    View->CommandsChanged();
  }
};

}  // namespace tarnwick
