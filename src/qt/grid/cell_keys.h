// What keys mean in the property grid.
#pragma once

#include <QKeyEvent>

namespace tarnwick {

/// F4 and Alt+Down: the list or the dialog of the row.
[[nodiscard]] bool OpensPicker(const QKeyEvent& event);
[[nodiscard]] bool IsEnter(int key);
/// Keys that a menu command has too, and that in the grid belong to the cell.
[[nodiscard]] bool BelongsToCell(const QKeyEvent& event);
/// A key that puts a character.
[[nodiscard]] bool IsTyping(const QKeyEvent& event);

}  // namespace tarnwick
