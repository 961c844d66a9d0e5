// `MDIForm1`: the main window without its widgets, and the owner of all that is open.
#pragma once

#include <memory>
#include <string>

#include "language/support_tables.h"
#include "model/project_observer.h"
#include "model/project_records.h"
#include "persistence/settings.h"
#include "platform/ports.h"
#include "project/project_context.h"
#include "shell/shell_windows.h"

namespace tarnwick {

class CommandCenter;
class EventsBar;
class FindingsList;
class FormCommands;
class FormUser;
class FormViewObjects;
class History;
class ProjectCommands;
class PropertySheet;
class RunCommand;

/// Owns the one `ProjectTables`, the design surfaces and the logic of every panel for the life of
/// the process. It is built before any window and goes after the last one:
///
///   MDIForm1 main(ports, instances, program_folder);
///   MainWindow window(main.Commands(), ...);   // each panel takes the part that it shows
///   main.Load({view, code, menus, examiner});  // then Time's tick: main.Time_Timer();
///   if (main.Close()) ...                      // on a close request
class MDIForm1 {
 public:
  MDIForm1(const Ports& ports, InstanceFolderPort& instances, std::string program_folder,
           std::string executable_folder = {});
  MDIForm1(const MDIForm1&) = delete;
  MDIForm1& operator=(const MDIForm1&) = delete;
  ~MDIForm1();

  // Start and end.
  /// Adds a listener to the changes of the project. It is notified after the design surfaces, so
  /// that it can build the window of a form that opened over the form's logic. It outlives every
  /// command.
  void AddObserver(ProjectObserver& observer);
  /// The load of the main window: titles, disabled commands, the start of `Time`. The windows
  /// serve every command from now on.
  void Load(const ShellWindows& windows);
  /// The first tick of `Time` does the long initialisation behind the logo window.
  void Time_Timer();
  /// Opens the project that the desktop started the program with; nothing before the start is
  /// through, or when the file cannot be read.
  void OpenNamed(const std::string& path);
  /// A close request: asks about saving, then unloads every window. False: the window stays.
  [[nodiscard]] bool Close();

  /// To be called a few seconds after the user did something: keeps the project as it stands for
  /// recovery, and checks it again where findings are shown. False when a command runs and it has
  /// to be called again.
  bool KeepWork();
  /// Offers what a run that did not end as it should has left, if anything. To be called once,
  /// when the start is through.
  void OfferCrashedWork();

  // The parts, for the windows that show them.
  [[nodiscard]] CommandCenter& Commands() noexcept;
  [[nodiscard]] FormCommands& Forms() noexcept;
  [[nodiscard]] ProjectCommands& Projects() noexcept;
  [[nodiscard]] PropertySheet& Sheet() noexcept;
  /// The running program. Without a runner, which is given to it at the start, there is none.
  [[nodiscard]] RunCommand& Runner() noexcept;
  /// The events bars of all forms.
  [[nodiscard]] EventsBar& Bar() noexcept;
  /// What the check of the project found.
  [[nodiscard]] FindingsList& Findings() noexcept;
  /// The Objects Examiner.
  [[nodiscard]] FormViewObjects& Examiner() noexcept;
  [[nodiscard]] ProjectTables& Tables() noexcept;
  /// The tables with the ports, for code that reads and writes projects.
  [[nodiscard]] project::ProjectContext& Context() noexcept;
  [[nodiscard]] Settings& SettingsFile() noexcept;
  [[nodiscard]] const language::SupportTables& Support() const noexcept;
  /// The history of the user's steps.
  [[nodiscard]] History& Steps() noexcept;
  /// Takes the last step back, or does it again, and shows the form that it was about.
  void Undo();
  void Redo();
  /// The design surface of a form; null for a number without one.
  [[nodiscard]] FormUser* User(int form);
  /// The surface of the current form; null without one.
  [[nodiscard]] FormUser* CurrentUser();
  /// Gives the view the selection's text again: after a change the shell did not make.
  void RefreshStatus();

 private:
  struct Rooms;
  void Unload();

  std::unique_ptr<Rooms> rooms_;
};

}  // namespace tarnwick
