// The property panel on the screen: real keys and presses in the whole program.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "codegen/generator_state.h"
#include "codegen/program_source.h"
#include "program.h"
#include "qt/grid/property_panel.h"
#include "qt/grid/value_field.h"
#include "qt/kit/theme.h"

namespace tarnwick {
namespace {

class PropertyGridWindow : public testing::Test {
 protected:
  Program program;

  PropertySheet& Sheet() { return program.Shell().Sheet(); }
  int RowOf(std::string_view name) {
    for (int row = 0; row < Sheet().RowCount(); ++row) {
      if (Sheet().Label(row) == name) return row;
    }
    ADD_FAILURE() << "no row " << name;
    return 0;
  }
  QLineEdit& Cell(std::string_view row) {
    return program.Find<QLineEdit>(QStringLiteral("Text_%1").arg(RowOf(row)));
  }
  QLabel& NameOf(std::string_view row) {
    return program.Find<QLabel>(QStringLiteral("Label_%1").arg(RowOf(row)));
  }
  QToolButton& Button(const char* name) { return program.Find<QToolButton>(name); }
  QListWidget& List() { return program.Find<QListWidget>(QStringLiteral("ListBox")); }
  /// The row is selected by a press on its name.
  void Enter(std::string_view row) {
    program.Click(NameOf(row));
    EXPECT_EQ(Sheet().RowIndex(), RowOf(row));
  }
  /// Selects a row and types over its value.
  void Type(std::string_view row, const QString& text) {
    Enter(row);
    program.Type(text);
  }
  /// The colour behind a row's name, as the window shows it.
  QColor BackOf(std::string_view row) {
    const QPoint place = NameOf(row).mapTo(&program.Window(), QPoint(2, 2));
    return program.Window().grab(QRect(place, QSize(1, 1))).toImage().pixelColor(0, 0);
  }
  std::string Shown(std::string_view row) { return Cell(row).text().toStdString(); }
  std::string Focused() {
    const QWidget* widget = QApplication::focusWidget();
    return widget != nullptr ? widget->objectName().toStdString() : "";
  }
  std::string CellName(std::string_view row) { return "Text_" + std::to_string(RowOf(row)); }
  std::string Source() {
    GeneratorState state;
    return GenerateSource(program.Tables(), state);
  }
  void ExpectLine(std::string_view line) {
    EXPECT_NE(Source().find(line), std::string::npos) << line << " in\n" << Source();
  }
};

// --- Selecting ---

TEST_F(PropertyGridWindow, ASelectedRowHasTheAccentOfItsPaletteAndNoOther) {
  program.Place(0, {20, 20});
  const QPalette before = QApplication::palette();
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
  QApplication::setPalette(before);
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

// --- Filter ---

TEST_F(PropertyGridWindow, TheFilterShowsTheRowsThatHoldItAndTheName) {
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

TEST_F(PropertyGridWindow, AFilterThatHidesTheSelectedRowHidesItsButtons) {
  program.Place(0, {20, 20});
  Enter("Font");
  program.Click(program.Find<QLineEdit>(QStringLiteral("RowFilter")));
  program.Type("zzz");
  EXPECT_FALSE(Button("Boton1").isVisible());
  EXPECT_TRUE(Cell("Name").isVisible());
}

// --- Lists ---

TEST_F(PropertyGridWindow, TheListOpensWithThePresentValueMarkedAndAPickApplies) {
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

TEST_F(PropertyGridWindow, TheListIsWorkedByKeysAlone) {
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

TEST_F(PropertyGridWindow, ADoubleClickOnAListRowTakesTheNextValue) {
  program.Place(0, {20, 20});
  Enter("Enabled");
  QTest::mouseDClick(&Cell("Enabled"), Qt::LeftButton);
  EXPECT_EQ(Shown("Enabled"), "False");
  QTest::mouseDClick(&Cell("Enabled"), Qt::LeftButton);
  EXPECT_EQ(Shown("Enabled"), "True");
  QTest::mouseDClick(&NameOf("Enabled"), Qt::LeftButton);
  EXPECT_EQ(Shown("Enabled"), "False");
}

TEST_F(PropertyGridWindow, TheListOfParentsHoldsFormAndSeenObjects) {
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

TEST_F(PropertyGridWindow, ARenameTouchesOneRowOfTheHeadList) {
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

TEST_F(PropertyGridWindow, ARenamedFormShowsInTheFormListAndTheProgram) {
  Type("Name", "Main");
  EXPECT_EQ(program.Record().Name, "Main");
  EXPECT_EQ(program.Find<QListWidget>(QStringLiteral("ListaFrms")).item(0)->text(), "Main ()");
  EXPECT_EQ(program.Find<QComboBox>(QStringLiteral("Combo")).itemText(0), "Main   (Form)");
  ExpectLine("Dim Main As QForm");
}

TEST_F(PropertyGridWindow, TheHeadListSelectsObjectsAndTheForm) {
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

TEST_F(PropertyGridWindow, RowsOfAKindWithMoreRowsGoWithTheNextSelection) {
  program.Place(4, {20, 20});
  EXPECT_EQ(Sheet().RowCount(), 18);
  EXPECT_TRUE(program.Find<QLineEdit>(QStringLiteral("Text_17")).isVisibleTo(&program.Window()));
  program.Place(11, {220, 20});
  EXPECT_EQ(Sheet().RowCount(), 5);
  EXPECT_FALSE(program.Find<QLineEdit>(QStringLiteral("Text_17")).isVisibleTo(&program.Window()));
  EXPECT_FALSE(program.Find<QLineEdit>(QStringLiteral("Text_5")).isVisibleTo(&program.Window()));
  EXPECT_EQ(Shown("Name"), "Form1Time1");
}

// --- Looks ---

TEST_F(PropertyGridWindow, ARowKeepsItsTextInBothPalettes) {
  program.Place(0, {20, 20});
  const QPalette before = QApplication::palette();
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    QApplication::setPalette(PaletteOf(theme));
    Program::Settle();
    const QImage cell = Cell("Caption").grab().toImage();
    const QColor back = cell.pixelColor(cell.width() - 2, 2);
    int furthest = 0;
    for (int x = 0; x < cell.width(); ++x) {
      for (int y = 0; y < cell.height(); ++y) {
        furthest = qMax(furthest, qAbs(cell.pixelColor(x, y).lightness() - back.lightness()));
      }
    }
    EXPECT_GT(furthest, 120) << static_cast<int>(theme);
  }
  QApplication::setPalette(before);
}

TEST_F(PropertyGridWindow, AColourRowShowsItsColour) {
  program.Place(0, {20, 20});
  Type("FontColor", "65280");
  QWidget* row = Cell("FontColor").parentWidget();
  const QImage picture = row->grab().toImage();
  EXPECT_EQ(picture.pixelColor(Cell("FontColor").x() - 9, picture.height() / 2), QColor(0, 255, 0));
}

TEST_F(PropertyGridWindow, AFontRowShowsItsFont) {
  program.Place(0, {20, 20});
  program.Dialogs.FontAnswers = {FontChoice{"Courier New", 14, true, true, 0}};
  Enter("Font");
  program.Key(Qt::Key_Space);
  EXPECT_EQ(Shown("Font"), "Courier New");
  EXPECT_EQ(Cell("Font").font().family(), "Courier New");
  EXPECT_TRUE(Cell("Font").font().bold());
  EXPECT_TRUE(Cell("Font").font().italic());
  EXPECT_FALSE(Cell("Caption").font().bold());
  ExpectLine("\nFont.Name = \"Courier New\"");
}

TEST_F(PropertyGridWindow, AFontRowFollowsASizeOrStyleOfTheSameFamily) {
  DesignControl* button = program.Place(0, {20, 20});
  Enter("Font");
  const QImage before = Cell("Font").parentWidget()->grab().toImage();
  program.Dialogs.FontAnswers = {FontChoice{button->FontName, 24, true, false, 0}};
  program.Key(Qt::Key_Space);
  EXPECT_EQ(button->FontSize, 24);
  EXPECT_TRUE(Cell("Font").font().bold());
  EXPECT_NE(Cell("Font").parentWidget()->grab().toImage(), before);
}

// --- What is shown is what is stored ---

TEST_F(PropertyGridWindow, APastedLineBreakIsABlankInTheCellAndTheObject) {
  program.Place(0, {20, 20});
  for (const char* row : {"Name", "Caption", "Hint"}) {
    for (const char* text : {"na\nme", "na\r\nme", "na\tme"}) {
      Enter(row);
      QApplication::clipboard()->setText(QString::fromLatin1(text));
      program.Key(Qt::Key_A, Qt::ControlModifier);
      program.Key(Qt::Key_V, Qt::ControlModifier);
      EXPECT_EQ(Shown(row), "na me") << row;
      EXPECT_EQ(Sheet().Text(RowOf(row)), "na me") << row;
    }
  }
  EXPECT_EQ(program.Selected()->Tag, "na me");
  EXPECT_EQ(program.Selected()->ToolTipText, "na me");
}

TEST_F(PropertyGridWindow, ARefusedNumberIsTakenBackWhenItsRowIsLeft) {
  program.Place(0, {20, 20});
  const std::string before = Shown("TabOrder");
  Type("TabOrder", "70000");
  EXPECT_EQ(Shown("TabOrder"), "70000");
  program.Key(Qt::Key_Tab);
  EXPECT_EQ(Shown("TabOrder"), before);
  EXPECT_EQ(std::to_string(program.Record().Objects(Kind::Button)->At(1)->TabOrder), before);
  Type("Width", "-5");
  Enter("Caption");
  EXPECT_EQ(Shown("Width"), "75");
  EXPECT_EQ(program.Selected()->Width, 75 * 15);
  Enter("Width");
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(Shown("Width"), "");
  EXPECT_EQ(program.Selected()->Width, 75 * 15);
  program.Click(program.Surface(), {300, 200});
  EXPECT_EQ(program.Form().Element(Kind::Button, 1)->Width, 75 * 15);
}

TEST_F(PropertyGridWindow, AColourIsTypedByItsNameAndItsRowNamesIt) {
  program.Place(0, {20, 20});
  Type("FontColor", "clred");
  EXPECT_EQ(program.Record().Objects(Kind::Button)->At(1)->FontColor, 255);
  QWidget* row = Cell("FontColor").parentWidget();
  const QImage picture = row->grab().toImage();
  EXPECT_EQ(picture.pixelColor(Cell("FontColor").x() - 9, picture.height() / 2), QColor(255, 0, 0));
  Enter("Caption");
  EXPECT_EQ(Shown("FontColor"), "255");
  ExpectLine("\nFont.Color = 255");
}

TEST_F(PropertyGridWindow, ANameThatMakesNoProgramIsMarkedInItsRow) {
  program.Place(0, {20, 20});
  program.Place(0, {20, 80});
  const QImage before = Cell("Name").parentWidget()->grab().toImage();
  Type("Name", "Form1Btn1");
  EXPECT_TRUE(Cell("Name").toolTip().contains("is used before"))
      << Cell("Name").toolTip().toStdString();
  EXPECT_EQ(Cell("Name").accessibleDescription(), Cell("Name").toolTip());
  EXPECT_TRUE(program.Find<QPlainTextEdit>(QStringLiteral("RowHelp"))
                  .toPlainText()
                  .contains("is used before"));
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn1");
  Type("Name", "Print");
  EXPECT_TRUE(Cell("Name").toolTip().contains("word of the language"));
  Type("Name", "Ok");
  EXPECT_FALSE(Cell("Name").toolTip().contains("."));
}

TEST_F(PropertyGridWindow, HandlesFollowAnEditOfPlaceAndSize) {
  program.Place(0, {40, 40});
  const ControlRef handle = program.Form().Element(Kind::Handle, 4);
  ASSERT_TRUE(handle->Visible);
  const float before = handle->Left;
  Type("Width", "150");
  EXPECT_GT(program.Form().Element(Kind::Handle, 4)->Left + 1000, before);
  EXPECT_NE(program.Form().Element(Kind::Handle, 4)->Left, before);
  EXPECT_TRUE(handle->Visible);
}

// --- Scrolling and columns ---

TEST_F(PropertyGridWindow, ANewSelectionStartsAtTheTopRow) {
  program.Window().resize(1000, 640);
  Program::Settle();
  program.Place(4, {20, 20});
  auto* bar = program.Window().findChild<QScrollBar*>(QStringLiteral("VScroll1"));
  ASSERT_NE(bar, nullptr);
  ASSERT_GT(bar->maximum(), 0);
  bar->setValue(bar->maximum());
  program.Place(4, {220, 20});
  EXPECT_EQ(bar->value(), 0);
}

TEST_F(PropertyGridWindow, F4GoesToTheRowOfTheNameLastEdited) {
  program.Place(0, {20, 20});
  Type("Height", "40");
  program.Place(3, {20, 120});
  program.Key(Qt::Key_F4);
  EXPECT_EQ(Sheet().Label(Sheet().RowIndex()), "Height");
  EXPECT_EQ(Focused(), CellName("Height"));
}

TEST_F(PropertyGridWindow, NoRowIsCutAtTheFootOfTheGrid) {
  program.Place(4, {20, 20});
  for (const int height : {640, 655, 670, 700, 900}) {
    program.Window().resize(1000, height);
    Program::Settle();
    const QWidget* viewport = program.Find<QScrollArea>(QStringLiteral("PropertyGrid")).viewport();
    EXPECT_EQ(viewport->height() % Cell("Name").parentWidget()->height(), 0) << height;
  }
}

TEST_F(PropertyGridWindow, InALowWindowTheRowsComeBeforeTheHelp) {
  program.Place(4, {20, 20});
  program.Window().resize(1000, 640);
  Program::Settle();
  const QWidget* viewport = program.Find<QScrollArea>(QStringLiteral("PropertyGrid")).viewport();
  EXPECT_GE(viewport->height() / Cell("Name").parentWidget()->height(), 8);
  program.Window().resize(1000, 1000);
  Program::Settle();
  EXPECT_GE(program.Find<QPlainTextEdit>(QStringLiteral("RowHelp")).height(), 60);
}

TEST_F(PropertyGridWindow, TheLineBetweenTheColumnsIsDraggedByTheMouse) {
  program.Place(0, {20, 20});
  QWidget* row = NameOf("Caption").parentWidget();
  const int before = Cell("Caption").x();
  program.Drag(*row, {before - 3, 10}, {before + 37, 10});
  EXPECT_NEAR(Cell("Caption").x(), before + 40, 4);
  EXPECT_NEAR(Cell("Height").x(), before + 40, 4);
  EXPECT_FALSE(Sheet().HasSelectedRow());
  program.Drag(*row, {Cell("Caption").x() - 3, 10}, {-500, 10});
  EXPECT_GT(Cell("Caption").x(), 20);
}

TEST_F(PropertyGridWindow, APathThatIsTooLongShowsItsEnd) {
  program.Place(12, {20, 20});
  Type("FileName", "C:\\a folder\\with many\\folders below\\and then\\the file.txt");
  Enter("Title");
  auto* field = dynamic_cast<ValueField*>(&Cell("FileName"));
  ASSERT_NE(field, nullptr);
  EXPECT_TRUE(field->CutText().endsWith("the file.txt")) << field->CutText().toStdString();
  EXPECT_NE(field->CutText(), field->text());
}

TEST_F(PropertyGridWindow, LettersInTheHeadListGoToTheObjectOfThatName) {
  for (int i = 0; i < 4; ++i) program.Place(0, {20, 20 + 40 * i});
  auto& combo = program.Find<QComboBox>(QStringLiteral("Combo"));
  combo.setFocus();
  program.Type("Btn3");
  EXPECT_EQ(combo.currentText(), "Form1Btn3   (Button)");
  ASSERT_NE(program.Selected(), nullptr);
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn3");
  program.Key(Qt::Key_Down);
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn4");
  program.Type("form1btn2");
  EXPECT_EQ(program.Selected()->Tag, "Form1Btn2");
}

TEST_F(PropertyGridWindow, EveryPartHasANameForThoseWhoDoNotSeeIt) {
  program.Place(0, {20, 20});
  for (int row = 0; row < Sheet().RowCount(); ++row) {
    const auto& cell = program.Find<QLineEdit>(QStringLiteral("Text_%1").arg(row));
    EXPECT_EQ(cell.accessibleName().toStdString(), Sheet().Label(row));
  }
  for (const char* name :
       {"Combo", "RowFilter", "RowHelp", "Boton1", "Boton2", "Boton3", "ListBox", "GridRows"}) {
    EXPECT_FALSE(program.Find<QWidget>(QString::fromLatin1(name)).accessibleName().isEmpty())
        << name;
  }
}

TEST_F(PropertyGridWindow, TheGridOfARemovedFormIsEmpty) {
  program.Place(0, {20, 20});
  program.User.Yes();
  program.Choose(QStringLiteral("mnuRemove"));
  EXPECT_EQ(program.Tables().CurrentForm, nullptr);
  EXPECT_EQ(Sheet().RowCount(), 1);
  EXPECT_EQ(program.Find<QLineEdit>(QStringLiteral("Text_0")).text(), "");
  EXPECT_FALSE(program.Find<QLineEdit>(QStringLiteral("Text_3")).isVisible());
  EXPECT_EQ(program.Find<QComboBox>(QStringLiteral("Combo")).count(), 0);
}

}  // namespace
}  // namespace tarnwick
