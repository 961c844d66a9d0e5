// The property panel on the screen: what a row shows is what is stored.
#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

#include "grid_window.h"

namespace tarnwick {
namespace {

class PropertyGridValues : public GridWindow {};

TEST_F(PropertyGridValues, APastedLineBreakIsABlankInTheCellAndTheObject) {
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

TEST_F(PropertyGridValues, ARefusedNumberIsTakenBackWhenItsRowIsLeft) {
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

TEST_F(PropertyGridValues, AColourIsTypedByItsNameAndItsRowNamesIt) {
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

TEST_F(PropertyGridValues, ANameThatMakesNoProgramIsMarkedInItsRow) {
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

TEST_F(PropertyGridValues, HandlesFollowAnEditOfPlaceAndSize) {
  program.Place(0, {40, 40});
  const ControlRef handle = program.Form().Element(Kind::Handle, 4);
  ASSERT_TRUE(handle->Visible);
  const float before = handle->Left;
  Type("Width", "150");
  EXPECT_GT(program.Form().Element(Kind::Handle, 4)->Left + 1000, before);
  EXPECT_NE(program.Form().Element(Kind::Handle, 4)->Left, before);
  EXPECT_TRUE(handle->Visible);
}

}  // namespace
}  // namespace tarnwick
