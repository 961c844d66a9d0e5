// What the commands of the main window share.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "language/support_tables.h"
#include "model/project_records.h"
#include "persistence/settings.h"
#include "platform/ports.h"
#include "shell/command_state.h"
#include "shell/observer_hub.h"
#include "shell/shell_view.h"
#include "shell/side_windows.h"

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
  ShellState(const tarnwick::Ports& ports, ShellView& view, SideWindows& windows,
             std::string program_folder)
      : Ports(ports), View(view), Windows(windows), Settings(ports.Profiles, program_folder) {
    Tables.ProgramFolder = std::move(program_folder);
  }

  tarnwick::Ports Ports;
  ShellView& View;
  SideWindows& Windows;
  tarnwick::Settings Settings;
  ProjectTables Tables;
  language::SupportTables Support;
  ApplicationRec Application;
  ShellFlags Flags;
  ObserverHub Observer;
  /// Runs a command that another room asks for.
  std::function<void(Command)> Run;

  /// Enables or disables all buttons, tools and menu entries.
  void EnableCommands(bool on) {
    Flags.CommandsEnabled = on;
    View.CommandsChanged();
  }
  /// While the code editor is open: brings it to the front and answers true. Its text belongs to
  /// what is selected, so nothing else can be chosen meanwhile.
  bool RaiseOpenCode() {
    if (!Windows.IsCodeOpen()) return false;
    Windows.BringCodeToFront();
    return true;
  }
  [[nodiscard]] bool IsShown(Panel panel) const {
    return Flags.PanelShown[static_cast<std::size_t>(panel)];
  }
  void ShowPanel(Panel panel, bool shown) {
    Flags.PanelShown[static_cast<std::size_t>(panel)] = shown;
    View.ShowPanel(panel, shown);
    View.CommandsChanged();
  }
};

}  // namespace tarnwick
