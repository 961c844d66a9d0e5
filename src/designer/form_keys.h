// The keyboard of a design window.
#pragma once

#include "designer/object_commands.h"

namespace tarnwick {

/// Moves and sizes the selected object, walks the objects and runs commands by their keys.
class FormKeys {
 public:
  FormKeys(DesignContext& context, Drag& drag, FormSelection& selection, FormGestures& gestures,
           ObjectCommands& commands)
      : context_(context),
        drag_(drag),
        selection_(selection),
        gestures_(gestures),
        commands_(commands) {}

  /// A key of the window or of an object on it. Returns true when the key has a meaning here; all
  /// keys have none but to wait while the mouse drags.
  bool KeyDown(int KeyCode, int Shift);

 private:
  void MoveKey(int KeyCode, int Shift);
  void WalkObjects(bool forward);

  DesignContext& context_;
  Drag& drag_;
  FormSelection& selection_;
  FormGestures& gestures_;
  ObjectCommands& commands_;
};

}  // namespace tarnwick
