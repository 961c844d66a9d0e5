#include "designer/drag.h"

#include "designer/combo_control.h"

namespace tarnwick {

namespace {

constexpr std::array<HandleInfo, kHandleCount> kHandles{{
    {8, true, true, false, false},
    {7, false, true, false, false},
    {6, false, true, true, false},
    {9, false, false, true, false},
    {8, false, false, true, true},
    {7, false, false, false, true},
    {6, true, false, false, true},
    {9, true, false, false, false},
}};

/// Handles are placed in this order, corner and opposite corner in turn.
constexpr std::array<int, kHandleCount> kPlacingOrder{0, 4, 1, 5, 2, 6, 3, 7};

/// Position of a handle along one axis: on the near edge, the far edge, or between them. Half a
/// pixel pulls it into the control, so that it sits on the border and not beside it.
float PlaceAlong(bool near_edge, bool far_edge, std::int32_t start, std::int32_t length, int half,
                 std::int32_t pull) noexcept {
  const auto from = static_cast<float>(start);
  const auto extent = static_cast<float>(length);
  const auto half_size = static_cast<float>(half);
  const auto inward = static_cast<float>(pull);
  if (near_edge) return from - half_size + inward;
  if (far_edge) return from + extent - half_size - inward;
  return from + extent / 2 - half_size;
}

}  // namespace

const std::array<HandleInfo, kHandleCount>& Handles() noexcept {
  return kHandles;
}

void Drag::Begin(const ControlRef& control) {
  if (!control) return;
  DragControl = control;
  TakeScreenRect();
  origin_ = press_;
  origin_.X = WholeUnits(static_cast<double>(origin_.X) - rect_.Left);
  origin_.Y = WholeUnits(static_cast<double>(origin_.Y) - rect_.Top);
  DrawRubberBand();
  mode_ = DragMode::Move;
  gesture_.ReleaseCapture();
  Confine();
}

bool Drag::BeginResize(int handle) {
  if (!DragControl || handle < 0 || handle >= kHandleCount) return false;
  TakeScreenRect();
  handle_ = handle;
  mode_ = DragMode::Resize;
  DrawRubberBand();
  Confine();
  return true;
}

void Drag::Move() {
  if (mode_ == DragMode::None) return;
  const ScreenPoint cursor = gesture_.CursorPosition();
  // A handle is wider than the edge under it: an edge follows the mouse once that has moved.
  if (!moved_ && cursor.X == press_.X && cursor.Y == press_.Y) return;
  moved_ = true;
  // Taken as floating values, as the sizes of a rectangle are wherever it only moves.
  const double width = static_cast<double>(rect_.Right) - rect_.Left;
  const double height = static_cast<double>(rect_.Bottom) - rect_.Top;
  DrawRubberBand();
  if (mode_ == DragMode::Move) {
    rect_.Left = WholeUnits(static_cast<double>(cursor.X) - origin_.X);
    rect_.Top = WholeUnits(static_cast<double>(cursor.Y) - origin_.Y);
    rect_.Right = WholeUnits(rect_.Left + width);
    rect_.Bottom = WholeUnits(rect_.Top + height);
  } else {
    const HandleInfo& handle = kHandles[static_cast<std::size_t>(handle_)];
    if (handle.Left) rect_.Left = WholeUnits(cursor.X);
    if (handle.Top) rect_.Top = WholeUnits(cursor.Y);
    if (handle.Right) rect_.Right = WholeUnits(cursor.X);
    if (handle.Bottom) rect_.Bottom = WholeUnits(cursor.Y);
  }
  DrawRubberBand();
}

void Drag::Finish() {
  if (mode_ == DragMode::None) return;
  DrawRubberBand();
  // An unmoved outline is not written back: a position that is no whole number of pixels would be
  // rounded by it, and a mere press leaves a control where it is.
  if (DragControl && !(rect_ == start_)) {
    rect_.ScreenToTwips(gesture_.ClientOrigin());
    const ControlRef& selected = form_.ControlSel ? form_.ControlSel : DragControl;
    rect_.SetCtrlToRect(*DragControl, form_.NameObjet, *selected);
    FitComboControl(*DragControl);
  }
  ShowHandles(DragControl != nullptr);
  Free();
  gesture_.TakeFocus();
}

void Drag::DragEnd() {
  if (mode_ != DragMode::None) {
    DrawRubberBand();
    Free();
  }
  DragControl = nullptr;
}

void Drag::Cancel() {
  if (mode_ == DragMode::None) return;
  DrawRubberBand();
  Free();
  ShowHandles(DragControl != nullptr);
}

void Drag::DrawRubberBand() {
  gesture_.DrawRubberBand({rect_.Left, rect_.Top, rect_.Right, rect_.Bottom});
}

void Drag::ShowHandles(bool show) {
  if (show && DragControl) {
    rect_.SetRectToCtrl(*DragControl);
    const ControlRef first = form_.Element(Kind::Handle, 0);
    const int half_width = first ? static_cast<int>(first->Width) / 2 : 0;
    const int half_height = first ? static_cast<int>(first->Height) / 2 : 0;
    const std::int32_t pull = WholeUnits(0.5 * kTwipsPerPixel);
    for (const int i : kPlacingOrder) {
      const ControlRef handle = form_.Element(Kind::Handle, i);
      if (!handle) continue;
      const HandleInfo& edges = kHandles[static_cast<std::size_t>(i)];
      handle->Left =
          PlaceAlong(edges.Left, edges.Right, rect_.Left, rect_.Width(), half_width, pull);
      handle->Top =
          PlaceAlong(edges.Top, edges.Bottom, rect_.Top, rect_.Height(), half_height, pull);
    }
  }
  for (int i = 0; i < kHandleCount; ++i) {
    if (const ControlRef handle = form_.Element(Kind::Handle, i)) handle->Visible = show;
  }
}

bool Drag::HandlesShown() const noexcept {
  const ControlRef first = form_.Element(Kind::Handle, 0);
  return first && first->Visible;
}

void Drag::TakeScreenRect() {
  rect_.SetRectToCtrl(*DragControl);
  rect_.TwipsToScreen(gesture_.ClientOrigin());
  start_ = rect_;
  press_ = gesture_.CursorPosition();
  moved_ = false;
}

void Drag::Confine() {
  gesture_.TakeCapture();
  gesture_.ConfineCursor();
}

void Drag::Free() {
  gesture_.FreeCursor();
  gesture_.ReleaseCapture();
  mode_ = DragMode::None;
}

}  // namespace tarnwick
