// The text field with the keyboard focus, for the commands of the Edit menu.
#pragma once

#include <cstdint>

class QWidget;

namespace tarnwick {

/// What can be done to a text.
enum class TextEdit : std::uint8_t { Cut, Copy, Paste, Delete, Undo, Redo };

/// The field that the user types in, or reads in; null while nothing that holds text has the
/// focus. Line edits, plain and rich text edits count.
[[nodiscard]] QWidget* FocusedText();
/// Whether the edit makes sense in the field now: nothing is cut from a field that is read only.
[[nodiscard]] bool CanEdit(const QWidget& field, TextEdit edit);
/// Does it, as the field's own key would.
void EditText(QWidget& field, TextEdit edit);

}  // namespace tarnwick
