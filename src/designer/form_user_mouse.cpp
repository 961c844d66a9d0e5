// The mouse on a design window.
#include <utility>

#include "designer/form_user.h"
#include "designer/hit_test.h"
#include "designer/object_kinds.h"
#include "designer/selection.h"
#include "designer/tool_box.h"
#include "text/strings.h"

namespace tarnwick {

void FormUser::Form_MouseDown(int Button, int /*Shift*/, float X, float Y) {
  if (!Ready()) return;
  EndGesture();
  PressForm(Button, X, Y);
}

void FormUser::PressForm(int Button, float X, float Y) {
  ports_.Host.ClearPanel();
  if (!form_.m_bDesignMode) {
    if (Button != kRightButton) return;
    Select(form_, nullptr);
    ReleaseAndOpenPopUp();
    return;
  }
  const std::optional<Kind> kind = ArmedKind(form_.Objeto);
  if (!kind) {
    PressEmptyForm(Button);
    return;
  }
  PutObject(*kind, X, Y);
  // One press places one object.
  Disarm();
  DragFirstUnder(X, Y);
}

void FormUser::PressEmptyForm(int Button) {
  SelectNothing();
  Disarm();
  ports_.Observer.SelectionChanged(Number());
  if (Button == kRightButton) ReleaseAndOpenPopUp();
}

void FormUser::PutObject(Kind kind, float X, float Y) {
  // One step until the release: placing an object and dragging it at once is one deed.
  const bool own_step = ports_.Steps.Stay(Number(), "place", "Place");
  const ControlRef control = CreateObject(tables_, form_, kind, X, Y);
  if (!control) return;
  Select(form_, control);
  if (own_step) ports_.Steps.NameStep(StepName("Place"));
  placing_ = true;
  if (kind == Kind::TransparentFrame) {
    ports_.Host.EnableTool(kTransparentFrameTool, false);
    ports_.Host.EnableCopyPasteButtons(false);
  }
}

void FormUser::DragFirstUnder(float X, float Y) {
  // The first control found wins, even over the object that was just placed.
  if (const ControlRef control = FirstObjectUnder(form_, X, Y)) {
    DragBegin(control);
    return;
  }
  drag_.DragEnd();
  drag_.ShowHandles(false);
  ports_.Observer.ControlsChanged(Number());
  placing_ = false;
  ports_.Steps.Leave();
}

bool FormUser::ForwardsPress(const DesignControl& control) const {
  const bool armed = ToolArmed();
  if (control.Id == Kind::Image) return armed;
  if (control.Id == Kind::Frame) {
    return armed && !forwarding_frame_ && !Contains(form_.Objeto, InfoOf(Kind::Frame).Name);
  }
  return false;
}

void FormUser::ObjectMouseDown(const ControlRef& control, int Button, int /*Shift*/, float X,
                               float Y) {
  if (!IsLive(control) || !IsObject(*control) || !Ready()) return;
  EndGesture();
  if (ForwardsPress(*control)) {
    forwarding_frame_ = control->Id == Kind::Frame;
    PressForm(Button, X + control->Left, Y + control->Top);
    forwarding_frame_ = false;
    return;
  }
  ports_.Host.EnableCopyPasteButtons(control->Id != Kind::TransparentFrame);
  Select(form_, control);
  if (ToolArmed() && form_.m_bDesignMode) {
    ports_.Host.SetStatus("Press on a free part of the form to place the new " + form_.Objeto);
  }
  if (form_.m_bDesignMode) {
    DragBegin(control);
  } else {
    ports_.Observer.SelectionChanged(Number());
  }
  if (Button == kRightButton) ReleaseAndOpenPopUp();
}

void FormUser::HandleMouseDown(int handle, int Button) {
  if (!Ready()) return;
  EndGesture();
  if (!form_.m_bDesignMode || !IsLive(drag_.DragControl)) return;
  ShowHandles(false);
  if (!drag_.BeginResize(handle)) return;
  if (Button == kRightButton) ReleaseAndOpenPopUp();
}

void FormUser::MouseMove() {
  drag_.Move();
}

void FormUser::MouseUp() {
  if (drag_.Mode() == DragMode::None && tables_.LoadingProject == 1) return;
  if (std::exchange(placing_, false)) {
    FinishGesture();
    ports_.Steps.Leave();
  } else {
    const HistoryStep step(ports_.Steps, Number(), StepName(GestureName()));
    FinishGesture();
  }
}

std::string_view FormUser::GestureName() const {
  return drag_.Mode() == DragMode::Resize ? "Size" : "Move";
}

void FormUser::FinishGesture() {
  ports_.Host.EnableCopyPasteButtons(form_.NameObjet != InfoOf(Kind::TransparentFrame).NameWord);
  drag_.Finish();
  ports_.Observer.ControlsChanged(Number());
  ports_.Observer.SelectionChanged(Number());
  SyncPlaceRows();
  ShowPropertiesIfVisible();
}

void FormUser::ReleaseAndOpenPopUp() {
  // The menu takes the mouse, so the release would never come.
  MouseUp();
  ports_.Host.OpenObjectPopUp(PopUpEntries());
}

void FormUser::EndGesture() {
  if (drag_.Mode() != DragMode::None) MouseUp();
}

void FormUser::DoubleClick() {
  if (!Ready()) return;
  EndGesture();
  if (PopUpEntries().Code) ports_.Host.OpenCode();
}

void FormUser::MenuItemPress(const ControlRef& item) {
  if (!IsLive(item) || item->Class() != ControlClass::Menu || !Ready()) return;
  SelectMenuItem(item);
  ports_.Host.OpenCode();
}

void FormUser::DragBegin(const ControlRef& control) {
  if (!IsLive(control) || !IsObject(*control)) return;
  Select(form_, control);
  ports_.Observer.ControlsChanged(Number());
  ports_.Observer.SelectionChanged(Number());
  drag_.Begin(control);
}

void FormUser::DragEnd() {
  drag_.DragEnd();
  if (std::exchange(placing_, false)) ports_.Steps.Leave();
}

void FormUser::Escape() {
  if (drag_.Mode() != DragMode::None) {
    drag_.Cancel();
    DragCancelled();
    return;
  }
  Disarm();
}

void FormUser::DragCancelled() {
  if (std::exchange(placing_, false)) ports_.Steps.Leave();
  ports_.Observer.ControlsChanged(Number());
  SelectionRefresh();
}

void FormUser::ShowHandles(bool bShowHandles) {
  drag_.ShowHandles(bShowHandles);
  ports_.Observer.SelectionChanged(Number());
}

}  // namespace tarnwick
