// The list of findings, by mouse and keys.
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QSplitter>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "program.h"
#include "qt/editor/code_edit.h"
#include "qt/surface/container.h"

namespace tarnwick {
namespace {

class Findings : public ::testing::Test {
 protected:
  QTreeWidget& List() { return program.Find<QTreeWidget>(QStringLiteral("Findings")); }
  QToolButton& Word() { return program.Find<QToolButton>(QStringLiteral("FindingsWord")); }
  /// A button whose name is no name, on Form1.
  void PlaceFaulty() {
    program.Place(0, {20, 20});
    program.Click(program.Find<QLineEdit>(QStringLiteral("Text_0")));
    program.Key(Qt::Key_A, Qt::ControlModifier);
    program.Type(QStringLiteral("a b"));
    program.Settle();
  }
  QString Cell(int row, int column) { return List().topLevelItem(row)->text(column); }
  void DoubleClick(int row) {
    const QRect place = List().visualItemRect(List().topLevelItem(row));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
  }

  Program program;
};

TEST_F(Findings, TheListIsHiddenUntilItIsAskedFor) {
  EXPECT_FALSE(List().isVisible());
  EXPECT_FALSE(Word().isVisible());
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  EXPECT_TRUE(List().isVisible());
  EXPECT_TRUE(List().hasFocus());
  EXPECT_EQ(Cell(0, 0), QStringLiteral("Nothing was found."));
  EXPECT_FALSE(Word().isVisible());
}

TEST_F(Findings, TheMenuEntryShowsFormObjectRowAndText) {
  PlaceFaulty();
  program.Choose(QStringLiteral("mnuCheck"));
  ASSERT_EQ(List().topLevelItemCount(), 1);
  EXPECT_EQ(Cell(0, 0), QStringLiteral("Error"));
  EXPECT_EQ(Cell(0, 1), QStringLiteral("Form1"));
  EXPECT_EQ(Cell(0, 2), QStringLiteral("a b"));
  EXPECT_EQ(Cell(0, 3), QStringLiteral("Name"));
  EXPECT_TRUE(Cell(0, 4).startsWith(QStringLiteral("the name a b is no name"))) << "text";
  EXPECT_FALSE(List().topLevelItem(0)->icon(0).isNull());
}

TEST_F(Findings, EnterGoesToTheRowAndEscClosesTheList) {
  PlaceFaulty();
  program.Click(program.Surface(), {200, 150});
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Key(Qt::Key_Return);
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  EXPECT_TRUE(program.Find<QLineEdit>(QStringLiteral("Text_0")).hasFocus());
  EXPECT_TRUE(List().isVisible()) << "the next finding is a key away";
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  EXPECT_TRUE(List().hasFocus());
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(List().isVisible());
  EXPECT_TRUE(program.Surface().hasFocus());
}

TEST_F(Findings, ADoubleClickGoesToTheRowAlsoWhenTheFilterHidesIt) {
  PlaceFaulty();
  auto& filter = program.Find<QLineEdit>(QStringLiteral("RowFilter"));
  program.Click(filter);
  program.Type(QStringLiteral("caption"));
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Settle();
  DoubleClick(0);
  EXPECT_TRUE(program.Find<QLineEdit>(QStringLiteral("Text_0")).hasFocus());
}

TEST_F(Findings, ARowThatTheFilterHidesIsShownAgain) {
  program.Place(0, {20, 20});
  program.Selected()->Caption = "say \"hi\"";
  auto& filter = program.Find<QLineEdit>(QStringLiteral("RowFilter"));
  program.Click(filter);
  program.Type(QStringLiteral("width"));
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Settle();
  DoubleClick(0);
  EXPECT_EQ(filter.text(), QString());
  auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(field->text(), QStringLiteral("say \"hi\""));
}

TEST_F(Findings, ACompileCountsThemInAWordThatShowsTheListWhenItIsClicked) {
  PlaceFaulty();
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), program.Projects.Path("f.ftn")};
  program.Key(Qt::Key_F5);
  program.Settle();
  EXPECT_TRUE(Word().isVisible());
  EXPECT_EQ(Word().text(), QStringLiteral("1 finding"));
  EXPECT_FALSE(List().isVisible());
  program.Click(Word());
  EXPECT_TRUE(List().isVisible());
  EXPECT_TRUE(List().hasFocus());
}

TEST_F(Findings, TheCloseButtonHidesTheListAndTheWordStays) {
  PlaceFaulty();
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Settle();
  program.Click(program.Find<QToolButton>(QStringLiteral("FindingsClose")));
  EXPECT_FALSE(List().isVisible());
  EXPECT_TRUE(Word().isVisible());
}

