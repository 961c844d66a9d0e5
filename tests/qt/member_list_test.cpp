// The member list on the screen: where it stands, what hides it, and the mouse in it.
#include <QApplication>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <string>

#include <gtest/gtest.h>

#include "qt/code_edit_window.h"
#include "qt/editor/member_list_popup.h"

namespace tarnwick {
namespace {

/// The shadow stands 45 twips off the frame.
constexpr int kShadow = 3;

class MemberList : public CodeEditWindow {
 protected:
  void Type(const char* text) { QTest::keyClicks(code_, QString::fromLatin1(text)); }
  QListWidget& List() { return *code_->findChild<QListWidget*>(QStringLiteral("lstIntellisense")); }
  QWidget& Frame() { return *code_->findChild<MemberListPopup*>(); }
  QPoint RowAt(int row) { return List().visualItemRect(List().item(row)).center(); }
  /// The left top of the caret's line at the caret, on the screen.
  QPoint CaretPlace() {
    const editor::EditRange caret = code_->GetSel();
    return code_->viewport()->mapToGlobal(PlaceOf(caret.EndLineNo, caret.EndColNo));
  }
};

TEST_F(MemberList, StandsOneLineBelowTheCaretAndStaysThere) {
  Type("Ok.");
  ASSERT_TRUE(List().isVisible());
  const QPoint at = CaretPlace() + QPoint(0, LineHeight());
  EXPECT_EQ(Frame().geometry().topLeft(), at);
  Type("co");
  EXPECT_EQ(Frame().geometry().topLeft(), at);
}

TEST_F(MemberList, ItsShadowStandsRightAndBelow) {
  Type("Ok.");
  EXPECT_EQ(List().geometry().topLeft(), QPoint(0, 0));
  EXPECT_EQ(Frame().size(), List().size() + QSize(kShadow, kShadow));
  EXPECT_FALSE(Frame().mask().contains(QPoint(Frame().width() - 1, 0)));
  EXPECT_TRUE(Frame().mask().contains(QPoint(Frame().width() - 1, kShadow)));
}

TEST_F(MemberList, NearTheRightEdgeOfTheScreenItMovesLeft) {
  const QRect room = window_.screen()->availableGeometry();
  window_.move(room.right() - 120, room.top() + 60);
  Type("Ok.");
  ASSERT_TRUE(List().isVisible());
  EXPECT_EQ(Frame().geometry().right() + 1, room.right());
  EXPECT_EQ(Frame().y(), CaretPlace().y() + LineHeight());
}

TEST_F(MemberList, NearTheLowerEdgeOfTheScreenItStandsAboveTheLine) {
  const QRect room = window_.screen()->availableGeometry();
  window_.move(room.left() + 40, room.bottom() - 60);
  Type("Ok.");
  ASSERT_TRUE(List().isVisible());
  // It hides no letter of the line that is being typed.
  EXPECT_EQ(Frame().geometry().bottom() + 1, CaretPlace().y());
  EXPECT_EQ(Frame().x(), CaretPlace().x());
}

TEST_F(MemberList, InTheLowerRightCornerItStaysOnTheScreen) {
  const QRect room = window_.screen()->availableGeometry();
  window_.move(room.right() - 120, room.bottom() - 60);
  Type("Ok.");
  ASSERT_TRUE(List().isVisible());
  EXPECT_TRUE(room.contains(Frame().geometry()));
  EXPECT_LE(Frame().geometry().bottom(), CaretPlace().y());
}

TEST_F(MemberList, ShowsWholeRows) {
  Type("Ok.");
  EXPECT_EQ(List().viewport()->height(), 3 * List().visualItemRect(List().item(0)).height());
}

TEST_F(MemberList, NeverTakesTheFocus) {
  Type("Ok.");
  EXPECT_EQ(QApplication::focusWidget(), code_);
  QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, RowAt(1));
  EXPECT_EQ(QApplication::focusWidget(), code_);
}

TEST_F(MemberList, AClickedRowIsSelectedAndTakenByEnter) {
  Type("Ok.");
  QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, RowAt(1));
  ASSERT_TRUE(List().isVisible());
  EXPECT_EQ(List().currentRow(), 1);
  QTest::keyClick(code_, Qt::Key_Return);
  EXPECT_EQ(code_->Text(), "Ok.Color");
  EXPECT_FALSE(List().isVisible());
}

TEST_F(MemberList, ADoubleClickTakesTheRowWhole) {
  Type("Ok.co");
  const QPoint row = RowAt(2);
  QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, row);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, row);
  EXPECT_EQ(code_->Text(), "Ok.Click");
  EXPECT_EQ(code_->GetSel().EndColNo, 8);
  EXPECT_FALSE(List().isVisible());
}

TEST_F(MemberList, APressInTheTextHidesIt) {
  Type("Ok.");
  QTest::mouseClick(code_->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 200));
  EXPECT_FALSE(List().isVisible());
}

TEST_F(MemberList, LossOfFocusHidesIt) {
  Type("Ok.");
  code_->clearFocus();
  EXPECT_FALSE(List().isVisible());
}

TEST_F(MemberList, ScrollingHidesIt) {
  std::string text;
  for (int line = 0; line < 100; ++line) text += "\r\n";
  code_->SetText(text);
  Type("Ok.");
  ASSERT_TRUE(List().isVisible());
  code_->verticalScrollBar()->setValue(10);
  EXPECT_FALSE(List().isVisible());
}

TEST_F(MemberList, AnotherTextHidesItAndForgetsTheWord) {
  Type("Ok.");
  code_->SetText("");
  EXPECT_FALSE(List().isVisible());
  Type(".");
  EXPECT_FALSE(List().isVisible());
}

TEST_F(MemberList, UndoIsEmptyAfterATextIsSet) {
  Type("Ok.");
  EXPECT_TRUE(code_->isUndoAvailable());
  code_->SetText("new");
  EXPECT_FALSE(code_->isUndoAvailable());
  EXPECT_FALSE(code_->isRedoAvailable());
  EXPECT_EQ(code_->GetSel(), (editor::EditRange{0, 0, 0, 0}));
}

TEST_F(MemberList, TheWindowOfTheDeclarationsDoesNotKnowTheScreen) {
  const editor::MemberLookup lookup(project_.Tables, project_.Language,
                                    editor::kFixedWordsOfDeclarations);
  CodeEdit other(QStringLiteral("EditorPublic"), {}, lookup, "Courdir new", &window_);
  other.setGeometry(0, 0, 500, 280);
  other.show();
  other.setFocus();
  auto* list = other.findChild<QListWidget*>(QStringLiteral("lstIntellisense"));
  QTest::keyClicks(&other, QStringLiteral("Screen."));
  EXPECT_FALSE(list->isVisible());
  QTest::keyClicks(&other, QStringLiteral(" Font."));
  EXPECT_TRUE(list->isVisible());
}

}  // namespace
}  // namespace tarnwick
