#include "designer/object_commands.h"

#include "designer/grid.h"
#include "designer/object_kinds.h"
#include "designer/selection.h"
#include "designer/settle.h"

namespace tarnwick {

bool ObjectCommands::Refused(int KeyCode, int Shift, int key) const {
  if (Shift != kCtrlBit || KeyCode != key) return true;
  if (context_.Form.m_bDesignMode) return false;
  RefuseLocked();
  return true;
}

void ObjectCommands::RefuseLocked() const {
  context_.ShowMessage("Need to Unblock controls before copy/cut/paste");
}

void ObjectCommands::DeletObject(int KeyCode, int Shift) {
  if (Refused(KeyCode, Shift, keys::kX)) return;
  CutObject(keys::kDelete);
}

void ObjectCommands::CopyObject(int KeyCode, int Shift) {
  if (Refused(KeyCode, Shift, keys::kC)) return;
  // The kind has no copies; what was copied before can still be pasted.
  const ControlRef& selected = context_.Form.ControlSel;
  if (selected && selected->Id == Kind::TransparentFrame) return;
  clipboard_.Copy(context_.Form);
}

void ObjectCommands::CutObject(int KeyCode) {
  if (KeyCode != keys::kDelete) return;
  const HistoryStep step(context_.Ports.Steps, context_.Number(), context_.StepName("Delete"));
  const ControlRef control = context_.Form.ControlSel;
  selection_.Clear();
  if (control) DeleteSelected(control);
  context_.Ports.Host.CommandsChanged();
  selection_.Refresh();
}

void ObjectCommands::DeleteSelected(const ControlRef& control) {
  const int form = context_.Number();
  context_.Ports.Host.RemoveHeadRow(*control);
  DeleteObject(context_.Tables, context_.Form, control);
  if (SettleForm(context_.Tables, context_.Form, control->Id, control->Index)) {
    const ObjectPlace object{form, control->Id, control->Index};
    NumberMoved(object, false);
    context_.Ports.Host.NumberMoved(object, false);
    context_.Ports.Observer.EventsBarChanged(form);
  }
  context_.Ports.Observer.ControlsChanged(form);
}

void ObjectCommands::PasteObject(int KeyCode, int Shift) {
  if (Refused(KeyCode, Shift, keys::kV)) return;
  gestures_.End();
  const HistoryStep step(context_.Ports.Steps, context_.Number(), "Paste");
  const bool source_gone = clipboard_.CopySource && !clipboard_.SourceIsLive(context_.Form);
  const ControlRef control = clipboard_.Paste(context_.Tables, context_.Form);
  if (!control) return context_.Ports.Host.SetStatus(clipboard_.WhyNothing());
  context_.Ports.Steps.NameStep("Paste " + control->Tag);
  if (source_gone) {
    context_.Ports.Host.SetStatus("The copied object is gone: " + control->Tag + " is a new one");
  }
  // A drag that begins and ends at once makes the copy the selection, as a press would.
  gestures_.DragBegin(control);
  gestures_.MouseUp();
}

void ObjectCommands::ToggleLock() {
  gestures_.End();
  DesignForm& form = context_.Form;
  form.m_bDesignMode = !form.m_bDesignMode;
  if (!form.m_bDesignMode) {
    gestures_.DragEnd();
    selection_.ShowHandles(false);
  }
  context_.Ports.Host.CommandsChanged();
}

void ObjectCommands::BringToFront() {
  ChangeOrder("Bring to front", true);
}

void ObjectCommands::SendToBack() {
  ChangeOrder("Stay back", false);
}

void ObjectCommands::ChangeOrder(std::string_view action, bool front) {
  DesignForm& form = context_.Form;
  if (!form.ControlSel) return;
  const HistoryStep step(context_.Ports.Steps, context_.Number(), context_.StepName(action));
  form.ZOrder(form.ControlSel, front);
  context_.Ports.Observer.ControlsChanged(context_.Number());
}

void ObjectCommands::aligngrid() {
  gestures_.End();
  const HistoryStep step(context_.Ports.Steps, context_.Number(), "Align To Grid");
  DesignForm& form = context_.Form;
  FormRec* record = context_.Record();
  // The walk is by index: controls can come and go during the yield.
  for (std::size_t i = 1; i < form.Controls().size(); ++i) {
    const ControlRef control = form.Controls()[i];
    context_.Ports.Screen.Yield();
    if (!control->Visible || !IsObject(*control)) continue;
    control->Left = SnapToGrid(control->Left);
    control->Top = SnapToGrid(control->Top);
    if (record != nullptr && control->Id == Kind::TransparentFrame) {
      StoreFramePlace(*record, *control);
    }
  }
  selection_.ObjectsMoved();
}

void ObjectCommands::NumberMoved(const ObjectPlace& object, bool back) {
  clipboard_.NumberMoved(object.Id, object.Number, back);
}

}  // namespace tarnwick
