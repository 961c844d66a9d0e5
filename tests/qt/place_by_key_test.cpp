// Objects are placed without the mouse.
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include <gtest/gtest.h>

#include "program.h"

namespace tarnwick {
namespace {

class PlaceByKey : public ::testing::Test {
 protected:
  /// Opens the menu of the objects by its key and goes down so many rows.
  void ArmByKeys(int down) {
    program.Surface().setFocus();
    program.Key(Qt::Key_O, Qt::AltModifier);
    for (int i = 0; i < down; ++i) program.Key(Qt::Key_Down);
    program.Key(Qt::Key_Return);
  }
  QWidget& Code() { return program.Find<QWidget>(QStringLiteral("FormCodigo")); }

  Program program;
};

TEST_F(PlaceByKey, EnterPlacesTheArmedObjectWhereNothingLies) {
  ArmByKeys(2);
  ASSERT_EQ(program.Form().Objeto, "Button");
  program.Key(Qt::Key_Return);
  ASSERT_EQ(program.Form().UBound(Kind::Button), 1);
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  EXPECT_FALSE(Code().isVisible());
  ArmByKeys(2);
  program.Key(Qt::Key_Return);
  ASSERT_EQ(program.Form().UBound(Kind::Button), 2);
  EXPECT_EQ(program.Form().NameObjet, "Button2");
  const PixelRect first = RectOf(*program.Form().Element(Kind::Button, 1));
  const PixelRect second = RectOf(*program.Form().Element(Kind::Button, 2));
  EXPECT_GE(second.Left, first.Left + first.Width);
  EXPECT_EQ(second.Top, first.Top);
  EXPECT_EQ(second.Width, 75);
}

TEST_F(PlaceByKey, UndoTakesItBackInOneStep) {
  ArmByKeys(5);
  program.Key(Qt::Key_Return);
  ASSERT_EQ(program.Form().UBound(Kind::Label), 1);
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(program.Form().UBound(Kind::Label), 0);
}

TEST_F(PlaceByKey, WithoutAToolEnterOpensTheCode) {
  program.Place(0, {20, 20});
  program.Key(Qt::Key_Return);
  EXPECT_TRUE(Code().isVisible());
}

}  // namespace
}  // namespace tarnwick
