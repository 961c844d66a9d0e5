// Menu designers of a version that does not have them.
#pragma once

#include "shell/shell_view.h"
#include "shell/shell_windows.h"

namespace tarnwick {

/// Says in the status bar that the menu designers are missing, so that no command ends in silence.
class MissingMenuWindows final : public MenuWindows {
 public:
  explicit MissingMenuWindows(ShellView& view) : view_(view) {}

  void OpenMenuEdit() override {
    view_.SetStatus("The menu designer is not part of this version.");
  }
  void OpenPopUpEdit(int /*form*/, int /*index*/) override {
    view_.SetStatus("The designer of popup menus is not part of this version.");
  }

 private:
  ShellView& view_;
};

}  // namespace tarnwick
