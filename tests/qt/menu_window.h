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
bool TakesKeys(const QWidget& window);

/// An open designer.
struct Designer {
  explicit Designer(QDialog& dialog);
  QDialog& Dialog;

  [[nodiscard]] QListWidget& List() const;
  [[nodiscard]] QLineEdit& Text(int index) const;
  [[nodiscard]] QPushButton& Button(int index) const;
  [[nodiscard]] MenuPreviewView& Preview() const;
  [[nodiscard]] QString Fault() const;
  [[nodiscard]] Rows Shown() const;
  void Press(int index) const;
  /// A key for whatever has the focus.
  void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const;
  void Type(const char* text) const;
  /// Caption, Tab, name, Enter.
  void Add(const char* caption, const char* name) const;
  void Ok() const;
  void Cancel() const;
};

class MenuDesigners : public testing::Test {
 protected:
  MenuDesigners();
  ~MenuDesigners() override;

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
  Rows MenuRows();
  /// The code editor, wherever it works.
  static QWidget& Code();
  /// Types into the open code editor and accepts.
  void TypeCode(const std::string& text);
  QAbstractButton& Title(int number);
};

}  // namespace tarnwick
