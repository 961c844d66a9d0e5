#include "designer/form_user.h"

#include "designer/grid.h"
#include "designer/selection.h"
#include "model/units.h"

namespace tarnwick {

namespace {

constexpr int kHandlePixels = 7;

}  // namespace

FormUser::FormUser(DesignForm& form, ProjectTables& tables, DesignerPorts ports)
    : context_{form, tables, ports},
      drag_(form, ports.Gesture),
      frame_(context_),
      selection_(context_, drag_),
      gestures_(context_, drag_, selection_),
      commands_(context_, selection_, gestures_),
      keys_(context_, drag_, selection_, gestures_, commands_) {}

void FormUser::Form_Load() {
  PintaPuntitos();
  frame_.TakeBorderOfRecord();
}

void FormUser::PintaPuntitos() {
  ForEachGridPoint([this](int /*x*/, int /*y*/) { context_.Ports.Screen.Yield(); });
  for (int i = 0; i < kHandleCount; ++i) {
    const ControlRef handle = context_.Form.Element(Kind::Handle, i);
    if (!handle) continue;
    handle->Width = kHandlePixels * kTwipsPerPixel;
    handle->Height = kHandlePixels * kTwipsPerPixel;
  }
  context_.Ports.Observer.ControlsChanged(Number());
}

void FormUser::SelectObject(const ControlRef& control) {
  if (!context_.IsLive(control) || !IsObject(*control)) return;
  gestures_.End();
  selection_.SelectObject(control);
}

void FormUser::SelectMenuItem(const ControlRef& item) {
  if (!context_.IsLive(item) || item->Class() != ControlClass::Menu) return;
  gestures_.End();
  selection_.SelectMenuItem(item);
}

void FormUser::MenuItemPress(const ControlRef& item) {
  if (!context_.IsLive(item) || item->Class() != ControlClass::Menu || !context_.Ready()) return;
  SelectMenuItem(item);
  context_.Ports.Host.OpenCode();
}

void FormUser::Restored() {
  drag_.DragEnd();
  frame_.TakeBorderOfRecord();
  if (context_.Form.m_bDesignMode) drag_.DragControl = context_.Form.ControlSel;
  drag_.ShowHandles(drag_.DragControl != nullptr);
  context_.Ports.Host.CommandsChanged();
  selection_.Refresh();
}

void FormUser::NumberMoved(const ObjectPlace& object, bool back) {
  commands_.NumberMoved(object, back);
  context_.Ports.Host.NumberMoved(object, back);
}

}  // namespace tarnwick
