// Keys and Edit commands of a design window.
#include <algorithm>

#include "designer/combo_control.h"
#include "designer/form_user.h"
#include "designer/grid.h"
#include "designer/object_kinds.h"
#include "designer/rect.h"
#include "designer/selection.h"
#include "designer/settle.h"
#include "designer/tool_box.h"
#include "model/units.h"

namespace tarnwick {

namespace {

constexpr std::string_view kUnblockFirst = "Need to Unblock controls before copy/cut/paste";

}  // namespace

bool FormUser::KeyDown(int KeyCode, int Shift) {
  if (KeyCode == keys::kF5) {
    EndGesture();
    if (tables_.LoadingProject != 1) ports_.Host.CompileAndRun();
    return true;
  }
  // While the mouse drags, keys wait for the release.
  if (drag_.Mode() != DragMode::None || !Ready()) return true;
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
    case keys::kF7:
      DoubleClick();
      return true;
    default:
      break;
  }
  PasteObject(KeyCode, Shift);
  DeletObject(KeyCode, Shift);
  CopyObject(KeyCode, Shift);
  if (KeyCode == keys::kDelete && !form_.m_bDesignMode) {
    ShowMessage(kUnblockFirst);
  } else {
    CutObject(KeyCode);
  }
  const bool clipboard_key =
      Shift == kCtrlBit && (KeyCode == keys::kX || KeyCode == keys::kC || KeyCode == keys::kV);
  return clipboard_key || KeyCode == keys::kDelete;
}

bool FormUser::Refused(int KeyCode, int Shift, int key) {
  if (Shift != kCtrlBit || KeyCode != key) return true;
  if (form_.m_bDesignMode) return false;
  ShowMessage(kUnblockFirst);
  return true;
}

void FormUser::DeletObject(int KeyCode, int Shift) {
  if (Refused(KeyCode, Shift, keys::kX)) return;
  CutObject(keys::kDelete);
}

void FormUser::CopyObject(int KeyCode, int Shift) {
  if (Refused(KeyCode, Shift, keys::kC)) return;
  // The kind has no copies; what was copied before stays to be pasted.
  if (form_.ControlSel && form_.ControlSel->Id == Kind::TransparentFrame) return;
  clipboard_.Copy(form_);
}

void FormUser::CutObject(int KeyCode) {
  if (KeyCode != keys::kDelete) return;
  const HistoryStep step(ports_.Steps, Number(), StepName("Delete"));
  const ControlRef control = form_.ControlSel;
  SelectNothing();
  if (control) DeleteSelected(control);
  ports_.Host.EnableCopyPasteButtons(true);
  SelectionRefresh();
}

void FormUser::DeleteSelected(const ControlRef& control) {
  ports_.Host.RemoveHeadRow(*control);
  DeleteObject(tables_, form_, control);
  if (SettleForm(tables_, form_, control->Id, control->Index)) {
    NumberMoved({Number(), control->Id, control->Index}, false);
    ports_.Observer.EventsBarChanged(Number());
  }
  if (control->Id == Kind::TransparentFrame) {
    ports_.Host.EnableTool(kTransparentFrameTool, !HasTransparentFrame(form_));
  }
  ports_.Observer.ControlsChanged(Number());
}

void FormUser::PasteObject(int KeyCode, int Shift) {
  if (Refused(KeyCode, Shift, keys::kV)) return;
  EndGesture();
  const HistoryStep step(ports_.Steps, Number(), "Paste");
  const bool source_gone = clipboard_.CopySource && !clipboard_.SourceIsLive(form_);
  const ControlRef control = clipboard_.Paste(tables_, form_);
  if (!control) return;
  ports_.Steps.NameStep("Paste " + control->Tag);
  if (source_gone) {
    ports_.Host.SetStatus("The copied object is gone: " + control->Tag + " is a new one");
  }
  // A drag that begins and ends at once makes the copy the selection, as a press would.
  DragBegin(control);
  MouseUp();
}

void FormUser::ToggleLock() {
  EndGesture();
  form_.m_bDesignMode = !form_.m_bDesignMode;
  if (!form_.m_bDesignMode) {
    DragEnd();
    ShowHandles(false);
  }
  ports_.Host.LockChanged();
}

void FormUser::BringToFront() {
  if (!form_.ControlSel) return;
  const HistoryStep step(ports_.Steps, Number(), StepName("Bring to front"));
  form_.ZOrder(form_.ControlSel, true);
  ports_.Observer.ControlsChanged(Number());
}

void FormUser::SendToBack() {
  if (!form_.ControlSel) return;
  const HistoryStep step(ports_.Steps, Number(), StepName("Stay back"));
  form_.ZOrder(form_.ControlSel, false);
  ports_.Observer.ControlsChanged(Number());
}

void FormUser::aligngrid() {
  EndGesture();
  const HistoryStep step(ports_.Steps, Number(), "Align To Grid");
  FormRec* record = tables_.RecordOf(form_);
  // The walk is by index: the yield may let controls come and go.
  for (std::size_t i = 1; i < form_.Controls().size(); ++i) {
    const ControlRef control = form_.Controls()[i];
    ports_.Screen.Yield();
    if (!control->Visible || !IsObject(*control)) continue;
    control->Left = SnapToGrid(control->Left);
    control->Top = SnapToGrid(control->Top);
    if (record != nullptr && control->Id == Kind::TransparentFrame) {
      StoreFramePlace(*record, *control);
    }
  }
  SettleMoved();
}

void FormUser::SettleMoved() {
  if (drag_.DragControl) drag_.ShowHandles(true);
  ports_.Observer.ControlsChanged(Number());
  SyncPlaceRows();
  SelectionRefresh();
}

void FormUser::MoveKey(int KeyCode, int Shift) {
  const ControlRef control = form_.ControlSel;
  if (!form_.m_bDesignMode || !control) return;
  const HistoryStep step(ports_.Steps, Number(),
                         StepName((Shift & kShiftBit) != 0 ? "Size" : "Move"));
  const bool across = KeyCode == keys::kLeft || KeyCode == keys::kRight;
  const bool upward = KeyCode == keys::kRight || KeyCode == keys::kDown;
  const int pixel = upward ? kTwipsPerPixel : -kTwipsPerPixel;
  float& place = across ? control->Left : control->Top;
  if (Shift == 0) {
    place = NextGridLine(place, upward);
  } else if (Shift == kCtrlBit) {
    place += static_cast<float>(pixel);
  } else if (Shift == kShiftBit) {
    CRect rect;
    rect.SetRectToCtrl(*control);
    if (across) {
      rect.SetWidth(std::max(rect.Width() + pixel, 0));
    } else {
      rect.SetHeight(std::max(rect.Height() + pixel, 0));
    }
    rect.SetCtrlToRect(*control, form_.NameObjet, *control);
    FitComboControl(*control);
  } else {
    return;
  }
  drag_.DragControl = control;
  SettleMoved();
}

void FormUser::WalkObjects(bool forward) {
  SelectObject(NeighbourOf(form_, form_.ControlSel, forward));
}

}  // namespace tarnwick
