// Keys of the toolkit as the design surface takes them.
#pragma once

class QKeyEvent;

namespace tarnwick {

/// The platform's code of a key; 0 for one that has no meaning to a design form.
[[nodiscard]] int KeyCodeOf(const QKeyEvent& event);
/// Shift, control and alt as bits 1, 2 and 4.
[[nodiscard]] int ShiftBitsOf(const QKeyEvent& event);

}  // namespace tarnwick
