#include "qt/frame/design_windows_view.h"

#include "qt/frame/main_window.h"
#include "qt/grid/property_panel.h"
#include "qt/surface/container.h"
#include "shell/command_center.h"
#include "shell/form_commands.h"
#include "shell/mdi_form.h"

namespace tarnwick {

DesignWindowDoors DesignWindowsView::DoorsOf(int form) {
  DesignWindowDoors doors;
  doors.User = [this, form] { return shell_.User(form); };
  doors.Record = [this, form]() -> const FormRec* { return shell_.Tables().Form(form); };
  doors.Activated = [this, form] { shell_.Forms().Activated(form); };
  doors.PointerMoved = [this](QPoint place) { window_.SetPointerText(place); };
  doors.Closed = [this, form] { shell_.Forms().WindowClosed(form); };
  doors.Escape = [this] { shell_.Commands().Escape(); };
  doors.Resized = [this] { shell_.RefreshStatus(); };
  doors.FocusIsKept = [this] { return window_.Properties().KeepsFocus(); };
  return doors;
}

void DesignWindowsView::FormOpened(int form) {
  DesignForm* design = shell_.Tables().User(form);
  if (design != nullptr) window_.Forms().Open(form, *design, DoorsOf(form));
}

void DesignWindowsView::FormClosing(int form) {
  window_.Forms().Close(form);
  // The next project's pictures may be others under the same names.
  if (window_.Forms().IsEmpty()) window_.Pictures().Clear();
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

}  // namespace tarnwick
