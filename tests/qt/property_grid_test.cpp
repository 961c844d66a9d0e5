// The property panel on the screen: selecting rows and working them by keys.
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

#include "grid_window.h"
#include "qt/kit/theme.h"

namespace tarnwick {
namespace {

class PropertyGridWindow : public GridWindow {};

// --- Selecting ---

TEST_F(PropertyGridWindow, ASelectedRowHasTheAccentOfItsPaletteAndNoOther) {
  program.Place(0, {20, 20});
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    const QPalette palette = PaletteOf(theme);
    QApplication::setPalette(palette);
    Program::Settle();
    Enter("Caption");
    EXPECT_EQ(BackOf("Caption"), palette.color(QPalette::Highlight));
    EXPECT_EQ(NameOf("Caption").palette().color(NameOf("Caption").foregroundRole()),
              palette.color(QPalette::HighlightedText));
    EXPECT_EQ(BackOf("Height"), palette.color(QPalette::Base));
    Enter("Height");
    EXPECT_EQ(BackOf("Caption"), palette.color(QPalette::Base));
  }
  ResetLook();
}

TEST_F(PropertyGridWindow, APressOnTheFormTakesTheColoursOffTheRows) {
  program.Place(0, {20, 20});
  Enter("Caption");
  program.Click(program.Surface(), {200, 200});
  EXPECT_FALSE(Sheet().HasSelectedRow());
  EXPECT_EQ(BackOf("Caption"), QColor(Qt::white));
  EXPECT_TRUE(Button("Boton1").isHidden());
  EXPECT_TRUE(Button("Boton2").isHidden());
}

TEST_F(PropertyGridWindow, APressOnAValueSelectsItsTextAndTheNextSetsTheCaret) {
  program.Place(0, {20, 20});
  program.Click(Cell("Caption"), {30, 10});
  EXPECT_EQ(Focused(), CellName("Caption"));
  EXPECT_EQ(Cell("Caption").selectedText(), "Form1Btn1");
  program.Click(Cell("Caption"), {30, 10});
  EXPECT_EQ(Cell("Caption").selectedText(), "");
}

TEST_F(PropertyGridWindow, ButtonsStandInTheSelectedRow) {
  program.Place(0, {20, 20});
  const struct {
    const char* Row;
    bool First, Second, Third;
  } rows[] = {{"Caption", false, false, false},
              {"BmpHandle", true, false, false},
              {"Cursor", false, true, false},
              {"Font", true, false, false},
              {"FontColor", false, true, false}};
  for (const auto& row : rows) {
    Enter(row.Row);
    EXPECT_EQ(Button("Boton1").isVisible(), row.First) << row.Row;
    EXPECT_EQ(Button("Boton2").isVisible(), row.Second) << row.Row;
    EXPECT_EQ(Button("Boton3").isVisible(), row.Third) << row.Row;
    for (const char* name : {"Boton1", "Boton2"}) {
      if (Button(name).isHidden()) continue;
      const QRect place(Button(name).mapTo(&program.Window(), QPoint()), Button(name).size());
      const QRect line(NameOf(row.Row).mapTo(&program.Window(), QPoint()), NameOf(row.Row).size());
      EXPECT_NEAR(place.center().y(), line.center().y(), 1) << row.Row;
      const QRect value(Cell(row.Row).mapTo(&program.Window(), QPoint()), Cell(row.Row).size());
      EXPECT_GT(place.left(), value.right()) << row.Row;
    }
  }
  program.Click(program.Surface(), {200, 200});
  Enter("IcoHandle");
  EXPECT_TRUE(Button("Boton1").isVisible());
  EXPECT_TRUE(Button("Boton3").isVisible());
}

TEST_F(PropertyGridWindow, TheRowsHelpStandsUnderTheGrid) {
  program.Place(0, {20, 20});
  auto& help = program.Find<QPlainTextEdit>(QStringLiteral("RowHelp"));
  EXPECT_EQ(help.toPlainText(), "");
  Enter("Height");
  EXPECT_EQ(program.Find<QLabel>(QStringLiteral("RowHelpName")).text(), "Height");
  EXPECT_TRUE(help.toPlainText().contains("pixels")) << help.toPlainText().toStdString();
  EXPECT_FALSE(help.toPlainText().contains("Screen"));
}

// --- Keys ---

TEST_F(PropertyGridWindow, UpDownAndEnterWalkTheRows) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_F4);
  EXPECT_EQ(Sheet().RowIndex(), 0);
  EXPECT_EQ(Focused(), "Text_0");
  program.Key(Qt::Key_Up);
  EXPECT_EQ(Sheet().RowIndex(), 0);
  program.Key(Qt::Key_Down);
  EXPECT_EQ(Sheet().RowIndex(), 1);
  EXPECT_EQ(Focused(), "Boton1");
  program.Key(Qt::Key_Down);
  EXPECT_EQ(Focused(), CellName("Caption"));
  program.Key(Qt::Key_Return);
  EXPECT_EQ(Sheet().RowIndex(), RowOf("Cursor"));
  program.Key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(Sheet().RowIndex(), Sheet().RowCount() - 1);
  program.Key(Qt::Key_Down);
  EXPECT_EQ(Sheet().RowIndex(), Sheet().RowCount() - 1);
  program.Key(Qt::Key_PageUp);
  EXPECT_EQ(Sheet().RowIndex(), Sheet().RowCount() - 11);
  program.Key(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(Sheet().RowIndex(), 0);
}

