// Where the side windows of the program come up, and the columns of its lists.
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "program.h"
#include "qt/surface/container.h"

namespace tarnwick {
namespace {

class WindowPlaces : public ::testing::Test {
 protected:
  QWidget& Examiner() { return program.Find<QWidget>(QStringLiteral("FormViewObjects")); }
  void ExpectOverTheMiddle(const QWidget& window) {
    ASSERT_TRUE(window.isVisible());
    const QPoint apart = window.geometry().center() - program.Window().geometry().center();
    EXPECT_LE(apart.manhattanLength(), 40);
  }

  Program program;
};

TEST_F(WindowPlaces, TheObjectsExaminerComesUpOverTheMiddleOfTheProgram) {
  // Within the screen, so that nothing keeps it from the middle.
  program.Window().setGeometry(60, 80, 640, 600);
  Program::Settle();
  program.Key(Qt::Key_F1, Qt::ControlModifier);
  ExpectOverTheMiddle(Examiner());
}

TEST_F(WindowPlaces, AWindowThatWasMovedComesBackWhereItWasLeft) {
  program.Key(Qt::Key_F1, Qt::ControlModifier);
  Examiner().move(program.Window().geometry().topLeft() + QPoint(30, 40));
  const QPoint left = Examiner().pos();
  QTest::keyClick(&Examiner(), Qt::Key_Escape);
  ASSERT_FALSE(Examiner().isVisible());
  program.Key(Qt::Key_F1, Qt::ControlModifier);
  EXPECT_EQ(Examiner().pos(), left);
}

TEST_F(WindowPlaces, TheOutputPanelFitsALowScreen) {
  constexpr int kLowWindow = 564;  // of a screen with 600 pixels
  ASSERT_LE(program.Window().minimumSizeHint().height(), kLowWindow);
  program.Choose(QStringLiteral("mnuOutput"));
  ASSERT_TRUE(program.Find<QWidget>(QStringLiteral("OutputPanel")).isVisible());
  EXPECT_LE(program.Window().minimumSizeHint().height(), kLowWindow);
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  EXPECT_LE(program.Window().minimumSizeHint().height(), kLowWindow);
}

TEST_F(WindowPlaces, TheEventsBarLeavesTheMenusFreeInALowWindow) {
  program.Choose(QStringLiteral("mnuOutput"));
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Window().resize(1016, program.Window().minimumSizeHint().height());
  Program::Settle();
  const auto& bar = program.Find<QWidget>(QStringLiteral("FrmBarra"));
  ASSERT_TRUE(bar.isVisible());
  const Container& forms = program.Window().Forms();
  ASSERT_LT(forms.height(), bar.height() + 24) << "there is less room than the bar wants";
  EXPECT_GE(bar.y(), forms.mapTo(&program.Window(), QPoint(0, 0)).y());
}

TEST_F(WindowPlaces, TheFindingsGiveTheirTextTheRoomThatTheOtherColumnsDoNotNeed) {
  program.Place(0, {20, 20});
  program.Click(program.Find<QLineEdit>(QStringLiteral("Text_0")));
  program.Key(Qt::Key_A, Qt::ControlModifier);
  program.Type(QStringLiteral("a b"));
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  auto& list = program.Find<QTreeWidget>(QStringLiteral("Findings"));
  const QTreeWidgetItem& row = *list.topLevelItem(0);
  for (const int column : {1, 2}) {
    const int text = list.fontMetrics().horizontalAdvance(row.text(column));
    const int head = list.header()->sectionSizeHint(column);
    EXPECT_LE(list.columnWidth(column), qMax(head, text + 24)) << column;
    EXPECT_GE(list.columnWidth(column), text) << column;
  }
}

TEST_F(WindowPlaces, ThePathOfUnsavedWorkIsShownWhole) {
  program.Place(0, {20, 20});
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), program.Projects.Path("f.ftn")};
  program.Key(Qt::Key_S, Qt::ControlModifier);
  program.Place(0, {20, 80});
  // What was saved last is left without a question, and kept.
  program.Key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(program.Find<QWidget>(QStringLiteral("StatusText")).property("text").toString(),
            QStringLiteral("Changes that were not saved are kept: File, Restore Unsaved Work"));
  program.User.Do([](QDialog& dialog) {
    auto* list = dialog.findChild<QTreeWidget*>(QStringLiteral("UnsavedWork"));
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->topLevelItemCount(), 1);
    const int path = list->fontMetrics().horizontalAdvance(list->topLevelItem(0)->text(1));
    EXPECT_GE(list->columnWidth(1), qMin(path, 320));
    EXPECT_LE(list->columnWidth(0) + list->columnWidth(1), list->viewport()->width() - 60);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  program.Choose(QStringLiteral("mnuRestore"));
}

}  // namespace
}  // namespace tarnwick
