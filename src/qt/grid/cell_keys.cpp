#include "qt/grid/cell_keys.h"

#include <algorithm>
#include <array>

namespace tarnwick {

bool OpensPicker(const QKeyEvent& event) {
  return event.key() == Qt::Key_F4 ||
         (event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier));
}

bool IsEnter(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool BelongsToCell(const QKeyEvent& event) {
  constexpr std::array kKeys{QKeySequence::Cut,      QKeySequence::Copy, QKeySequence::Paste,
                             QKeySequence::Undo,     QKeySequence::Redo, QKeySequence::Delete,
                             QKeySequence::SelectAll};
  const auto same = [&event](QKeySequence::StandardKey key) { return event.matches(key); };
  return OpensPicker(event) || std::any_of(kKeys.begin(), kKeys.end(), same);
}

bool IsTyping(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const bool plain = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
  return plain && !event.text().isEmpty() && event.text().at(0).isPrint();
}

}  // namespace tarnwick