TEST_F(Findings, TheOpenListFollowsWhatIsMendedWithinAFewSeconds) {
  PlaceFaulty();
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Key(Qt::Key_Return);
  program.Key(Qt::Key_A, Qt::ControlModifier);
  program.Type(QStringLiteral("Good"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Word().isVisible(); }, 5000));
  EXPECT_EQ(Cell(0, 0), QStringLiteral("Nothing was found."));
}

TEST_F(Findings, CodeOfAnObjectThatIsGoneOpensInTheEditorAtItsEvent) {
  program.Tables().EventTable.Replace("Form1.Button3.OnKeyDown", "Beep");
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  EXPECT_EQ(Cell(0, 0), QStringLiteral("Note"));
  EXPECT_EQ(Cell(0, 3), QStringLiteral("OnKeyDown"));
  program.Key(Qt::Key_Return);
  auto* editor = program.Window().findChild<CodeEdit*>(QStringLiteral("Editor"));
  ASSERT_NE(editor, nullptr);
  EXPECT_TRUE(editor->isVisible());
  EXPECT_EQ(editor->Text(), "Beep");
  program.Shell().Commands().Run(Command::Code);
}

TEST_F(Findings, AFaultOfTheCodeLeadsToItsLine) {
  program.Place(0, {20, 20});
  program.Tables().EventTable.Replace("Form1.Button1.OnClick",
                                      "Dim n As Integer\r\nForm1Btn1.Captoin = 1\r\nn = 1");
  program.Click(program.Surface(), {300, 200});
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  ASSERT_EQ(List().topLevelItemCount(), 1);
  EXPECT_EQ(Cell(0, 0), QStringLiteral("Error"));
  EXPECT_EQ(Cell(0, 1), QStringLiteral("Form1"));
  EXPECT_EQ(Cell(0, 2), QStringLiteral("Form1Btn1"));
  EXPECT_EQ(Cell(0, 3), QStringLiteral("OnClick"));
  EXPECT_TRUE(Cell(0, 4).startsWith(QStringLiteral("line 2: "))) << Cell(0, 4).toStdString();
  program.Key(Qt::Key_Return);
  auto* editor = program.Window().findChild<CodeEdit*>(QStringLiteral("Editor"));
  ASSERT_NE(editor, nullptr);
  ASSERT_TRUE(editor->isVisible());
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  int line = 0;
  int column = 0;
  editor->getCursorPosition(&line, &column);
  EXPECT_EQ(line, 1);
  // The next key is the editor's; what is mended and accepted leaves the list.
  ASSERT_TRUE(QTest::qWaitFor([editor] { return editor->hasFocus(); }));
  program.Key(Qt::Key_End, Qt::ShiftModifier);
  program.Key(Qt::Key_Delete);
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Word().isVisible(); }, 5000));
}

TEST_F(Findings, TheListComesBackAsHighAsItWasLeft) {
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Settle();
  auto& panel = program.Find<QWidget>(QStringLiteral("FindingsPanel"));
  auto& splitter = program.Find<QSplitter>(QStringLiteral("FormsAndFindings"));
  const int before = panel.height();
  const QPoint grip = splitter.handle(1)->rect().center();
  program.Drag(*splitter.handle(1), grip, grip - QPoint(0, 70));
  program.Settle();
  const int dragged = panel.height();
  EXPECT_GT(dragged, before);
  program.Key(Qt::Key_Escape);
  const WindowPlacement left = program.Window().Placement();
  EXPECT_EQ(left.Findings, dragged);
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Settle();
  EXPECT_EQ(panel.height(), dragged);
  EXPECT_EQ(program.Window().Placement().Findings, dragged);
  // The next run takes it from the settings.
  program.Key(Qt::Key_Escape);
  WindowPlacement next = left;
  next.Findings = before + 20;
  program.Window().TakePlacement(next);
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Settle();
  EXPECT_EQ(panel.height(), before + 20);
}

TEST_F(Findings, AccessibleAsAListWithItsCells) {
  PlaceFaulty();
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&List());
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->text(QAccessible::Name), QStringLiteral("Findings"));
  EXPECT_EQ(Word().accessibleName(), QStringLiteral("1 finding"));
  ASSERT_NE(list->tableInterface(), nullptr);
  EXPECT_EQ(list->tableInterface()->cellAt(0, 0)->text(QAccessible::Name), QStringLiteral("Error"));
}

TEST_F(Findings, TheListAndTheBarOfEventsLeaveRoomForTheFormAt1366By768) {
  program.Window().resize(1366 - 8, 768 - 36);
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  program.Settle();
  EXPECT_GE(program.Window().Forms().height(), 300);
  EXPECT_LE(program.Window().height(), 768 - 36);
}

}  // namespace
}  // namespace tarnwick
