#include "qt/kit/key_codes.h"

#include <QKeyEvent>

#include "designer/input_codes.h"

namespace tarnwick {

int KeyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return 'A' + (key - Qt::Key_A);
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return keys::kF5 - 4 + (key - Qt::Key_F1);
  switch (key) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return keys::kTab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keys::kReturn;
    case Qt::Key_Left:
      return keys::kLeft;
    case Qt::Key_Up:
      return keys::kUp;
    case Qt::Key_Right:
      return keys::kRight;
    case Qt::Key_Down:
      return keys::kDown;
    case Qt::Key_Delete:
      return keys::kDelete;
    default:
      return 0;
  }
}

int ShiftBitsOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers();
  int bits = 0;
  if (held.testFlag(Qt::ShiftModifier)) bits |= kShiftBit;
  if (held.testFlag(Qt::ControlModifier)) bits |= kCtrlBit;
  if (held.testFlag(Qt::AltModifier)) bits |= kAltBit;
  return bits;
}

}  // namespace tarnwick
