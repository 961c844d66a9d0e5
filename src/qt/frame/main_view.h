// What the shell asks of the main window, and what the main window hears of the project.
#pragma once

#include <QTimer>
#include <memory>
#include <string>
#include <utility>

#include "model/project_observer.h"
#include "qt/surface/design_surface.h"
#include "shell/shell_view.h"

namespace tarnwick {

class MainWindow;
class MDIForm1;
class LogoWindow;

/// Joins the shell and the widgets. It is built before the shell, which it is handed to, and
/// attached to it afterwards.
class MainView final : public ShellView, public ProjectObserver {
 public:
  explicit MainView(MainWindow& window);
  ~MainView() override;

  void Attach(MDIForm1& shell);
  /// A project to open as soon as the start is through.
  void OpenAfterStart(std::string path) { start_project_ = std::move(path); }

  // ShellView
  void SetApplicationTitle(std::string_view title) override;
  void SetTitle(std::string_view title) override;
  void PlaceHeadStrip() override {}
  void LayOutPanels() override;
  void StartTimer() override;
  void StopTimer() override;
  void ShowLogo(std::string_view text) override;
  [[nodiscard]] bool LogoDemandsTimer() override { return false; }
  void CloseLogo() override;
  void ShowContainerAt(int width, int height) override;
  void HideContainer() override;
  void ShowContainer() override;
  void MoveContainer(int top) override;
  [[nodiscard]] bool ContainerMinimised() override { return false; }
  void GrowContainer(float width, float height) override;
  void BringFormUp(int form) override;
  void SetFormVisible(int form, bool visible) override;
  [[nodiscard]] GesturePort& Gestures(int form) override;
  [[nodiscard]] bool PictureLoads(const std::string& path) override;
  void ShowPanel(Panel panel, bool shown) override;
  void CommandsChanged() override;
  void SelectFormLine(int place) override;
  void ShowIcon(std::string_view text, std::string_view picture) override;
  void SetArrowPointer(bool arrow) override;
  void SetStatus(std::string_view text) override;
  void SetSelectionText(std::string_view text) override;
  void ShowObjectPopUp() override;
  void RunFormMain() override;
  void ShowAbout(std::string_view program_folder) override;
  void CommitPendingEdits() override;
  void CloseMainWindow() override;
  void UnloadWindow(SideWindow window) override;
  void UnloadContainer() override;

  // ProjectObserver
  void FormOpened(int form) override;
  void FormClosing(int form) override;
  void FormChanged(int form) override;
  void ControlsChanged(int form) override;
  void SelectionChanged(int form) override;
  void CurrentFormChanged() override;
  void FormListChanged() override;
  void EventsBarChanged(int form) override;
  void MenuBarChanged(int form) override;

 private:
  [[nodiscard]] DesignWindowDoors DoorsOf(int form);
  void ScheduleRefresh();
  void ScheduleBarRefresh();
  void Refresh();

  MainWindow& window_;
  MDIForm1* shell_ = nullptr;
  std::string start_project_;
  QTimer time_;
  QTimer refresh_;
  std::unique_ptr<LogoWindow> logo_;
  std::unique_ptr<GesturePort> no_gestures_;
  bool arrow_ = false;
  bool bar_changed_ = false;  ///< the events bar is read anew with the next refresh
};

}  // namespace tarnwick
