// The property panel on the screen: filter, lists of values, names and the head list.
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <gtest/gtest.h>

#include "grid_window.h"

namespace tarnwick {
namespace {

class PropertyGridLists : public GridWindow {};

// --- Filter ---

TEST_F(PropertyGridLists, TheFilterShowsTheRowsThatHoldItAndTheName) {
  program.Place(0, {20, 20});
  auto& filter = program.Find<QLineEdit>(QStringLiteral("RowFilter"));
  program.Click(filter);
  program.Type("OLOR");
  EXPECT_TRUE(Cell("Name").isVisible());
  EXPECT_TRUE(Cell("FontColor").isVisible());
  EXPECT_FALSE(Cell("Caption").isVisible());
  program.Key(Qt::Key_Down);
  EXPECT_EQ(Sheet().RowIndex(), RowOf("FontColor"));
  program.Click(filter);
  program.Key(Qt::Key_Escape);
  EXPECT_EQ(filter.text(), "");
  EXPECT_TRUE(Cell("Caption").isVisible());
  program.Key(Qt::Key_Escape);
  EXPECT_EQ(QApplication::focusWidget(), &program.Surface());
}

TEST_F(PropertyGridLists, AFilterThatHidesTheSelectedRowHidesItsButtons) {
  program.Place(0, {20, 20});
  Enter("Font");
  program.Click(program.Find<QLineEdit>(QStringLiteral("RowFilter")));
  program.Type("zzz");
  EXPECT_FALSE(Button("Boton1").isVisible());
  EXPECT_TRUE(Cell("Name").isVisible());
}

// --- Lists ---

TEST_F(PropertyGridLists, TheListOpensWithThePresentValueMarkedAndAPickApplies) {
  program.Place(4, {20, 20});
  Enter("BorderStyle");
  program.Click(Button("Boton2"));
  ASSERT_TRUE(List().isVisible());
  ASSERT_EQ(List().count(), 2);
  EXPECT_EQ(List().currentItem()->text().toStdString(), Shown("BorderStyle"));
  EXPECT_GE(List().y(), Cell("BorderStyle").mapToGlobal(QPoint(0, 20)).y());
  const int other = 1 - List().currentRow();
  const std::string wanted = List().item(other)->text().toStdString();
  program.Click(*List().viewport(), List().visualItemRect(List().item(other)).center());
  EXPECT_FALSE(List().isVisible());
  EXPECT_EQ(Shown("BorderStyle"), wanted);
  EXPECT_FALSE(Sheet().List().IsOpen());
}

TEST_F(PropertyGridLists, TheListIsWorkedByKeysAlone) {
  program.Place(0, {20, 20});
  Enter("Cursor");
  program.Key(Qt::Key_Down, Qt::AltModifier);
  ASSERT_TRUE(List().isVisible());
  EXPECT_EQ(List().count(), 22);
  EXPECT_EQ(List().currentRow(), 0);
  program.Key(Qt::Key_Down);
  program.Key(Qt::Key_Down);
  program.Key(Qt::Key_Return);
  EXPECT_FALSE(List().isVisible());
  EXPECT_EQ(Shown("Cursor"), "crArrow");
  ExpectLine("Form1Btn1.Cursor = -2");
  EXPECT_EQ(Focused(), CellName("Cursor"));
  program.Key(Qt::Key_F4);
  ASSERT_TRUE(List().isVisible());
  EXPECT_EQ(List().currentRow(), 2);
  program.Key(Qt::Key_Down);
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(List().isVisible());
  EXPECT_FALSE(Sheet().List().IsOpen());
  EXPECT_EQ(Shown("Cursor"), "crArrow");
}

TEST_F(PropertyGridLists, ADoubleClickOnAListRowTakesTheNextValue) {
  program.Place(0, {20, 20});
  Enter("Enabled");
  QTest::mouseDClick(&Cell("Enabled"), Qt::LeftButton);
  EXPECT_EQ(Shown("Enabled"), "False");
  QTest::mouseDClick(&Cell("Enabled"), Qt::LeftButton);
  EXPECT_EQ(Shown("Enabled"), "True");
  QTest::mouseDClick(&NameOf("Enabled"), Qt::LeftButton);
  EXPECT_EQ(Shown("Enabled"), "False");
}

TEST_F(PropertyGridLists, TheListOfParentsHoldsFormAndSeenObjects) {
  program.Place(0, {20, 20});
  program.Place(11, {120, 20});
  program.Place(19, {200, 20});
  Enter("Parent");
  program.Key(Qt::Key_F4);
  ASSERT_EQ(List().count(), 2);
  EXPECT_EQ(List().item(0)->text(), "Form1");
  EXPECT_EQ(List().item(1)->text(), "Form1Btn1");
  program.Key(Qt::Key_End);
  program.Key(Qt::Key_Return);
  EXPECT_EQ(Shown("Parent"), "Form1Btn1");
}

// --- Names and head list ---

TEST_F(PropertyGridLists, ARenameTouchesOneRowOfTheHeadList) {
  program.Place(0, {20, 20});
  program.Place(0, {20, 80});
  auto& combo = program.Find<QComboBox>(QStringLiteral("Combo"));
  Type("Name", "Ok");
  EXPECT_EQ(combo.count(), 3);
  EXPECT_EQ(combo.itemText(1), "Form1Btn1   (Button)");
  EXPECT_EQ(combo.itemText(2), "Ok   (Button)");
  EXPECT_EQ(combo.currentIndex(), 2);
  EXPECT_EQ(program.Selected()->Tag, "Ok");
  EXPECT_EQ(Focused(), "Text_0");
}

TEST_F(PropertyGridLists, ARenamedFormShowsInTheFormListAndTheProgram) {
  Type("Name", "Main");
  EXPECT_EQ(program.Record().Name, "Main");
  EXPECT_EQ(program.Find<QListWidget>(QStringLiteral("ListaFrms")).item(0)->text(), "Main ()");
  EXPECT_EQ(program.Find<QComboBox>(QStringLiteral("Combo")).itemText(0), "Main   (Form)");
  ExpectLine("Dim Main As QForm");
}

TEST_F(PropertyGridLists, TheHeadListSelectsObjectsAndTheForm) {
  DesignControl* first = program.Place(0, {20, 20});
  program.Place(3, {20, 80});
  auto& combo = program.Find<QComboBox>(QStringLiteral("Combo"));
  combo.setFocus();
  program.Key(Qt::Key_Up);
  EXPECT_EQ(program.Selected(), first);
  EXPECT_EQ(Shown("Name"), "Form1Btn1");
  program.Key(Qt::Key_Up);
  EXPECT_EQ(program.Selected(), nullptr);
  EXPECT_EQ(Shown("Name"), "Form1");
  EXPECT_EQ(combo.count(), 3);
}

TEST_F(PropertyGridLists, RowsOfAKindWithMoreRowsGoWithTheNextSelection) {
  program.Place(4, {20, 20});
  EXPECT_EQ(Sheet().RowCount(), 18);
  EXPECT_TRUE(program.Find<QLineEdit>(QStringLiteral("Text_17")).isVisibleTo(&program.Window()));
  program.Place(11, {220, 20});
  EXPECT_EQ(Sheet().RowCount(), 5);
  EXPECT_FALSE(program.Find<QLineEdit>(QStringLiteral("Text_17")).isVisibleTo(&program.Window()));
  EXPECT_FALSE(program.Find<QLineEdit>(QStringLiteral("Text_5")).isVisibleTo(&program.Window()));
  EXPECT_EQ(Shown("Name"), "Form1Time1");
}

TEST_F(PropertyGridLists, LettersInTheHeadListGoToTheObjectOfThatName) {
  for (int i = 0; i < 12; ++i) program.Place(0, {20 + 90 * (i % 4), 20 + 40 * (i / 4)});
  auto& combo = program.Find<QComboBox>(QStringLiteral("Combo"));
  combo.setFocus();
  program.Type("Btn3");
  EXPECT_EQ(combo.currentText(), "Form1Btn3   (Button)");
  ASSERT_NE(program.Selected(), nullptr);
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn3");
  program.Key(Qt::Key_Down);
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn4");
  program.Type("form1btn12");
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn12");
}

TEST_F(PropertyGridLists, ASelectionThatTakesItsTimeDoesNotEndTheWordBeingTyped) {
  for (int i = 0; i < 12; ++i) program.Place(0, {20 + 90 * (i % 4), 20 + 40 * (i / 4)});
  auto& combo = program.Find<QComboBox>(QStringLiteral("Combo"));
  combo.setFocus();
  // A slow machine: showing the first object that fits takes longer than any pause in typing.
  const auto slow = QObject::connect(&combo, &QComboBox::activated, [] { QTest::qSleep(1600); });
  program.Key(Qt::Key_Down);
  program.Type("Btn12");
  QObject::disconnect(slow);
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn12");
}

}  // namespace
}  // namespace tarnwick
