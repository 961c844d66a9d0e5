// The menu designers on the screen, with the whole program around them.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "inspector/property_sheet.h"
#include "menus/menu_rows.h"
#include "program.h"
#include "qt/menus/menu_preview_view.h"
#include "qt/surface/container.h"

namespace tarnwick {

using menus::Rows;

/// Waits until keys go to the window: one with a transient parent counts as active along with it.
inline bool TakesKeys(const QWidget& window) {
  return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; });
}

/// An open designer.
struct Designer {
  explicit Designer(QDialog& dialog) : Dialog(dialog) {}
  QDialog& Dialog;

  [[nodiscard]] QListWidget& List() const {
    return *Dialog.findChild<QListWidget*>(QStringLiteral("ListMenu"));
  }
  [[nodiscard]] QLineEdit& Text(int index) const {
    return *Dialog.findChild<QLineEdit*>(QStringLiteral("Texto_%1").arg(index));
  }
  [[nodiscard]] QPushButton& Button(int index) const {
    return *Dialog.findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index));
  }
  [[nodiscard]] MenuPreviewView& Preview() const { return *Dialog.findChild<MenuPreviewView*>(); }
  [[nodiscard]] QString Fault() const {
    return Dialog.findChild<QLabel*>(QStringLiteral("Fault"))->text();
  }
  [[nodiscard]] Rows Shown() const {
    Rows rows;
    for (int row = 0; row < List().count(); ++row) {
      rows.push_back(List().item(row)->text().toStdString());
    }
    return rows;
  }
  void Press(int index) const { QTest::mouseClick(&Button(index), Qt::LeftButton); }
  /// A key for whatever has the focus.
  void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const {
    QTest::keyClick(Dialog.windowHandle(), key, held);
  }
  void Type(const char* text) const {
    for (const char letter : std::string_view(text)) {
      QTest::sendKeyEvent(QTest::Click, Dialog.windowHandle(), Qt::Key_unknown,
                          QString(QLatin1Char(letter)), Qt::NoModifier);
    }
  }
  /// Caption, Tab, name, Enter.
  void Add(const char* caption, const char* name) const {
    Type(caption);
    Key(Qt::Key_Tab);
    Type(name);
    Key(Qt::Key_Return);
  }
  void Ok() const { Key(Qt::Key_Return, Qt::ControlModifier); }
  void Cancel() const { Key(Qt::Key_Escape); }
};

class MenuDesigners : public testing::Test {
 protected:
  Program program;

  /// Runs the step in `FormMenu`, opened by its key.
  template <class Step>
  void InMenuEdit(Step step) {
    program.User.Do([step](QDialog& dialog) {
      ASSERT_EQ(dialog.objectName(), "FormMenu");
      step(Designer(dialog));
    });
    program.Key(Qt::Key_M, Qt::ControlModifier);
  }
  /// The same in `FormPopUp`, opened from the row of the selected popup menu.
  template <class Step>
  void InPopUpEdit(Step step) {
    program.User.Do([step](QDialog& dialog) {
      ASSERT_EQ(dialog.objectName(), "FormPopUp");
      step(Designer(dialog));
    });
    program.PressRowButton("AddItems");
  }
  Rows MenuRows() { return menus::RowsOfFormMenu(program.Form()); }
  /// The code editor, wherever it works.
  static QWidget& Code() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
      return window->objectName() == QLatin1String("FormCodigo");
    });
    EXPECT_NE(found, windows.end());
    return **found;
  }
  /// Types into the open code editor and accepts.
  void TypeCode(const std::string& text) {
    ASSERT_TRUE(Code().isVisible());
    ASSERT_TRUE(TakesKeys(Code()));
    program.Type(QString::fromStdString(text));
    program.Key(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_FALSE(Code().isVisible());
  }
  QAbstractButton& Title(int number) {
    return *program.Window()
                .Forms()
                .Window(program.Form().Number())
                ->findChild<QAbstractButton*>(QStringLiteral("mnuBar_%1").arg(number));
  }
};

}  // namespace tarnwick
