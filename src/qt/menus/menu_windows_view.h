// The menu designers as the commands of the main window open them.
#pragma once

#include "menus/menu_designer.h"
#include "shell/shell_windows.h"

class QWidget;

namespace tarnwick {

class MDIForm1;
class MenuDialog;

/// Runs `FormMenu` and `FormPopUp` over the main window, and lets the code editor work above the
/// designer that opened it.
class MenuWindowsView final : public MenuWindows, public menus::CodeOpener {
 public:
  MenuWindowsView(MDIForm1& shell, QWidget& main_window, CodeWindows& code)
      : shell_(shell), main_window_(main_window), code_(code) {}

  void OpenMenuEdit() override;
  void OpenPopUpEdit(int form, int index) override;
  void OpenCode() override;

 private:
  void Run(menus::MenuDesigner& designer);

  MDIForm1& shell_;
  QWidget& main_window_;
  CodeWindows& code_;
  MenuDialog* dialog_ = nullptr;  ///< while a designer is open
};

}  // namespace tarnwick