TEST_F(PropertyGridWindow, ANumberAppliesWithEachKey) {
  DesignControl* button = program.Place(0, {20, 20});
  Enter("Width");
  program.Type("1");
  EXPECT_EQ(button->Width, 15);
  program.Type("2");
  EXPECT_EQ(button->Width, 180);
  program.Type("0");
  EXPECT_EQ(button->Width, 1800);
  EXPECT_EQ(Shown("Width"), "120");
  ExpectLine("Form1Btn1.Width = 120");
}

TEST_F(PropertyGridWindow, EscPutsTheValueBackAndThenGoesToTheForm) {
  DesignControl* button = program.Place(0, {20, 20});
  Type("Caption", "Other");
  EXPECT_EQ(button->Caption, "Other");
  program.Key(Qt::Key_Escape);
  EXPECT_EQ(button->Caption, "Form1Btn1");
  EXPECT_EQ(Shown("Caption"), "Form1Btn1");
  EXPECT_EQ(Focused(), CellName("Caption"));
  program.Key(Qt::Key_Escape);
  EXPECT_EQ(QApplication::focusWidget(), &program.Surface());
}

TEST_F(PropertyGridWindow, TheGridIsOneStopOfTheTabKey) {
  program.Place(0, {20, 20});
  Enter("Cursor");
  program.Key(Qt::Key_Tab);
  EXPECT_EQ(Focused(), "Boton2");
  program.Key(Qt::Key_Tab);
  EXPECT_FALSE(QString::fromStdString(Focused()).startsWith("Text_")) << Focused();
  EXPECT_FALSE(QString::fromStdString(Focused()).startsWith("Boton")) << Focused();
  program.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  program.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focused(), CellName("Cursor"));
  program.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focused(), "RowFilter");
}

TEST_F(PropertyGridWindow, TypingOnAButtonGoesToTheValueBesideIt) {
  program.Place(0, {20, 20});
  Enter("FontColor");
  EXPECT_EQ(Focused(), "Boton2");
  program.Type("255");
  EXPECT_EQ(Focused(), CellName("FontColor"));
  EXPECT_EQ(program.Record().Objects(Kind::Button)->At(1)->FontColor, 255);
  ExpectLine("\nFont.Color = 255");
  Enter("Font");
  program.Type("x");
  EXPECT_EQ(Shown("Font"), "MS Sans Serif");
}

TEST_F(PropertyGridWindow, ClipboardKeysAndDeleteBelongToTheCell) {
  program.Place(0, {20, 20});
  for (const char* row : {"Caption", "BmpHandle", "Cursor", "Font", "FontColor"}) {
    Enter(row);
    QApplication::clipboard()->setText("before");
    program.Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), Shown(row)) << row;
    program.Key(Qt::Key_V, Qt::ControlModifier);
    program.Key(Qt::Key_X, Qt::ControlModifier);
    program.Key(Qt::Key_Delete);
    EXPECT_NE(program.Form().Element(Kind::Button, 1), nullptr) << row;
    ASSERT_NE(program.Selected(), nullptr) << row;
  }
  Enter("Caption");
  QApplication::clipboard()->setText("Pasted");
  program.Key(Qt::Key_A, Qt::ControlModifier);
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(program.Selected()->Caption, "Pasted");
}

TEST_F(PropertyGridWindow, AFormRecolouredByTypingLeavesTheFocusInTheCell) {
  Enter("Color");
  program.Type("2");
  EXPECT_EQ(Focused(), CellName("Color"));
  program.Type("55");
  EXPECT_EQ(Shown("Color"), "255");
  EXPECT_EQ(program.Form().BackColor, 255);
  ExpectLine("Form1.Color = 255");
}

TEST_F(PropertyGridWindow, AHalfTypedListValueIsKeptUntilItNamesOne) {
  program.Place(0, {20, 20});
  Enter("Enabled");
  program.Type("fal");
  EXPECT_EQ(program.Record().Objects(Kind::Button)->At(1)->Enabled, 1);
  program.Type("se");
  EXPECT_EQ(program.Record().Objects(Kind::Button)->At(1)->Enabled, 0);
  ExpectLine("Form1Btn1.Enabled = 0");
}

TEST_F(PropertyGridWindow, ATypedNameIsInTheTablesWhenAMenuCommandComes) {
  program.Place(0, {20, 20});
  Type("Hint", "Press here");
  program.Dialogs.SaveAnswers = {program.Projects.Path("a.tnp"), program.Projects.Path("a.ftn")};
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_NE(program.Projects.Read("a.ftn").find("Press here"), std::string::npos);
}

}  // namespace
}  // namespace tarnwick
