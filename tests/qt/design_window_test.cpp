// Design windows: maximising, sizing, Esc, pictures that change, and what assistive programs see.
#include <QAccessible>
#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include "designer/history/history.h"
#include "program.h"
#include "qt/surface/container.h"
#include "qt/surface/window_frame.h"

namespace tarnwick {
namespace {

constexpr QPoint kPlace{100, 100};

DesignWindow& WindowOf(Program& program, int form = 0) {
  return *qobject_cast<DesignWindow*>(program.Surface(form).parentWidget());
}

void PressFrameButton(Program& program, DesignWindow& window, FramePart part) {
  WindowFrame frame;
  frame.Size = window.size();
  program.Click(window, frame.ButtonRect(part).center());
}

TEST(DesignWindows, AMaximisedWindowFillsTheVisiblePartEvenWhenScrolled) {
  Program program;
  program.Shell().Tables().CurrentForm->Width = 1600 * 15;
  program.Form().Height = 1200 * 15;
  DesignWindow& window = WindowOf(program);
  window.SyncWithForm();
  Container& container = program.Window().Forms();
  container.horizontalScrollBar()->setValue(120);
  container.verticalScrollBar()->setValue(0);
  Program::Settle();
  program.Key(Qt::Key_Home);
  QTest::mouseDClick(&window, Qt::LeftButton, {}, QPoint(300, 12));
  Program::Settle();
  ASSERT_EQ(window.State(), WindowState::Maximised);
  EXPECT_EQ(window.geometry(), container.VisiblePart());
  EXPECT_EQ(program.Record().Width, container.VisiblePart().width());
}

TEST(DesignWindows, EachFormIsMaximisedByItself) {
  Program program;
  PressFrameButton(program, WindowOf(program, 1), FramePart::Maximise);
  ASSERT_EQ(WindowOf(program, 1).State(), WindowState::Maximised);
  program.Key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
  PressFrameButton(program, WindowOf(program, 2), FramePart::Maximise);
  const QRect visible = program.Window().Forms().VisiblePart();
  EXPECT_EQ(WindowOf(program, 2).geometry(), visible);
  EXPECT_EQ(WindowOf(program, 1).geometry(), visible);
  EXPECT_EQ(program.Tables().Form(2)->Width, visible.width());
  PressFrameButton(program, WindowOf(program, 2), FramePart::Maximise);
  EXPECT_EQ(program.Tables().Form(2)->Width, 400);
  EXPECT_EQ(program.Tables().Form(1)->Width, visible.width());
}

TEST(DesignWindows, AWidthThatIsEditedWhileMaximisedHoldsAtTheReturn) {
  Program program;
  DesignWindow& window = WindowOf(program);
  PressFrameButton(program, window, FramePart::Maximise);
  program.Form().Width = 300 * 15;
  window.SyncWithForm();
  EXPECT_EQ(window.State(), WindowState::Maximised);
  PressFrameButton(program, window, FramePart::Maximise);
  EXPECT_EQ(window.width(), 300);
  EXPECT_EQ(window.height(), 333);
}

TEST(DesignWindows, AHeightThatIsEditedWhileRolledUpHoldsAtTheReturn) {
  Program program;
  DesignWindow& window = WindowOf(program);
  PressFrameButton(program, window, FramePart::Minimise);
  program.Form().Height = 250 * 15;
  window.SyncWithForm();
  PressFrameButton(program, window, FramePart::Minimise);
  EXPECT_EQ(window.width(), 400);
  EXPECT_EQ(window.height(), 250);
}

TEST(DesignWindows, SizingByTheEdgeIsOneStep) {
  Program program;
  DesignWindow& window = WindowOf(program);
  const std::size_t steps = program.Shell().Steps().Size();
  program.Press(window, {398, 330});
  program.Move(window, {420, 340});
  program.Move(window, {440, 350});
  program.Release(window, {440, 350});
  EXPECT_GT(window.width(), 420);
  EXPECT_EQ(program.Shell().Steps().Size(), steps + 1);
  program.Shell().Undo();
  EXPECT_EQ(window.width(), 400);
  EXPECT_EQ(window.height(), 333);
}

TEST(DesignWindows, EscInADragLeavesTheObjectWhereItWasAndSelected) {
  Program program;
  const DesignControl* button = program.Place(0, kPlace);
  program.Press(program.Surface(), {110, 110});
  program.Move(program.Surface(), {180, 160});
  program.Key(Qt::Key_Escape);
  program.Move(program.Surface(), {200, 200});
  program.Release(program.Surface(), {200, 200});
  EXPECT_EQ(RectOf(*button), (PixelRect{100, 100, 75, 25}));
  EXPECT_EQ(program.Selected(), button);
  EXPECT_TRUE(program.Form().Element(Kind::Handle, 0)->Visible);
}

TEST(DesignWindows, EscPutsAToolDownAndLiftsNoLock) {
  Program program;
  const DesignControl* button = program.Place(0, kPlace);
  program.Key(Qt::Key_L, Qt::ControlModifier);
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(program.Form().m_bDesignMode);
  EXPECT_EQ(program.Selected(), button);
  program.PressTool(3);
  program.Surface().setFocus();
  program.Key(Qt::Key_Escape);
  EXPECT_EQ(program.Form().Objeto, "");
}

TEST(DesignWindows, APressOnAHandleWithoutAMoveKeepsTheSize) {
  Program program;
  const DesignControl* image = program.Place(2, kPlace);
  const PixelRect before = RectOf(*image);
  program.DragHandle(4, {0, 0});
  EXPECT_EQ(RectOf(*image), before);
}

TEST(DesignWindows, TheFormToolLeavesTheFormUnlockedAndNothingSelected) {
  Program program;
  program.Place(0, kPlace);
  program.Key(Qt::Key_L, Qt::ControlModifier);
  program.PressTool(9);
  EXPECT_TRUE(program.Tables().User(1)->m_bDesignMode);
  EXPECT_EQ(program.Tables().User(1)->ControlSel, nullptr);
  EXPECT_EQ(program.Form().Number(), 2);
}

TEST(Access, TheFormHasItsObjectsAsChildren) {
  Program program;
  program.Place(0, kPlace);
  program.Place(3, {20, 20});
  QAccessibleInterface* form = QAccessible::queryAccessibleInterface(&program.Surface());
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->text(QAccessible::Name), QStringLiteral("Form1"));
  ASSERT_EQ(form->childCount(), 2);
  QAccessibleInterface* button = form->child(0);
  QAccessibleInterface* label = form->child(1);
  EXPECT_EQ(button->text(QAccessible::Name), QStringLiteral("Form1Btn1"));
  EXPECT_EQ(button->text(QAccessible::Description), QStringLiteral("Button"));
  EXPECT_EQ(button->role(), QAccessible::PushButton);
  EXPECT_EQ(button->rect(), QRect(program.Surface().mapToGlobal(kPlace), QSize(75, 25)));
  EXPECT_FALSE(button->state().selected);
  EXPECT_TRUE(label->state().selected);
  EXPECT_EQ(form->indexOfChild(label), 1);
  EXPECT_EQ(button->parent(), form);
  const QPoint inside = program.Surface().mapToGlobal(kPlace + QPoint(5, 5));
  EXPECT_EQ(form->childAt(inside.x(), inside.y()), button);
}

TEST(Access, PressSelectsTheObject) {
  Program program;
  program.Place(0, kPlace);
  program.Place(3, {20, 20});
  QAccessibleInterface* form = QAccessible::queryAccessibleInterface(&program.Surface());
  QAccessibleInterface* button = form->child(0);
  ASSERT_NE(button->actionInterface(), nullptr);
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(program.Form().NameObjet, "Button1");
  EXPECT_TRUE(button->state().selected);
  EXPECT_EQ(form->focusChild() == button, program.Surface().hasFocus());
}

TEST(Access, ADeletedObjectIsNoChildAnyMore) {
  Program program;
  program.Place(0, kPlace);
  QAccessibleInterface* form = QAccessible::queryAccessibleInterface(&program.Surface());
  QAccessibleInterface* button = form->child(0);
  program.Key(Qt::Key_Delete);
  EXPECT_EQ(form->childCount(), 0);
  EXPECT_FALSE(button->isValid());
  program.Shell().Undo();
  EXPECT_EQ(form->childCount(), 1);
}

/// The child of an interface whose name begins so; null without one.
QAccessibleInterface* ChildNamed(QAccessibleInterface* parent, const QString& name) {
  for (int i = 0; i < parent->childCount(); ++i) {
    QAccessibleInterface* const child = parent->child(i);
    if (child != nullptr && child->text(QAccessible::Name).startsWith(name)) return child;
  }
  return nullptr;
}

void Act(QAccessibleInterface* access, const QString& action) {
  ASSERT_NE(access, nullptr);
  ASSERT_NE(access->actionInterface(), nullptr);
  ASSERT_TRUE(access->actionInterface()->actionNames().contains(action));
  access->actionInterface()->doAction(action);
}

TEST(Access, AWindowHasTheButtonsOfItsFrame) {
  Program program;
  DesignWindow& window = WindowOf(program);
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&window);
  ASSERT_NE(access, nullptr);
  EXPECT_EQ(access->role(), QAccessible::Window);
  EXPECT_EQ(access->text(QAccessible::Name), "Form1");
  EXPECT_GE(access->indexOfChild(QAccessible::queryAccessibleInterface(&program.Surface())), 0);
  QAccessibleInterface* maximise = ChildNamed(access, QStringLiteral("Maximise"));
  ASSERT_NE(maximise, nullptr);
  EXPECT_EQ(maximise->role(), QAccessible::PushButton);
  EXPECT_EQ(maximise->parent(), access);
  EXPECT_EQ(access->child(access->indexOfChild(maximise)), maximise);
  const QPoint middle = maximise->rect().center();
  EXPECT_EQ(access->childAt(middle.x(), middle.y()), maximise);
  EXPECT_EQ(window.Frame().PartAt(window.mapFromGlobal(middle)), FramePart::Maximise);
  Act(maximise, QAccessibleActionInterface::pressAction());
  EXPECT_EQ(window.State(), WindowState::Maximised);
  EXPECT_EQ(maximise->text(QAccessible::Name), "Restore");
  Act(maximise, QAccessibleActionInterface::pressAction());
  EXPECT_EQ(window.State(), WindowState::Normal);
  QAccessibleInterface* minimise = ChildNamed(access, QStringLiteral("Minimise"));
  Act(minimise, QAccessibleActionInterface::pressAction());
  EXPECT_EQ(window.State(), WindowState::Minimised);
  Act(minimise, QAccessibleActionInterface::pressAction());
  Act(ChildNamed(access, QStringLiteral("Close")), QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(window.isVisible());
}

TEST(Access, AFrameWithoutButtonsHasNone) {
  Program program;
  DesignWindow& window = WindowOf(program);
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&window);
  const int with_buttons = access->childCount();
  program.Shell().User(1)->Frame().borderstylea(0);
  EXPECT_EQ(access->childCount(), with_buttons - 3);
  EXPECT_EQ(ChildNamed(access, QStringLiteral("Close")), nullptr);
}

TEST(Access, ThePopUpMenuOfAnObjectHasItsRows) {
  Program program;
  program.Place(0, kPlace);
  program.Click(program.Surface(), {110, 110}, Qt::RightButton);
  auto& menu = program.Find<QMenu>(QStringLiteral("ObjectPopUp"));
  ASSERT_TRUE(menu.isVisible());
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&menu);
  ASSERT_NE(access, nullptr);
  EXPECT_EQ(access->role(), QAccessible::PopupMenu);
  EXPECT_FALSE(access->text(QAccessible::Name).isEmpty());
  QAccessibleInterface* copy = ChildNamed(access, QStringLiteral("Copy"));
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(copy->role(), QAccessible::MenuItem);
  Act(copy, QAccessibleActionInterface::pressAction());
  menu.close();
  program.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(program.Form().UBound(Kind::Button), 2);
}

}  // namespace
}  // namespace tarnwick
