// The property panel on the screen, with the whole program around it.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "inspector/property_sheet.h"
#include "program.h"

namespace tarnwick {

class GridWindow : public testing::Test {
 protected:
  Program program;

  PropertySheet& Sheet() { return program.Shell().Sheet(); }
  int RowOf(std::string_view name) { return program.GridRow(name); }
  QLineEdit& Cell(std::string_view row) {
    return program.Find<QLineEdit>(QStringLiteral("Text_%1").arg(RowOf(row)));
  }
  QLabel& NameOf(std::string_view row) {
    return program.Find<QLabel>(QStringLiteral("Label_%1").arg(RowOf(row)));
  }
  QToolButton& Button(const char* name) { return program.Find<QToolButton>(name); }
  QListWidget& List() { return program.Find<QListWidget>(QStringLiteral("ListBox")); }
  /// The row is selected by a press on its name.
  void Enter(std::string_view row) {
    program.EnterRow(row);
    EXPECT_EQ(Sheet().RowIndex(), RowOf(row));
  }
  /// Selects a row and types over its value.
  void Type(std::string_view row, const QString& text) {
    Enter(row);
    program.Type(text);
  }
  /// The colour behind a row's name, as the window shows it.
  QColor BackOf(std::string_view row) {
    const QPoint place = NameOf(row).mapTo(&program.Window(), QPoint(2, 2));
    return program.Window().grab(QRect(place, QSize(1, 1))).toImage().pixelColor(0, 0);
  }
  std::string Shown(std::string_view row) { return Cell(row).text().toStdString(); }
  std::string Focused() {
    const QWidget* widget = QApplication::focusWidget();
    return widget != nullptr ? widget->objectName().toStdString() : "";
  }
  std::string CellName(std::string_view row) { return "Text_" + std::to_string(RowOf(row)); }
  void ExpectLine(std::string_view line) {
    const std::string source = program.Source();
    EXPECT_NE(source.find(line), std::string::npos) << line << " in\n" << source;
  }
};

}  // namespace tarnwick
