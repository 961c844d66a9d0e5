#include "qt/kit/focused_text.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

namespace tarnwick {

namespace {

/// What the kinds of fields have in common, though they share no class.
struct FieldState {
  bool ReadOnly = false;
  bool HasSelection = false;
  bool CanUndo = false;
  bool CanRedo = false;
};

template <class Edit>
FieldState StateOfEdit(const Edit& edit) {
  return {edit.isReadOnly(), edit.textCursor().hasSelection(), edit.document()->isUndoAvailable(),
          edit.document()->isRedoAvailable()};
}

FieldState StateOf(const QWidget& field) {
  if (const auto* line = qobject_cast<const QLineEdit*>(&field)) {
    return {line->isReadOnly(), line->hasSelectedText(), line->isUndoAvailable(),
            line->isRedoAvailable()};
  }
  if (const auto* plain = qobject_cast<const QPlainTextEdit*>(&field)) return StateOfEdit(*plain);
  if (const auto* rich = qobject_cast<const QTextEdit*>(&field)) return StateOfEdit(*rich);
  return {};
}

template <class Edit>
void DeleteIn(Edit& edit) {
  QTextCursor cursor = edit.textCursor();
  cursor.deleteChar();
}

}  // namespace

QWidget* FocusedText() {
  QWidget* const focused = QApplication::focusWidget();
  const bool text = qobject_cast<QLineEdit*>(focused) != nullptr ||
                    qobject_cast<QPlainTextEdit*>(focused) != nullptr ||
                    qobject_cast<QTextEdit*>(focused) != nullptr;
  return text ? focused : nullptr;
}

bool CanEdit(const QWidget& field, TextEdit edit) {
  const FieldState state = StateOf(field);
  switch (edit) {
    case TextEdit::Cut:
      return state.HasSelection && !state.ReadOnly;
    case TextEdit::Copy:
      return state.HasSelection;
    case TextEdit::Paste:
    case TextEdit::Delete:
      return !state.ReadOnly;
    case TextEdit::Undo:
      return state.CanUndo && !state.ReadOnly;
    case TextEdit::Redo:
      return state.CanRedo && !state.ReadOnly;
  }
  return false;
}

void EditText(QWidget& field, TextEdit edit) {
  if (!CanEdit(field, edit)) return;
  if (edit == TextEdit::Delete) {
    if (auto* line = qobject_cast<QLineEdit*>(&field)) line->del();
    if (auto* plain = qobject_cast<QPlainTextEdit*>(&field)) DeleteIn(*plain);
    if (auto* rich = qobject_cast<QTextEdit*>(&field)) DeleteIn(*rich);
    return;
  }
  // The slots have the same names in all of them.
  constexpr const char* kSlots[] = {"cut", "copy", "paste", "", "undo", "redo"};
  QMetaObject::invokeMethod(&field, kSlots[static_cast<int>(edit)]);
}

}  // namespace tarnwick
