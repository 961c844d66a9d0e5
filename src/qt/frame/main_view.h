// The main window's implementation of the shell's view, and its observer of the project.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <string>
#include <utility>

#include "model/project_observer.h"
#include "qt/editor/code_windows_view.h"
#include "qt/frame/design_windows_view.h"
#include "qt/menus/menu_windows_view.h"
#include "shell/shell_view.h"

namespace tarnwick {

class MainWindow;
class MDIForm1;
class HelpWindow;
class LogoWindow;

/// Joins the shell and the widgets: built after both, it lends the windows to the commands.
class MainView final : public ShellView, public ProjectObserver {
 public:
  MainView(MainWindow& window, MDIForm1& shell);
  ~MainView() override;

  /// Starts the shell on the windows.
  void Load();
  /// A project to open as soon as the start is through.
  void OpenAfterStart(std::string path) { start_project_ = std::move(path); }

  // ShellView
  void SetApplicationTitle(std::string_view title) override;
  void SetTitle(std::string_view title) override;
  void LayOutPanels() override;
  void StartTimer() override;
  void StopTimer() override;
  void ShowLogo(std::string_view text) override;
  void CloseLogo() override;
  void ShowContainerAt(int width, int height) override;
  void HideContainer() override;
  void ShowContainer() override;
  void BringFormUp(int form) override;
  void FocusForm(int form) override;
  void HoldFocus() override;
  void RestoreFocus() override;
  void RecentProjectsChanged() override;
  void SetFormVisible(int form, bool visible) override;
  [[nodiscard]] GesturePort& Gestures(int form) override;
  [[nodiscard]] bool PictureLoads(const std::string& path) override;
  void ShowPanel(Panel panel, bool shown) override;
  void CommandsChanged() override;
  void SelectFormLine(int index) override;
  void SetArrowPointer(bool arrow) override;
  void FindingsChanged() override;
  void FocusFindings() override;
  void FocusGridRow() override;
  void SetStatus(std::string_view text) override;
  void SetSelectionText(std::string_view text) override;
  void ShowObjectPopUp() override;
  void RunRestoreDialog() override;
  void RunFormMain() override;
  void RunItemDialog(int form) override;
  void ShowHelpPage(HelpPage page) override;
  void ShowAbout(std::string_view program_folder) override;
  void CommitPendingEdits() override;
  void CloseMainWindow() override;
  void UnloadWindow(SideWindow window) override;
  void UnloadContainer() override;

  // ProjectObserver
  void FormClosing(int form) override;
  void FormChanged(int form) override;
  void CurrentFormChanged() override;
  void FormListChanged() override;
  void EventsBarChanged(int form) override;

 private:
  class WorkWatcher;
  void ScheduleRefresh();
  void ScheduleBarRefresh();
  void Refresh();

  MainWindow& window_;
  MDIForm1& shell_;
  DesignWindowsView forms_;
  CodeWindowsView code_;
  MenuWindowsView menus_;
  std::string start_project_;
  QTimer time_;
  QTimer refresh_;
  QTimer keep_;  ///< runs from what the user did until the project is kept
  std::unique_ptr<WorkWatcher> work_;
  QPointer<HelpWindow> help_;  ///< made with its first page
  QPointer<QWidget> held_focus_;
  bool offered_ = false;  ///< the work of a crashed run was offered
  std::unique_ptr<LogoWindow> logo_;
  bool arrow_ = false;
  bool bar_changed_ = false;  ///< the events bar is read again with the next refresh
};

}  // namespace tarnwick
