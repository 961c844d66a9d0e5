// Where a window of the program stands.
#pragma once

class QWidget;

namespace tarnwick {

/// Puts a window that has no position yet over the middle of its parent's window, within the
/// screen. One that has been moved, by the program or the user, stays.
void PlaceOverParent(QWidget& window);

/// Gives a window another parent; position, size and, when it is shown, that it is shown stay.
void GiveToParent(QWidget& window, QWidget& parent);

}  // namespace tarnwick
