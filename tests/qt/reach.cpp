#include "qt/reach.h"

namespace tarnwick {

bool IsToolkits(const QWidget& widget) {
  return widget.objectName().startsWith(QLatin1String("qt_")) ||
         qobject_cast<const QLineEdit*>(widget.parentWidget()) != nullptr ||
         qobject_cast<const QTabBar*>(widget.parentWidget()) != nullptr ||
         qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr ||
         widget.inherits("QComboBoxListView") || qobject_cast<const QMenu*>(&widget) != nullptr ||
         qobject_cast<const QMenuBar*>(&widget) != nullptr;
}

QString NameOf(QWidget& widget) {
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&widget);
  return access == nullptr ? QString() : access->text(QAccessible::Name);
}

QStringList Nameless(QWidget& window) {
  QStringList found;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (IsToolkits(*widget)) continue;
    const auto* button = qobject_cast<QAbstractButton*>(widget);
    if (button == nullptr && widget->focusPolicy() == Qt::NoFocus) continue;
    const QString who = QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ') +
                        widget->objectName();
    if (NameOf(*widget).isEmpty()) found.append(who + QStringLiteral(": no name"));
    const bool told = button == nullptr || !button->text().isEmpty() || !button->isVisible() ||
                      !button->toolTip().isEmpty();
    if (!told) found.append(who + QStringLiteral(": no tip"));
  }
  return found;
}

std::string Text(const QStringList& lines) {
  return lines.join(QLatin1Char('\n')).toStdString();
}

QStringList Tipless(QWidget& dialog) {
  QStringList found;
  for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
    if (button->toolTip().isEmpty()) found.append(button->text());
  }
  return found;
}

QStringList Unreached(QWidget& dialog) {
  QSet<const QWidget*> met;
  for (int i = 0; i < 60 && QApplication::focusWidget() != nullptr; ++i) {
    for (const QWidget* at = QApplication::focusWidget(); at != nullptr; at = at->parentWidget()) {
      met.insert(at);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QStringList found;
  for (QWidget* widget : dialog.findChildren<QWidget*>()) {
    const bool button = qobject_cast<QAbstractButton*>(widget) != nullptr;
    if (IsToolkits(*widget) || !widget->isVisible() || !widget->isEnabled()) continue;
    if ((!button && widget->focusPolicy() == Qt::NoFocus) || met.contains(widget)) continue;
    found.append(QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ') +
                 widget->objectName());
  }
  return found;
}

}  // namespace tarnwick
