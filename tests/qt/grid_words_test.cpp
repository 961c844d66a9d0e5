// What the property panel says about a row: tips, marks, and the room of the help.
#include <QHelpEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QToolTip>

#include "grid_window.h"

namespace tarnwick {
namespace {

class GridWords : public GridWindow {
 protected:
  QString TipOfName(std::string_view row) {
    QLabel& name = NameOf(row);
    const QPoint at = name.rect().center();
    QHelpEvent rest(QEvent::ToolTip, at, name.mapToGlobal(at));
    QApplication::sendEvent(&name, &rest);
    const QString text = QToolTip::text();
    QToolTip::hideText();
    return text;
  }
};

TEST_F(GridWords, TheTipOfARowsNameSaysWhatTheRowIsFor) {
  program.Place(0, {20, 20});
  Enter("Caption");
  const QString help = program.Find<QPlainTextEdit>(QStringLiteral("RowHelp")).toPlainText();
  ASSERT_FALSE(help.isEmpty());
  const QString tip = TipOfName("Caption");
  EXPECT_TRUE(tip.contains(QStringLiteral("<b>Caption</b>")));
  EXPECT_TRUE(tip.contains(help.section(u'\n', 0, 0).toHtmlEscaped())) << tip.toStdString();
}

TEST_F(GridWords, TheTipOfAMarkedRowsNameSaysWhatIsWrong) {
  program.Place(0, {20, 20});
  Type("Name", "1 bad");
  const QString fault = Cell("Name").toolTip();
  ASSERT_FALSE(fault.isEmpty());
  EXPECT_TRUE(TipOfName("Name").contains(fault.toHtmlEscaped()));
}

TEST_F(GridWords, AWordThatIsNoColourIsMarkedWhileItIsTyped) {
  program.Place(0, {20, 20});
  Type("FontColor", "clGre");
  EXPECT_EQ(Cell("FontColor").accessibleDescription(), QString());
  program.Type(QStringLiteral("ek"));
  EXPECT_EQ(Cell("FontColor").accessibleDescription(),
            QStringLiteral("Not stored: no colour has this name."));
  Enter("Caption");
  EXPECT_EQ(Shown("FontColor"), "0");
  EXPECT_EQ(Cell("FontColor").accessibleDescription(), QString());
}

TEST_F(GridWords, ATextThatIsNoValueOfTheListIsMarkedWhileItIsTyped) {
  program.Place(0, {20, 20});
  Type("Enabled", "Fal");
  EXPECT_EQ(Cell("Enabled").accessibleDescription(), QString());
  program.Type(QStringLiteral("x"));
  EXPECT_EQ(Cell("Enabled").accessibleDescription(),
            QStringLiteral("Not stored: the list has no such value."));
  Enter("Caption");
  EXPECT_EQ(Shown("Enabled"), "True");
}

TEST_F(GridWords, ASelectedColourShowsItsWholeNumber) {
  program.Place(1, {20, 20});
  // A column in which number, name and button do not fit side by side.
  Sheet().SelectRow(0);
  program.Window().resize(1000, 900);
  Program::Settle();
  Enter("Color");
  const QLineEdit& cell = Cell("Color");
  ASSERT_EQ(cell.text(), QStringLiteral("16777215"));
  EXPECT_GE(cell.width(), cell.fontMetrics().horizontalAdvance(cell.text()));
}

TEST_F(GridWords, NoRowIsHiddenBehindHelpThatWouldFitBelow) {
  QScrollBar& bar = program.Find<QScrollBar>(QStringLiteral("VScroll1"));
  auto& parts = program.Find<QSplitter>(QStringLiteral("GridAndHelp"));
  for (int height = 900; height >= 620; height -= 10) {
    program.Window().resize(1366, height);
    Program::Settle();
    EXPECT_TRUE(parts.sizes().at(1) == 0 || bar.maximum() == 0) << height;
  }
}

}  // namespace
}  // namespace tarnwick
