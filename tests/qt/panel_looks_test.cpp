// Small things of the panels that are seen at a glance.
#include <QAbstractItemView>
#include <QComboBox>
#include <QScrollBar>
#include <QSplitter>

#include "grid_window.h"

namespace tarnwick {
namespace {

class PanelLooks : public GridWindow {};

TEST_F(PanelLooks, SizeAndStyleOfAFontStandWholeBesideItsNameOrGiveWayToIt) {
  DesignControl* button = program.Place(0, {20, 20});
  button->FontSize = 8.25F;
  button->FontBold = true;
  button->FontItalic = true;
  program.Click(program.Surface(), {300, 200});
  program.Click(program.Surface(), {30, 30});
  Enter("Font");
  const QWidget& row = *Cell("Font").parentWidget();
  const int note = row.fontMetrics().horizontalAdvance(QStringLiteral("8.25, bold, italic"));
  const auto room_behind_the_name = [&] {
    const int buttons = Button("Boton1").mapTo(&program.Window(), QPoint()).x();
    return buttons - row.mapTo(&program.Window(), Cell("Font").geometry().topRight()).x();
  };
  EXPECT_LE(room_behind_the_name(), 1) << "the name needs it";
  auto& panels = program.Find<QSplitter>(QStringLiteral("MiddleAndRight"));
  panels.setSizes({panels.width() - 480, 480});
  Program::Settle();
  EXPECT_GE(room_behind_the_name(), note);
}

TEST_F(PanelLooks, TheHandlesBetweenPartsOfTheWindowAreSeen) {
  program.Key(Qt::Key_F8, Qt::ShiftModifier);
  Program::Settle();
  for (const char* name : {"MiddleAndRight", "RightPanels", "FormsAndFindings"}) {
    auto& splitter = program.Find<QSplitter>(QString::fromLatin1(name));
    QSplitterHandle* handle = splitter.handle(1);
    EXPECT_GE(qMin(handle->width(), handle->height()), 8) << name;
    const QImage image =
        program.Window()
            .grab(QRect(handle->mapTo(&program.Window(), QPoint()), handle->size()))
            .toImage();
    const QColor middle = image.pixelColor(image.width() / 2, image.height() / 2);
    EXPECT_GT(qAbs(middle.lightness() - image.pixelColor(0, 0).lightness()), 40) << name;
  }
}

TEST_F(PanelLooks, AListOfManyObjectsScrolls) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_C, Qt::ControlModifier);
  for (int i = 0; i < 40; ++i) program.Key(Qt::Key_V, Qt::ControlModifier);
  auto& box = program.Find<QComboBox>(QStringLiteral("Combo"));
  ASSERT_EQ(box.count(), 42);
  box.setFocus();
  program.Key(Qt::Key_Down, Qt::AltModifier);
  ASSERT_TRUE(box.view()->isVisible());
  EXPECT_TRUE(box.view()->verticalScrollBar()->isVisible());
  EXPECT_LE(box.view()->height(), 21 * box.view()->sizeHintForRow(0));
  program.Key(Qt::Key_Escape);
}

}  // namespace
}  // namespace tarnwick
