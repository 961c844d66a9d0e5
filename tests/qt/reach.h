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
bool IsToolkits(const QWidget& widget);

QString NameOf(QWidget& widget);

/// The widgets below a window, itself left out, that take the focus or a press and have no name;
/// and the buttons whose picture no tip explains.
QStringList Nameless(QWidget& window);

std::string Text(const QStringList& lines);

/// The buttons of a dialog that no tip explains, where the key for them stands too.
QStringList Tipless(QWidget& dialog);

/// The widgets of an open dialog that a press reaches and the Tab key does not: each takes the
/// focus on the walk, or lies with others in a group that the arrows walk.
QStringList Unreached(QWidget& dialog);

}  // namespace tarnwick
