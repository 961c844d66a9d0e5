// The mouse on a design window: placing, selecting, moving and sizing objects.
#pragma once

#include <string_view>

#include "designer/form_selection.h"
#include "designer/input_codes.h"

namespace tarnwick {

/// What presses, moves and releases do. A view forwards what the user does:
///
///   gestures.ObjectMouseDown(control, kLeftButton, 0, x, y);   // press, x and y of the control
///   gestures.MouseMove();                                      // any move while captured
///   gestures.MouseUp();                                        // any release
///
/// Positions are twips. A press on a control comes with the position within the control, a press
/// on the window with the position within the window. Every operation is total.
class FormGestures {
 public:
  FormGestures(DesignContext& context, Drag& drag, FormSelection& selection)
      : context_(context), drag_(drag), selection_(selection) {}

  [[nodiscard]] DragMode Mode() const noexcept { return drag_.Mode(); }

  void Form_MouseDown(int Button, int Shift, float X, float Y);
  void ObjectMouseDown(const ControlRef& control, int Button, int Shift, float X, float Y);
  void HandleMouseDown(int handle, int Button);
  void MouseMove();
  /// Releases on the window, its objects and handles alike.
  void MouseUp();
  /// Places an object of the armed tool on a free part of the form. False without an armed tool or
  /// on a locked form.
  bool PlaceByKey();
  /// Opens the code of the selection, when its kind has events.
  void DoubleClick();

  /// Gives up a gesture: the object stays where it was and stays selected. Without a gesture an
  /// armed tool is put down. Neither selection nor lock change.
  void Escape();
  /// Ends a gesture that runs, as its release would.
  void End();

  /// Selects an object and starts a move of it at the cursor.
  void DragBegin(const ControlRef& control);
  /// Gives up a gesture and clears the drag references.
  void DragEnd();

 private:
  [[nodiscard]] bool ToolArmed() const;
  [[nodiscard]] bool ForwardsPress(const DesignControl& control) const;
  [[nodiscard]] std::string_view StepAction() const;
  void PressForm(int Button, float X, float Y);
  void PressEmptyForm(int Button);
  void PutObject(Kind kind, float X, float Y);
  void DragFirstUnder(float X, float Y);
  void Finish();
  void Disarm();
  void ReleaseAndOpenPopUp();

  DesignContext& context_;
  Drag& drag_;
  FormSelection& selection_;
  bool placing_ = false;  ///< the gesture began by placing an object and is one step with it
};

}  // namespace tarnwick
