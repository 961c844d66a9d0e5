// The design windows of the container, kept in step with the project.
#pragma once

#include "model/project_observer.h"
#include "qt/surface/design_window_host.h"

namespace tarnwick {

class MainWindow;
class MDIForm1;

/// Opens a window for each form, closes it with the form, and has it painted again when what it
/// shows changed. Serves the design windows in what they ask of the program.
class DesignWindowsView final : public ProjectObserver, public DesignWindowHost {
 public:
  DesignWindowsView(MainWindow& window, MDIForm1& shell) : window_(window), shell_(shell) {}

  // ProjectObserver
  void FormOpened(int form) override;
  void FormClosing(int form) override;
  void FormChanged(int form) override;
  void ControlsChanged(int form) override;
  void SelectionChanged(int form) override;
  void CurrentFormChanged() override;
  void FormListChanged() override;
  void MenuBarChanged(int form) override;

  // DesignWindowHost
  void Activated(int form) override;
  void CloseRequested(int form) override;
  void PointerMoved(QPoint pixel) override;
  void EscapePressed() override;
  void Resized() override;
  [[nodiscard]] bool FocusIsKept() override;

 private:
  MainWindow& window_;
  MDIForm1& shell_;
};

}  // namespace tarnwick
