// The gesture of a design window: moving or sizing one control behind a rubber band.
#pragma once

#include <array>
#include <cstdint>

#include "designer/rect.h"
#include "model/design_form.h"
#include "platform/ports.h"

namespace tarnwick {

/// One selection handle: its mouse pointer, and the edges of the outline that follow the mouse.
struct HandleInfo {
  int Pointer;  ///< 6 sizes "/", 7 up and down, 8 "\\", 9 left and right
  bool Left;
  bool Top;
  bool Right;
  bool Bottom;
};
inline constexpr int kHandleCount = 8;
/// The handles clockwise from the top left corner.
[[nodiscard]] const std::array<HandleInfo, kHandleCount>& Handles() noexcept;

enum class DragMode : std::int16_t { None = 0, Move = 1, Resize = 2 };

/// Drag state and handles of one design window. The control stays where it is until the release;
/// meanwhile only an outline follows the mouse. A gesture holds the mouse capture and confines
/// the cursor from its start to Finish or DragEnd.
class Drag {
 public:
  Drag(DesignForm& form, GesturePort& gesture) noexcept : form_(form), gesture_(gesture) {}

  /// Control of the gesture and of the handles; null: handles have nothing to sit on.
  ControlRef DragControl;

  [[nodiscard]] DragMode Mode() const noexcept { return mode_; }
  [[nodiscard]] int Handle() const noexcept { return handle_; }
  /// The rectangle of the gesture: screen pixels while one runs.
  [[nodiscard]] const CRect& Rect() const noexcept { return rect_; }

  /// Starts a move of a control at the cursor.
  void Begin(const ControlRef& control);
  /// Starts a resize by a handle, 0 to 7; false without a control to size. The handles are hidden
  /// beforehand, for the window must be painted without them before the outline is drawn.
  bool BeginResize(int handle);
  /// Follows the cursor; nothing outside a gesture.
  void Move();
  /// Ends a gesture: the control takes the rectangle unless that never changed, the handles come
  /// up, capture and cursor are free, the window has the focus.
  void Finish();
  /// Clears the drag references. A gesture under way is given up: its outline goes, capture and
  /// cursor are free, the control stays.
  void DragEnd();
  /// Gives a gesture up and shows the handles where the control still is.
  void Cancel();
  /// True while the handles are to be seen.
  [[nodiscard]] bool HandlesShown() const noexcept;
  /// Draws the outline; a second call erases it.
  void DrawRubberBand();
  /// Shows the handles on the drag control, or hides them where they are. Without a drag control
  /// they come up at their old positions.
  void ShowHandles(bool show);

 private:
  void TakeScreenRect();
  void Confine();
  void Free();

  DesignForm& form_;
  GesturePort& gesture_;
  DragMode mode_ = DragMode::None;
  int handle_ = 0;
  ScreenPoint origin_;
  ScreenPoint press_;  ///< the cursor when the gesture began
  bool moved_ = false;
  CRect rect_;
  CRect start_;
};

}  // namespace tarnwick
