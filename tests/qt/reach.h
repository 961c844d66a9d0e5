// What has no name for those who hear it, and what the keyboard does not reach.
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QStringList>
#include <QTabBar>
#include <QTest>
#include <string>

namespace tarnwick {

/// The toolkit's own helpers within a widget: the arrow of a toolbar without room, the cross of a
/// search field, the arrows of tabs, the list of a combo box and the field within it.
inline bool IsToolkits(const QWidget& widget) {
  return widget.objectName().startsWith(QLatin1String("qt_")) ||
         qobject_cast<const QLineEdit*>(widget.parentWidget()) != nullptr ||
         qobject_cast<const QTabBar*>(widget.parentWidget()) != nullptr ||
         qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr ||
         widget.inherits("QComboBoxListView") || qobject_cast<const QMenu*>(&widget) != nullptr ||
         qobject_cast<const QMenuBar*>(&widget) != nullptr;
}

inline QString NameOf(QWidget& widget) {
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&widget);
  return access == nullptr ? QString() : access->text(QAccessible::Name);
}

/// The widgets below a window, itself left out, that take the focus or a press and have no name;
/// and the buttons whose picture no tip explains.
inline QStringList Nameless(QWidget& window) {
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

inline std::string Text(const QStringList& lines) {
  return lines.join(QLatin1Char('\n')).toStdString();
}

/// The buttons of a dialog that no tip explains, where the key for them stands too.
inline QStringList Tipless(QWidget& dialog) {
  QStringList found;
  for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
    if (button->toolTip().isEmpty()) found.append(button->text());
  }
  return found;
}

/// The widgets of an open dialog that a press reaches and the Tab key does not: each takes the
/// focus on the walk, or lies with others in a group that the arrows walk.
inline QStringList Unreached(QWidget& dialog) {
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
