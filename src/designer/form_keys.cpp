#include "designer/form_keys.h"

#include <algorithm>

#include "designer/combo_control.h"
#include "designer/grid.h"
#include "designer/rect.h"
#include "designer/selection.h"
#include "model/units.h"

namespace tarnwick {

bool FormKeys::KeyDown(int KeyCode, int Shift) {
  if (KeyCode == keys::kF5) {
    gestures_.End();
    if (context_.Tables.LoadingProject != 1) context_.Ports.Host.CompileAndRun();
    return true;
  }
  // While the mouse drags, keys wait for the release.
  if (gestures_.Mode() != DragMode::None || !context_.Ready()) return true;
  switch (KeyCode) {
    case keys::kLeft:
    case keys::kUp:
    case keys::kRight:
    case keys::kDown:
      MoveKey(KeyCode, Shift);
      return true;
    case keys::kTab:
      WalkObjects((Shift & kShiftBit) == 0);
      return true;
    case keys::kReturn:
      // Where a tool is armed, Enter does what a press on a free part of the form does.
      if (!gestures_.PlaceByKey()) gestures_.DoubleClick();
      return true;
    case keys::kF7:
      gestures_.DoubleClick();
      return true;
    default:
      break;
  }
  commands_.PasteObject(KeyCode, Shift);
  commands_.DeletObject(KeyCode, Shift);
  commands_.CopyObject(KeyCode, Shift);
  if (KeyCode == keys::kDelete && !context_.Form.m_bDesignMode) {
    commands_.RefuseLocked();
  } else {
    commands_.CutObject(KeyCode);
  }
  const bool clipboard_key =
      Shift == kCtrlBit && (KeyCode == keys::kX || KeyCode == keys::kC || KeyCode == keys::kV);
  return clipboard_key || KeyCode == keys::kDelete;
}

void FormKeys::MoveKey(int KeyCode, int Shift) {
  const ControlRef control = context_.Form.ControlSel;
  if (!context_.Form.m_bDesignMode || !control) return;
  const HistoryStep step(context_.Ports.Steps, context_.Number(),
                         context_.StepName((Shift & kShiftBit) != 0 ? "Size" : "Move"));
  const bool across = KeyCode == keys::kLeft || KeyCode == keys::kRight;
  const bool upward = KeyCode == keys::kRight || KeyCode == keys::kDown;
  const int pixel = upward ? kTwipsPerPixel : -kTwipsPerPixel;
  float& position = across ? control->Left : control->Top;
  if (Shift == 0) {
    position = NextGridLine(position, upward);
  } else if (Shift == kCtrlBit) {
    position += static_cast<float>(pixel);
  } else if (Shift == kShiftBit) {
    CRect rect;
    rect.SetRectToCtrl(*control);
    if (across) {
      rect.SetWidth(std::max(rect.Width() + pixel, 0));
    } else {
      rect.SetHeight(std::max(rect.Height() + pixel, 0));
    }
    rect.SetCtrlToRect(*control, context_.Form.NameObjet, *control);
    FitComboControl(*control);
  } else {
    return;
  }
  drag_.DragControl = control;
  selection_.ObjectsMoved();
}

void FormKeys::WalkObjects(bool forward) {
  selection_.SelectObject(NeighbourOf(context_.Form, context_.Form.ControlSel, forward));
}

}  // namespace tarnwick
