#include "designer/form_gestures.h"

#include <utility>

#include "designer/free_place.h"
#include "designer/hit_test.h"
#include "designer/object_kinds.h"
#include "designer/selection.h"
#include "text/strings.h"

namespace tarnwick {

void FormGestures::Form_MouseDown(int Button, int /*Shift*/, float X, float Y) {
  if (!context_.Ready()) return;
  End();
  PressForm(Button, X, Y);
}

void FormGestures::PressForm(int Button, float X, float Y) {
  context_.Ports.Host.ClearPanel();
  if (!context_.Form.m_bDesignMode) {
    if (Button != kRightButton) return;
    Select(context_.Form, nullptr);
    ReleaseAndOpenPopUp();
    return;
  }
  const std::optional<Kind> kind = ArmedKind(context_.Form.Objeto);
  if (!kind) {
    PressEmptyForm(Button);
    return;
  }
  PutObject(*kind, X, Y);
  // One press places one object.
  Disarm();
  DragFirstUnder(X, Y);
}

void FormGestures::PressEmptyForm(int Button) {
  selection_.Clear();
  Disarm();
  context_.Ports.Observer.SelectionChanged(context_.Number());
  if (Button == kRightButton) ReleaseAndOpenPopUp();
}

void FormGestures::PutObject(Kind kind, float X, float Y) {
  History& steps = context_.Ports.Steps;
  // One step until the release: an object is placed and dragged in one gesture.
  const bool own_step = steps.Stay(context_.Number(), "place", "Place");
  const ControlRef control = CreateObject(context_.Tables, context_.Form, kind, X, Y);
  if (!control) return;
  Select(context_.Form, control);
  if (own_step) steps.NameStep(context_.StepName("Place"));
  placing_ = true;
}

void FormGestures::DragFirstUnder(float X, float Y) {
  // The first control found is dragged, even when it is not the object that was just placed.
  if (const ControlRef control = FirstObjectUnder(context_.Form, X, Y)) {
    DragBegin(control);
    return;
  }
  drag_.DragEnd();
  drag_.ShowHandles(false);
  context_.Ports.Observer.ControlsChanged(context_.Number());
  placing_ = false;
  context_.Ports.Steps.Leave();
}

bool FormGestures::ToolArmed() const {
  return !context_.Form.Objeto.empty() && context_.Form.Objeto != InfoOf(Kind::Form).Name;
}

bool FormGestures::ForwardsPress(const DesignControl& control) const {
  if (!ToolArmed()) return false;
  if (control.Id == Kind::Image) return true;
  return control.Id == Kind::Frame && !Contains(context_.Form.Objeto, InfoOf(Kind::Frame).Name);
}

void FormGestures::ObjectMouseDown(const ControlRef& control, int Button, int /*Shift*/, float X,
                                   float Y) {
  if (!context_.IsLive(control) || !IsObject(*control) || !context_.Ready()) return;
  End();
  if (ForwardsPress(*control)) {
    PressForm(Button, X + control->Left, Y + control->Top);
    return;
  }
  DesignForm& form = context_.Form;
  Select(form, control);
  context_.Ports.Host.CommandsChanged();
  if (ToolArmed() && form.m_bDesignMode) {
    context_.Ports.Host.SetStatus("Press on a free part of the form to place the new " +
                                  form.Objeto);
  }
  if (form.m_bDesignMode) {
    DragBegin(control);
  } else {
    context_.Ports.Observer.SelectionChanged(context_.Number());
  }
  if (Button == kRightButton) ReleaseAndOpenPopUp();
}

void FormGestures::HandleMouseDown(int handle, int Button) {
  if (!context_.Ready()) return;
  End();
  if (!context_.Form.m_bDesignMode || !context_.IsLive(drag_.DragControl)) return;
  selection_.ShowHandles(false);
  if (!drag_.BeginResize(handle)) return;
  if (Button == kRightButton) ReleaseAndOpenPopUp();
}

void FormGestures::MouseMove() {
  drag_.Move();
}

void FormGestures::MouseUp() {
  if (drag_.Mode() == DragMode::None && context_.Tables.LoadingProject == 1) return;
  if (std::exchange(placing_, false)) {
    Finish();
    context_.Ports.Steps.Leave();
  } else {
    const HistoryStep step(context_.Ports.Steps, context_.Number(),
                           context_.StepName(StepAction()));
    Finish();
  }
}

std::string_view FormGestures::StepAction() const {
  return drag_.Mode() == DragMode::Resize ? "Size" : "Move";
}

void FormGestures::Finish() {
  context_.Ports.Host.CommandsChanged();
  drag_.Finish();
  context_.Ports.Observer.ControlsChanged(context_.Number());
  context_.Ports.Observer.SelectionChanged(context_.Number());
  selection_.SyncPlaceRows();
  selection_.ShowProperties();
}

void FormGestures::ReleaseAndOpenPopUp() {
  // The menu takes the mouse, so the release would never come.
  MouseUp();
  context_.Ports.Host.OpenObjectPopUp();
}

void FormGestures::End() {
  if (drag_.Mode() != DragMode::None) MouseUp();
}

bool FormGestures::PlaceByKey() {
  const DesignForm& form = context_.Form;
  const std::optional<Kind> kind = ArmedKind(form.Objeto);
  if (!kind || !form.m_bDesignMode || !context_.Ready()) return false;
  const ControlRef size = form.Element(*kind, 0);
  const FormPlace place =
      size ? FreePlaceFor(form, size->Width, size->Height) : FreePlaceFor(form, 0, 0);
  Form_MouseDown(kLeftButton, 0, place.X, place.Y);
  MouseUp();
  return true;
}

void FormGestures::DoubleClick() {
  if (!context_.Ready()) return;
  End();
  const ControlRef& selected = context_.Form.ControlSel;
  const Kind kind = selected ? selected->Id : Kind::Form;
  if (InfoOf(kind).Events != EventListId::None) context_.Ports.Host.OpenCode();
}

void FormGestures::DragBegin(const ControlRef& control) {
  if (!context_.IsLive(control) || !IsObject(*control)) return;
  Select(context_.Form, control);
  context_.Ports.Observer.ControlsChanged(context_.Number());
  context_.Ports.Observer.SelectionChanged(context_.Number());
  drag_.Begin(control);
}

void FormGestures::DragEnd() {
  drag_.DragEnd();
  if (std::exchange(placing_, false)) context_.Ports.Steps.Leave();
}

void FormGestures::Escape() {
  if (drag_.Mode() == DragMode::None) {
    Disarm();
    return;
  }
  drag_.Cancel();
  if (std::exchange(placing_, false)) context_.Ports.Steps.Leave();
  context_.Ports.Observer.ControlsChanged(context_.Number());
  selection_.Refresh();
}

void FormGestures::Disarm() {
  const bool armed = ToolArmed();
  context_.Form.Objeto.clear();
  if (armed) context_.Ports.Host.CommandsChanged();
}

}  // namespace tarnwick
