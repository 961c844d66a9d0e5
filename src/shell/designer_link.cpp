#include "shell/designer_link.h"

#include "shell/design_surfaces.h"
#include "shell/event_index_numbers.h"

namespace tarnwick {

void DesignerLink::NumberMoved(const ObjectPlace& object, bool back) {
  RenumberEventIndex(state_.Ports.Files, state_.Settings.EventIndexPath(), object, back);
}

bool DesignerLink::RaiseOpenCodeEditor() {
  return state_.RaiseOpenCode();
}

void InspectorLink::SelectObject(DesignForm& form, const ControlRef& control) {
  FormUser* surface = surfaces_.Of(form.Number());
  if (surface == nullptr || state_.RaiseOpenCode()) return;
  if (control == nullptr) {
    surface->SelectForm();
  } else {
    surface->SelectObject(control);
  }
}

void InspectorLink::borderstylea(DesignForm& form, std::int16_t style) {
  if (FormUser* surface = surfaces_.Of(form.Number())) surface->Frame().borderstylea(style);
}

void InspectorLink::FormRecolored(DesignForm& form) {
  FormUser* surface = surfaces_.Of(form.Number());
  if (surface == nullptr) return;
  surface->PintaPuntitos();
  state_.View->Gestures(form.Number()).TakeFocus();
}

void InspectorLink::PlaceChanged(DesignForm& form) {
  FormUser* surface = surfaces_.Of(form.Number());
  const ControlRef handle = form.Element(Kind::Handle, 0);
  if (surface == nullptr || handle == nullptr || !handle->Visible) return;
  surface->Selection().ShowHandles(true);
  state_.Observer.SelectionChanged(form.Number());
}

}  // namespace tarnwick
