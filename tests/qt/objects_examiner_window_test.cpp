// The Objects Examiner by the keyboard alone, over the delivered support files.
#include "qt/frame/objects_examiner_window.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

#include <gtest/gtest.h>

#include "program.h"

namespace tarnwick {
namespace {

class ObjectsExaminerOnScreen : public testing::Test {
 protected:
  Program program;

  void Open() {
    program.Key(Qt::Key_F1, Qt::ControlModifier);
    window_ = program.Window().findChild<ObjectsExaminerWindow*>();
    ASSERT_NE(window_, nullptr);
    ASSERT_TRUE(window_->isVisible());
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
  }
  template <class Widget>
  Widget& Find(const char* name) {
    return *window_->findChild<Widget*>(QString::fromLatin1(name));
  }
  QListWidget& Kinds() { return Find<QListWidget>("Lista"); }
  QListWidget& Members() { return Find<QListWidget>("ListaPro"); }
  QString Text() { return Find<QPlainTextEdit>("Editor").toPlainText(); }
  static QString Current(const QListWidget& list) {
    return list.currentItem() != nullptr ? list.currentItem()->text() : QString();
  }
  static QString Focused() {
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName()
                                                  : QString();
  }
  ObjectsExaminerWindow* window_ = nullptr;
};

TEST_F(ObjectsExaminerOnScreen, ItShowsTheDeliveredKindsWithMembersAndHelp) {
  Open();
  EXPECT_EQ(window_->windowTitle(), "Objects Examiner");
  EXPECT_EQ(Focused(), "Text1");
  EXPECT_GE(Kinds().count(), 24);
  EXPECT_EQ(Current(Kinds()), "Form");
  EXPECT_GT(Members().count(), 10);
  EXPECT_TRUE(Text().startsWith("Form")) << Text().toStdString();
  for (int row = 0; row < Kinds().count(); ++row) {
    Kinds().setCurrentRow(row);
    EXPECT_GT(Members().count(), 0) << Current(Kinds()).toStdString();
    EXPECT_TRUE(Text().startsWith(Current(Kinds()), Qt::CaseInsensitive))
        << Current(Kinds()).toStdString() << ": " << Text().left(40).toStdString();
  }
}

TEST_F(ObjectsExaminerOnScreen, LettersFindAKindAndEnterGoesToItsMembers) {
  Open();
  program.Type("lab");
  EXPECT_EQ(Current(Kinds()), "Label");
  EXPECT_EQ(Focused(), "Text1");
  program.Key(Qt::Key_Return);
  EXPECT_EQ(Focused(), "ListaPro");
  EXPECT_EQ(Members().currentRow(), 0);
  EXPECT_TRUE(Text().startsWith(Current(Members()))) << Text().toStdString();
  program.Key(Qt::Key_Down);
  EXPECT_EQ(Members().currentRow(), 1);
  EXPECT_TRUE(Text().startsWith(Current(Members()))) << Text().toStdString();
  program.Key(Qt::Key_Left);
  EXPECT_EQ(Focused(), "Lista");
  program.Key(Qt::Key_Up);
  EXPECT_EQ(Current(Kinds()), "Image");
  program.Key(Qt::Key_Right);
  EXPECT_EQ(Focused(), "ListaPro");
}

TEST_F(ObjectsExaminerOnScreen, ArrowsInTheSearchMoveInTheKinds) {
  Open();
  program.Key(Qt::Key_Down);
  EXPECT_EQ(Current(Kinds()), "Button");
  EXPECT_EQ(Focused(), "Text1");
  program.Key(Qt::Key_Up);
  EXPECT_EQ(Current(Kinds()), "Form");
}

TEST_F(ObjectsExaminerOnScreen, TheTabKeyPassesAllFourParts) {
  Open();
  for (const char* name : {"Lista", "ListaPro", "Editor", "Text1"}) {
    program.Key(Qt::Key_Tab);
    EXPECT_EQ(Focused(), name);
  }
}

TEST_F(ObjectsExaminerOnScreen, LettersThatNoKindBeginsWithChangeNothing) {
  Open();
  program.Type("butz");
  EXPECT_EQ(Current(Kinds()), "Button");
}

TEST_F(ObjectsExaminerOnScreen, TheDescriptionTakesNoTyping) {
  Open();
  auto& text = Find<QPlainTextEdit>("Editor");
  const QString before = Text();
  text.setFocus();
  program.Type("x");
  EXPECT_EQ(Text(), before);
}

TEST_F(ObjectsExaminerOnScreen, EscClosesFromEveryPartAndAnOpeningStartsAnew) {
  Open();
  for (const char* name : {"Text1", "Lista", "ListaPro", "Editor"}) {
    Find<QWidget>(name).setFocus();
    program.Key(Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible()) << name;
    program.Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program.Window()));
    Open();
    EXPECT_EQ(Focused(), "Text1");
    EXPECT_EQ(Find<QLineEdit>("Text1").text(), "");
    EXPECT_EQ(Current(Kinds()), "Form");
  }
}

TEST_F(ObjectsExaminerOnScreen, MenuAndToolbarOpenIt) {
  program.Choose(QStringLiteral("mnuExaminer"));
  window_ = program.Window().findChild<ObjectsExaminerWindow*>();
  ASSERT_NE(window_, nullptr);
  EXPECT_TRUE(window_->isVisible());
  window_->close();
  program.Window().activateWindow();
  program.Shell().Commands().Run(Command::Examiner);
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(program.Window().findChildren<ObjectsExaminerWindow*>().size(), 1);
}

TEST_F(ObjectsExaminerOnScreen, ItOpensOnTheSelectedKindAndMarksTheMemberOfTheRow) {
  program.Place(3, {20, 20});
  PropertySheet& sheet = program.Shell().Sheet();
  for (int row = 0; row < sheet.RowCount(); ++row) {
    if (sheet.Label(row) == "WordWrap") sheet.SelectRow(row);
  }
  Open();
  EXPECT_EQ(Current(Kinds()), "Label");
  EXPECT_EQ(Current(Members()), "WordWrap");
  EXPECT_TRUE(Text().startsWith("WordWrap")) << Text().left(40).toStdString();
  for (const QWidget* part : {static_cast<QWidget*>(&Kinds()), static_cast<QWidget*>(&Members())}) {
    EXPECT_FALSE(part->accessibleName().isEmpty());
  }
}

}  // namespace
}  // namespace tarnwick
