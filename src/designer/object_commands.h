// The Edit commands of a design window.
#pragma once

#include "designer/form_gestures.h"
#include "designer/object_clipboard.h"

namespace tarnwick {

/// Cut, copy, paste, delete, lock, z-order and grid of one form. Cut, copy and paste take the key
/// that asks for them and have no effect for any other: the menu and the toolbar pass it too.
class ObjectCommands {
 public:
  ObjectCommands(DesignContext& context, FormSelection& selection, FormGestures& gestures)
      : context_(context), selection_(selection), gestures_(gestures) {}

  /// Deletes the selected object for the Delete key. The lock is not looked at: callers do that.
  void CutObject(int KeyCode);
  /// Deletes the selected object for Ctrl+X; nothing is copied.
  void DeletObject(int KeyCode, int Shift);
  void CopyObject(int KeyCode, int Shift);
  void PasteObject(int KeyCode, int Shift);
  /// Locks the form or lifts the lock.
  void ToggleLock();
  /// Shows the message that a locked form is not edited.
  void RefuseLocked() const;
  void BringToFront();
  void SendToBack();
  /// Moves every object to the nearest point of the grid.
  void aligngrid();

  /// The number of an object was taken out of its kind, or put back: the copy source follows.
  void NumberMoved(const ObjectPlace& object, bool back);

 private:
  [[nodiscard]] bool Refused(int KeyCode, int Shift, int key) const;
  void DeleteSelected(const ControlRef& control);
  void ChangeOrder(std::string_view action, bool front);

  DesignContext& context_;
  FormSelection& selection_;
  FormGestures& gestures_;
  ObjectClipboard clipboard_;
};

}  // namespace tarnwick
