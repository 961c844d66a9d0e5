#include "qt/frame/design_windows_view.h"

#include "qt/frame/main_window.h"
#include "qt/grid/property_panel.h"
#include "qt/surface/container.h"
#include "shell/command_center.h"
#include "shell/form_commands.h"
#include "shell/mdi_form.h"

namespace tarnwick {

void DesignWindowsView::FormOpened(int form) {
  if (FormUser* const user = shell_.User(form)) window_.Forms().Open(*user, *this);
}

void DesignWindowsView::FormClosing(int form) {
  window_.Forms().Close(form);
}

void DesignWindowsView::FormListChanged() {
  const int forms = shell_.Tables().FormsCount;
  window_.Forms().ForgetAbove(forms);
  // The next project's pictures may be others under the same names.
  if (forms == 0) window_.Pictures().Clear();
}

void DesignWindowsView::FormChanged(int form) {
  if (DesignWindow* window = window_.Forms().Window(form)) window->SyncWithForm();
}

void DesignWindowsView::ControlsChanged(int form) {
  if (DesignWindow* window = window_.Forms().Window(form)) window->Surface().update();
}

void DesignWindowsView::SelectionChanged(int form) {
  ControlsChanged(form);
}

void DesignWindowsView::CurrentFormChanged() {
  const DesignForm* current = shell_.Tables().CurrentForm;
  window_.Forms().SetCurrent(current != nullptr ? current->Number() : 0);
}

void DesignWindowsView::MenuBarChanged(int form) {
  if (DesignWindow* window = window_.Forms().Window(form)) window->SyncMenuBar();
}

void DesignWindowsView::Activated(int form) {
  shell_.Forms().Activated(form);
}

void DesignWindowsView::CloseRequested(int form) {
  shell_.Forms().WindowClosed(form);
}

void DesignWindowsView::PointerMoved(QPoint pixel) {
  window_.SetPointerText(pixel);
}

void DesignWindowsView::EscapePressed() {
  shell_.Commands().Escape();
}

void DesignWindowsView::Resized() {
  shell_.RefreshStatus();
}

bool DesignWindowsView::FocusIsKept() {
  return window_.Properties().KeepsFocus();
}

}  // namespace tarnwick
