// The menu bar of a design form: its titles, their items and the code behind them.
#include <QAccessible>
#include <QComboBox>
#include <QMenu>

#include <gtest/gtest.h>

#include "menu_window.h"
#include "shell/events_bar.h"

namespace tarnwick {
namespace {

class FormMenuWindow : public MenuDesigners {};

TEST_F(FormMenuWindow, TheMenuOfTheFormOpensAndAnItemIsSelectedForItsCode) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  program.Place(0, {40, 60});
  program.Click(Title(1));
  auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  EXPECT_EQ(items->actions().size(), 6);
  EXPECT_EQ(items->actions().at(0)->text(), "&New");
  EXPECT_TRUE(items->actions().at(4)->isSeparator());
  program.Click(*items, items->actionGeometry(items->actions().at(1)).center());
  EXPECT_EQ(program.Form().NameObjet, "Form1mnuOpen");
  EXPECT_EQ(program.Form().ControlSel, nullptr);
  QWidget& code = Code();
  ASSERT_TRUE(code.isVisible());
  EXPECT_EQ(code.windowTitle(), "Form1mnuOpen");
  // The grid has left the object that was selected before.
  EXPECT_EQ(program.Shell().Sheet().SelName(), "Form1");
  auto* events = code.findChild<QComboBox*>(QStringLiteral("Events"));
  EXPECT_EQ(events->count(), 1);
  EXPECT_EQ(events->currentText(), "Sub Form1mnuOpen_OnClick");
  ASSERT_TRUE(TakesKeys(code));
  program.Type(QStringLiteral("Beep"));
  program.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(code.isVisible());
  EXPECT_EQ(*program.Tables().EventTable.Find("Form1.Form1mnuOpen.OnClick"), "Beep");
  // The events bar has a button for the item, which selects it again.
  const auto buttons = program.Shell().Bar().btncodigo(1);
  ASSERT_EQ(buttons.size(), 1U);
  EXPECT_EQ(buttons.front().Tag, "Form1mnuOpen");
  program.Shell().User(1)->SelectForm();
  program.Shell().Bar().btncodigo_Click("Form1mnuOpen");
  EXPECT_EQ(program.Form().NameObjet, "Form1mnuOpen");
  EXPECT_NE(program.Source().find("Form1mnuOpen.OnClick = Form1mnuOpen_OnClick"),
            std::string::npos);
}

TEST_F(FormMenuWindow, TheMenuOfTheFormIsReachedByKeys) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  program.Key(Qt::Key_F10);
  auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  EXPECT_EQ(items->accessibleName(), "File");
  program.Key(Qt::Key_Right);
  items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  EXPECT_EQ(items->accessibleName(), "Edit");
  program.Key(Qt::Key_Down);
  program.Key(Qt::Key_Return);
  EXPECT_EQ(program.Form().NameObjet, "Form1mnuCut");
  ASSERT_TRUE(Code().isVisible());
  ASSERT_TRUE(TakesKeys(Code()));
  program.Key(Qt::Key_Escape);
  EXPECT_FALSE(Code().isVisible());
}

TEST_F(FormMenuWindow, TheMenuOfTheFormHasRolesNamesAndActions) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    menu.Ok();
  });
  QWidget* strip = Title(1).parentWidget();
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(strip);
  ASSERT_NE(bar, nullptr);
  EXPECT_EQ(bar->role(), QAccessible::MenuBar);
  EXPECT_EQ(bar->text(QAccessible::Name), "Menu bar");
  QAccessibleInterface* file = QAccessible::queryAccessibleInterface(&Title(1));
  ASSERT_NE(file, nullptr);
  EXPECT_EQ(file->role(), QAccessible::MenuItem);
  EXPECT_EQ(file->text(QAccessible::Name), "File");
  EXPECT_TRUE(file->state().hasPopup);
  EXPECT_GE(bar->indexOfChild(file), 0);
  ASSERT_NE(file->actionInterface(), nullptr);
  file->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  QAccessibleInterface* menu = QAccessible::queryAccessibleInterface(items);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->role(), QAccessible::PopupMenu);
  EXPECT_EQ(menu->text(QAccessible::Name), "File");
  ASSERT_EQ(menu->childCount(), 6);
  QAccessibleInterface* open = menu->child(1);
  EXPECT_EQ(open->role(), QAccessible::MenuItem);
  EXPECT_EQ(open->text(QAccessible::Name), "Open");
  ASSERT_NE(open->actionInterface(), nullptr);
  open->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(program.Form().NameObjet, "Form1mnuOpen");
  items->close();
  ASSERT_TRUE(TakesKeys(Code()));
  program.Key(Qt::Key_Escape);
}

}  // namespace
}  // namespace tarnwick
