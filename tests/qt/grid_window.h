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
  GridWindow();
  ~GridWindow() override;

  Program program;

  PropertySheet& Sheet();
  int RowOf(std::string_view name);
  QLineEdit& Cell(std::string_view row);
  QLabel& NameOf(std::string_view row);
  QToolButton& Button(const char* name);
  QListWidget& List();
  /// The row is selected by a press on its name.
  void Enter(std::string_view row);
  /// Selects a row and types over its value.
  void Type(std::string_view row, const QString& text);
  /// The colour behind a row's name, as the window shows it.
  QColor BackOf(std::string_view row);
  std::string Shown(std::string_view row);
  std::string Focused();
  std::string CellName(std::string_view row);
  void ExpectLine(std::string_view line);
};

}  // namespace tarnwick
