#include "qt/kit/above_modal.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>

namespace tarnwick {

namespace {

/// Place and size stay, which a change of the parent alone would lose.
void GiveTo(QWidget& window, QWidget& parent) {
  const bool shown = window.isVisible();
  const QByteArray place = window.saveGeometry();
  window.setParent(&parent, window.windowFlags());
  window.restoreGeometry(place);
  if (shown) window.show();
}

}  // namespace

void LetWorkAboveModal(QWidget& window, QWidget& home) {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || dialog == &window) return;
  for (const QWidget* above = window.parentWidget(); above != nullptr;
       above = above->parentWidget()) {
    if (above == dialog) return;
  }
  GiveTo(window, *dialog);
  QObject::connect(dialog, &QDialog::finished, &window,
                   [window = QPointer<QWidget>(&window), home = QPointer<QWidget>(&home), dialog] {
                     // It may have been taken above another dialog since.
                     if (window == nullptr || home == nullptr) return;
                     if (window->parentWidget() == dialog) GiveTo(*window, *home);
                   });
}

}  // namespace tarnwick
