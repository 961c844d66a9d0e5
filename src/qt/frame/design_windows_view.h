// The design windows of the container, kept in step with the project.
#pragma once

#include "model/project_observer.h"
#include "qt/surface/design_surface.h"

namespace tarnwick {

class MainWindow;
class MDIForm1;

/// Opens a window for each form, closes it with the form, and has it painted again when what it
/// shows changed.
class DesignWindowsView final : public ProjectObserver {
 public:
  DesignWindowsView(MainWindow& window, MDIForm1& shell) : window_(window), shell_(shell) {}

  void FormOpened(int form) override;
  void FormClosing(int form) override;
  void FormChanged(int form) override;
  void ControlsChanged(int form) override;
  void SelectionChanged(int form) override;
  void CurrentFormChanged() override;
  void MenuBarChanged(int form) override;

 private:
  [[nodiscard]] DesignWindowDoors DoorsOf(int form);

  MainWindow& window_;
  MDIForm1& shell_;
};

}  // namespace tarnwick
