#include "qt/kit/above_modal.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>

#include "qt/kit/window_place.h"

namespace tarnwick {

void LetWorkAboveModal(QWidget& window, QWidget& home) {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || dialog == &window) return;
  for (const QWidget* above = window.parentWidget(); above != nullptr;
       above = above->parentWidget()) {
    if (above == dialog) return;
  }
  GiveToParent(window, *dialog);
  QObject::connect(dialog, &QDialog::finished, &window,
                   [window = QPointer<QWidget>(&window), home = QPointer<QWidget>(&home), dialog] {
                     // It may have been taken above another dialog since.
                     if (window == nullptr || home == nullptr) return;
                     if (window->parentWidget() == dialog) GiveToParent(*window, *home);
                   });
}

}  // namespace tarnwick
