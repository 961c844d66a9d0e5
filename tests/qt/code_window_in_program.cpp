#include "qt/code_window_in_program.h"

namespace tarnwick {

CodeWindow& CodeWindowTest::Window() {
  return program.Find<CodeWindow>(QStringLiteral("FormCodigo"));
}

CodeEdit& CodeWindowTest::Editor() {
  return program.Find<CodeEdit>(QStringLiteral("Editor"));
}

QToolButton& CodeWindowTest::Tool(int index) {
  auto* tool = Window().findChild<QToolButton*>(QStringLiteral("BtnMenu_%1").arg(index));
  EXPECT_NE(tool, nullptr) << index;
  return *tool;
}

QComboBox& CodeWindowTest::Events() {
  return program.Find<QComboBox>(QStringLiteral("Events"));
}

void CodeWindowTest::OpenCodeOfNewButton() {
  program.Place(0, {40, 60});
  program.Key(Qt::Key_F7);
  Program::Settle();
  ASSERT_TRUE(Window().isVisible());
}

void CodeWindowTest::TypeCode(const QString& text) {
  QTest::keyClicks(Editor().viewport(), text);
}

void CodeWindowTest::KeyInCode(Qt::Key key, Qt::KeyboardModifiers held) {
  QTest::keyClick(&Editor(), key, held);
}

void CodeWindowTest::ChooseEvent(int row) {
  Events().setCurrentIndex(row);
  Q_EMIT Events().activated(row);
}

}  // namespace tarnwick
