// What Ok and Cancel of the menu designer leave: the form, its window and its steps.
#include <gtest/gtest.h>

#include "menu_window.h"
#include "persistence/form_writer.h"
#include "qt/surface/window_frame.h"

namespace tarnwick {
namespace {

class MenuOkWindow : public MenuDesigners {};

TEST_F(MenuOkWindow, CancelTouchesNothing) {
  program.Place(0, {20, 20});
  const DesignForm* window = &program.Form();
  const std::string before = FormFileText(program.Tables(), 1);
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    EXPECT_EQ(menu.List().count(), 15);
    menu.Press(8);
  });
  EXPECT_EQ(&program.Form(), window);
  EXPECT_EQ(FormFileText(program.Tables(), 1), before);
  EXPECT_EQ(program.Form().NameObjet, "Button1");
}

TEST_F(MenuOkWindow, OkKeepsTheObjectsAndThePlaceOfTheWindow) {
  program.Place(0, {20, 20});
  program.Place(3, {20, 120});
  QWidget* before = program.Window().Forms().Window(1);
  before->move(77, 55);
  const QColor title = before->grab().toImage().pixelColor(200, 12);
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Press(7);
  });
  QWidget* after = program.Window().Forms().Window(1);
  EXPECT_NE(after, before);
  EXPECT_EQ(after->pos(), QPoint(77, 55));
  EXPECT_TRUE(after->isVisible());
  EXPECT_EQ(after->grab().toImage().pixelColor(200, 12), title) << "the title of the current form";
  EXPECT_EQ(program.Form().Element(Kind::Button, 1)->Tag, "Form1Btn1");
  EXPECT_EQ(program.Form().Element(Kind::Label, 1)->Tag, "Form1Label1");
  // The new surface takes presses and keys.
  program.Click(program.Surface(), {30, 30});
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 0);
}

TEST_F(MenuOkWindow, OkOnAMaximisedFormKeepsItMaximised) {
  DesignWindow* before = program.Window().Forms().Window(1);
  before->move(77, 55);
  const QRect normal = before->geometry();
  QTest::mouseDClick(before, Qt::LeftButton, {}, QPoint(150, 12));
  ASSERT_EQ(before->State(), WindowState::Maximised);
  const QRect filled = before->geometry();
  const std::size_t steps = program.Shell().Steps().Size();
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  DesignWindow* after = program.Window().Forms().Window(1);
  ASSERT_NE(after, before);
  EXPECT_EQ(after->State(), WindowState::Maximised);
  EXPECT_EQ(after->geometry(), filled);
  EXPECT_TRUE(after->isVisible());
  EXPECT_EQ(program.Shell().Steps().Size(), steps + 1);
  // It returns to where it stood and to the size it had.
  QTest::mouseDClick(after, Qt::LeftButton, {}, QPoint(150, 12));
  EXPECT_EQ(after->State(), WindowState::Normal);
  EXPECT_EQ(after->geometry(), normal);
  EXPECT_EQ(program.Record().Width, normal.width());
}

TEST_F(MenuOkWindow, OkOnARolledUpFormLeavesItRolledUpWhereItStood) {
  DesignWindow* before = program.Window().Forms().Window(1);
  before->move(77, 55);
  const QRect normal = before->geometry();
  WindowFrame frame;
  frame.Size = before->size();
  program.Click(*before, frame.ButtonRect(FramePart::Minimise).center());
  ASSERT_EQ(before->State(), WindowState::Minimised);
  InMenuEdit([](const Designer& menu) {
    menu.Add("&File", "mnuFile");
    menu.Ok();
  });
  DesignWindow* after = program.Window().Forms().Window(1);
  EXPECT_EQ(after->State(), WindowState::Minimised);
  EXPECT_EQ(after->pos(), normal.topLeft());
  EXPECT_EQ(program.Record().Height, normal.height());
  program.Click(*after, frame.ButtonRect(FramePart::Minimise).center());
  EXPECT_EQ(after->State(), WindowState::Normal);
  EXPECT_EQ(after->geometry(), normal);
  EXPECT_TRUE(Title(1).isVisible());
}

TEST_F(MenuOkWindow, TheStepOfOkIsUndoneAndDoneAgainByKeys) {
  InMenuEdit([](const Designer& menu) {
    menu.Add("&File", "mnuFile");
    menu.Ok();
  });
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  ASSERT_EQ(MenuRows().size(), 13U);
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(MenuRows(), Rows{"&File    (mnuFile)"});
  EXPECT_TRUE(Title(1).isVisible());
  program.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(MenuRows().empty());
  program.Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(MenuRows(), Rows{"&File    (mnuFile)"});
  program.Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(MenuRows().size(), 13U);
}

}  // namespace
}  // namespace tarnwick
