// The property panel on the screen: how rows look, scroll and share the height with the help.
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

#include <gtest/gtest.h>

#include "grid_window.h"
#include "qt/grid/value_field.h"
#include "qt/kit/theme.h"

namespace tarnwick {
namespace {

class PropertyGridLooks : public GridWindow {};

// --- Looks ---

TEST_F(PropertyGridLooks, ARowKeepsItsTextInBothPalettes) {
  program.Place(0, {20, 20});
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
  ResetLook();
}

TEST_F(PropertyGridLooks, AColourRowShowsItsColour) {
  program.Place(0, {20, 20});
  Type("FontColor", "65280");
  QWidget* row = Cell("FontColor").parentWidget();
  const QImage picture = row->grab().toImage();
  EXPECT_EQ(picture.pixelColor(Cell("FontColor").x() - 9, picture.height() / 2), QColor(0, 255, 0));
}

TEST_F(PropertyGridLooks, AFontRowShowsItsFont) {
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

TEST_F(PropertyGridLooks, AFontRowFollowsASizeOrStyleOfTheSameFamily) {
  DesignControl* button = program.Place(0, {20, 20});
  Enter("Font");
  const QImage before = Cell("Font").parentWidget()->grab().toImage();
  program.Dialogs.FontAnswers = {FontChoice{button->FontName, 24, true, false, 0}};
  program.Key(Qt::Key_Space);
  EXPECT_EQ(button->FontSize, 24);
  EXPECT_TRUE(Cell("Font").font().bold());
  EXPECT_NE(Cell("Font").parentWidget()->grab().toImage(), before);
}

// --- Scrolling and columns ---

TEST_F(PropertyGridLooks, ANewSelectionStartsAtTheTopRow) {
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

TEST_F(PropertyGridLooks, F4GoesToTheRowOfTheNameLastEdited) {
  program.Place(0, {20, 20});
  Type("Height", "40");
  program.Place(3, {20, 120});
  program.Key(Qt::Key_F4);
  EXPECT_EQ(Sheet().Label(Sheet().RowIndex()), "Height");
  EXPECT_EQ(Focused(), CellName("Height"));
}

TEST_F(PropertyGridLooks, NoRowIsCutAtTheFootOfTheGrid) {
  program.Place(4, {20, 20});
  for (const int height : {640, 655, 670, 700, 900}) {
    program.Window().resize(1000, height);
    Program::Settle();
    const QWidget* viewport = program.Find<QScrollArea>(QStringLiteral("PropertyGrid")).viewport();
    EXPECT_EQ(viewport->height() % Cell("Name").parentWidget()->height(), 0) << height;
  }
}

/// How many whole rows show at a height of the main window, or at the least that its tools allow.
class RowsAtHeight : public PropertyGridLooks {
 protected:
  int RowsAt(int height) {
    program.Window().resize(1000, height);
    Program::Settle();
    EXPECT_LE(program.Window().height(), std::max(height, 540));
    const QWidget* viewport = program.Find<QScrollArea>(QStringLiteral("PropertyGrid")).viewport();
    return viewport->height() / Cell("Name").parentWidget()->height();
  }
  QWidget& Help() { return program.Find<QPlainTextEdit>(QStringLiteral("RowHelp")); }
  QWidget& Icon() { return program.Find<QLabel>(QStringLiteral("ProgramIcon")); }
};

TEST_F(RowsAtHeight, InALowWindowHelpAndIconGiveWayBeforeTheRows) {
  program.Place(4, {20, 20});
  EXPECT_GE(RowsAt(768), 15);
  EXPECT_FALSE(Icon().isVisible());
  EXPECT_GE(RowsAt(600), 10);
  EXPECT_LT(Help().height(), Cell("Name").parentWidget()->height());
  EXPECT_GE(RowsAt(480), 6);
  EXPECT_GE(RowsAt(1000), 16);
  EXPECT_TRUE(Icon().isVisible());
  EXPECT_GE(Help().height(), 60);
}

TEST_F(RowsAtHeight, TheFormListKeepsTwoLinesInALowWindow) {
  RowsAt(480);
  const auto& list = program.Find<QListWidget>(QStringLiteral("ListaFrms"));
  EXPECT_TRUE(list.isVisible());
  EXPECT_GE(list.height(), 40);
  EXPECT_LE(list.mapTo(&program.Window(), QPoint(0, list.height())).y(), program.Window().height());
}

TEST_F(PropertyGridLooks, TheLineBetweenTheColumnsIsDraggedByTheMouse) {
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

TEST_F(PropertyGridLooks, APathThatIsTooLongShowsItsEnd) {
  program.Place(12, {20, 20});
  Type("FileName", "C:\\a folder\\with many\\folders below\\and then\\the file.txt");
  Enter("Title");
  auto* field = dynamic_cast<ValueField*>(&Cell("FileName"));
  ASSERT_NE(field, nullptr);
  EXPECT_TRUE(field->CutText().endsWith("the file.txt")) << field->CutText().toStdString();
  EXPECT_NE(field->CutText(), field->text());
}

TEST_F(PropertyGridLooks, EveryPartHasANameForThoseWhoDoNotSeeIt) {
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

TEST_F(PropertyGridLooks, TheGridOfARemovedFormIsEmpty) {
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
