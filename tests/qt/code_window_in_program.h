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
  CodeWindow& Window() { return program.Find<CodeWindow>(QStringLiteral("FormCodigo")); }
  CodeEdit& Editor() { return program.Find<CodeEdit>(QStringLiteral("Editor")); }
  QToolButton& Tool(int index) {
    auto* tool = Window().findChild<QToolButton*>(QStringLiteral("BtnMenu_%1").arg(index));
    EXPECT_NE(tool, nullptr) << index;
    return *tool;
  }
  QComboBox& Events() { return program.Find<QComboBox>(QStringLiteral("Events")); }
  void OpenCodeOfNewButton() {
    program.Place(0, {40, 60});
    program.Key(Qt::Key_F7);
    Program::Settle();
    ASSERT_TRUE(Window().isVisible());
  }
  void TypeCode(const QString& text) { QTest::keyClicks(Editor().viewport(), text); }
  void KeyInCode(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::keyClick(&Editor(), key, held);
  }
  void ChooseEvent(int row) {
    Events().setCurrentIndex(row);
    Q_EMIT Events().activated(row);
  }

  Program program;
};

}  // namespace tarnwick
