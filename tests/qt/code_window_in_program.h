// The code window on the screen, with the whole program around it.
#pragma once

#include <QComboBox>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "qt/editor/code_edit.h"
#include "qt/editor/code_window.h"
#include "qt/program.h"

namespace tarnwick {

class CodeWindowTest : public testing::Test {
 protected:
  CodeWindow& Window();
  CodeEdit& Editor();
  QToolButton& Tool(int index);
  QComboBox& Events();
  void OpenCodeOfNewButton();
  void TypeCode(const QString& text);
  void KeyInCode(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier);
  void ChooseEvent(int row);

  Program program;
};

}  // namespace tarnwick
