// The table of the member list on the real widget, with real keys.
#include <QApplication>
#include <QListWidget>
#include <QTest>
#include <string>

#include <gtest/gtest.h>

#include "editor/intellisense_cases.h"
#include "fakes/editor_project.h"
#include "qt/editor/code_edit.h"

namespace tarnwick {
namespace {

class RealMemberList : public testing::TestWithParam<test::IntellisenseCase> {};

TEST_P(RealMemberList, TypedKeysGiveTheList) {
  const test::EditorProject project;
  const editor::MemberLookup lookup(project.Tables, project.Language, editor::kFixedWordsOfCode);
  QWidget window;
  window.resize(700, 500);
  CodeEdit code(QStringLiteral("Editor"), {}, lookup, "Courier New", &window);
  code.setGeometry(0, 0, 700, 500);
  code.setAutoIndent(false);
  window.show();
  window.activateWindow();
  code.setFocus();
  QTest::qWait(1);
  for (const char c : GetParam().Typed) {
    switch (c) {
      case '\b':
        QTest::keyClick(&code, Qt::Key_Backspace);
        break;
      case '\r':
        QTest::keyClick(&code, Qt::Key_Return);
        break;
      case '\x1B':
        QTest::keyClick(&code, Qt::Key_Escape);
        break;
      case '\x01':
        QTest::keyClick(&code, Qt::Key_Down);
        break;
      case '\x02':
        QTest::keyClick(&code, Qt::Key_Up);
        break;
      default:
        QTest::keyClick(&code, c);
    }
  }
  const auto* list = code.findChild<QListWidget*>(QStringLiteral("lstIntellisense"));
  ASSERT_NE(list, nullptr);
  std::string rows;
  std::string selected;
  if (list->isVisible()) {
    for (int row = 0; row < list->count(); ++row) {
      rows += (row == 0 ? "" : ",") + list->item(row)->text().toStdString();
    }
    if (!list->selectedItems().isEmpty()) selected = list->selectedItems()[0]->text().toStdString();
  }
  const editor::EditRange caret = code.GetSel();
  std::string text;
  for (int line = 0; line < caret.EndLineNo; ++line) text += code.GetLine(line) + "/";
  std::string last = code.GetLine(caret.EndLineNo);
  last.insert(static_cast<std::size_t>(caret.EndColNo), "|");
  EXPECT_EQ(rows, GetParam().Rows);
  EXPECT_EQ(selected, GetParam().Selected);
  EXPECT_EQ(text + last, GetParam().Text);
  EXPECT_EQ(QApplication::focusWidget(), &code);
}

INSTANTIATE_TEST_SUITE_P(Cases, RealMemberList, testing::ValuesIn(test::IntellisenseCases()),
                         [](const auto& tested) { return std::string(tested.param.Name); });

}  // namespace
}  // namespace tarnwick
