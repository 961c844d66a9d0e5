// `MDIForm1`: the main window without its widgets, and the owner of all that is open.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "designer/form_user.h"
#include "inspector/property_sheet.h"
#include "language/support_tables.h"
#include "model/project_observer.h"
#include "model/project_records.h"
#include "persistence/settings.h"
#include "platform/ports.h"
#include "project/project_context.h"
#include "shell/command_state.h"
#include "shell/command_table.h"
#include "shell/events_bar.h"
#include "shell/form_main.h"
#include "shell/shell_view.h"
#include "shell/side_windows.h"

namespace tarnwick {

/// Owns the one `ProjectTables`, the design surfaces and the property sheet for the life of the
/// process, and runs every command. A view builds it with itself and forwards:
///
///   MDIForm1 main(ports, view, windows, observer, program_folder);
///   main.Load();                    // then Time's tick: main.Time_Timer();
///   main.Run(Command::Save);
///   if (main.Close()) ...           // on a close request
///
/// `observer` is told of every change of the project; the surfaces kept here hear of a new form
/// after it and of a closing one after it, so a view may build its window first.
class MDIForm1 {
 public:
  MDIForm1(const Ports& ports, ShellView& view, SideWindows& windows, ProjectObserver& observer,
           std::string program_folder);
  MDIForm1(const MDIForm1&) = delete;
  MDIForm1& operator=(const MDIForm1&) = delete;
  ~MDIForm1();

  // Start and end.
  /// The load of the main window: titles, disabled commands, the start of `Time`.
  void Load();
  /// The first tick of `Time` does the long initialisation behind the logo window.
  void Time_Timer();
  /// Opens the project that the desktop started the program with; nothing before the start is
  /// through, or when the file cannot be read.
  void OpenNamed(const std::string& path);
  /// A close request: asks about saving, then unloads every window. False: the window stays.
  [[nodiscard]] bool Close();

  // Commands and tools.
  /// Runs a command; nothing while it is off or another one runs.
  void Run(Command command);
  [[nodiscard]] CommandState State(Command command) const;
  [[nodiscard]] std::string Caption(Command command) const;
  /// A tool of either box, or its row of the menu; nothing while it is off.
  void PressTool(int number);
  [[nodiscard]] CommandState ToolState(int number) const;

  // Form list, container and panels.
  /// A line of `ListaFrms` was chosen, counted from 0.
  void SelectFormLine(int place);
  /// A design window came to the front by the user's hand.
  void FormActivated(int form);
  [[nodiscard]] FormListMarks FormMarks() const;
  /// `FormMain`'s OK: takes the dialog's text.
  void TakeMainForm(const FormMain& dialog);
  [[nodiscard]] bool PanelShown(Panel panel) const;
  /// Shows or hides a panel, also when its own close button was pressed.
  void SetPanelShown(Panel panel, bool shown);

  // Texts at the foot of the window.
  /// Place and size of the selection in pixels.
  [[nodiscard]] std::string SelectionText() const;
  /// Tells the view the selection's text again: after a change the shell did not make.
  void RefreshStatus();

  // What it owns, for the windows of the other rooms.
  [[nodiscard]] ProjectTables& Tables() noexcept;
  /// For whatever reads and writes projects: the tables with the ports.
  [[nodiscard]] project::ProjectContext& Context() noexcept;
  [[nodiscard]] Settings& SettingsFile() noexcept;
  [[nodiscard]] const language::SupportTables& Support() const noexcept;
  [[nodiscard]] PropertySheet& Sheet() noexcept;
  /// The events bars of all forms.
  [[nodiscard]] EventsBar& Bar() noexcept;
  /// The design surface of a form; null for a number without one.
  [[nodiscard]] FormUser* User(int form);
  /// The surface of the current form; null without one.
  [[nodiscard]] FormUser* CurrentUser();

 private:
  struct Rooms;
  void Dispatch(Command command);
  void Unload();
  void Toggle(Panel panel);

  std::unique_ptr<Rooms> rooms_;
};

}  // namespace tarnwick
