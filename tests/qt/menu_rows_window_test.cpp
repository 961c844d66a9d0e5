// The rows of the menu designer, by real keys and presses.
#include <QMenu>

#include <gtest/gtest.h>

#include "menu_window.h"

namespace tarnwick {
namespace {

class MenuRowsWindow : public MenuDesigners {};

TEST_F(MenuRowsWindow, AMenuIsMadeByKeysAlone) {
  InMenuEdit([](const Designer& menu) {
    EXPECT_EQ(menu.Dialog.windowTitle(), "Menu Edit");
    EXPECT_EQ(QApplication::focusWidget(), &menu.Text(0));
    menu.Add("&File", "mnuFile");
    EXPECT_EQ(QApplication::focusWidget(), &menu.Text(0));
    menu.Key(Qt::Key_Right, Qt::AltModifier);
    menu.Add("&New", "mnuNew");
    menu.Add("&Open", "mnuOpen");
    menu.Add("-", "sep1");
    menu.Key(Qt::Key_Left, Qt::AltModifier);
    menu.Add("&Help", "mnuHelp");
    EXPECT_EQ(menu.Shown(),
              (Rows{"&File    (mnuFile)", "...&New    (mnuNew)", "...&Open    (mnuOpen)",
                    "...-    (sep1)", "&Help    (mnuHelp)", ""}));
    // Up and Down in the text box choose rows, Alt moves them.
    menu.Key(Qt::Key_Up);
    menu.Key(Qt::Key_Up);
    EXPECT_EQ(menu.Text(1).text(), "sep1");
    menu.Key(Qt::Key_Up, Qt::AltModifier);
    menu.Key(Qt::Key_Down, Qt::AltModifier);
    menu.Key(Qt::Key_Up, Qt::AltModifier);
    // Del, Ins and F2 in the list.
    menu.List().setFocus();
    menu.Key(Qt::Key_Delete);
    menu.Key(Qt::Key_Insert);
    menu.Key(Qt::Key_F2);
    EXPECT_EQ(QApplication::focusWidget(), &menu.Text(0));
    menu.Add("&Save", "mnuSave");
    menu.Ok();
  });
  EXPECT_EQ(MenuRows(), (Rows{"&File    (mnuFile)", "...&New    (mnuNew)", "...&Save    (mnuSave)",
                              "...&Open    (mnuOpen)", "&Help    (mnuHelp)"}));
  EXPECT_TRUE(program.Form().MenuBarVisible());
  EXPECT_EQ(program.Form().NameObjet, "Form");
}

TEST_F(MenuRowsWindow, TheButtonsHaveTheirNamesAndTips) {
  InMenuEdit([](const Designer& menu) {
    const std::vector<std::pair<QString, QString>> expected{{"", "Menu"},
                                                            {"", "SubMenu"},
                                                            {"", "Up"},
                                                            {"", "Down"},
                                                            {"Del Item", "Delete the row"},
                                                            {"Del All", "Delete all rows"},
                                                            {"Insert", "Insert an empty row"}};
    for (int i = 0; i < static_cast<int>(expected.size()); ++i) {
      EXPECT_EQ(menu.Button(i).text(), expected[static_cast<std::size_t>(i)].first);
      EXPECT_EQ(menu.Button(i).toolTip(), expected[static_cast<std::size_t>(i)].second);
    }
    EXPECT_EQ(menu.Button(7).text(), "Ok");
    EXPECT_EQ(menu.Button(8).text(), "Cancel");
    EXPECT_EQ(menu.Button(9).text(), "Add");
    EXPECT_EQ(menu.Button(9).toolTip(), "Enter");
    EXPECT_EQ(menu.Button(10).text(), "Example");
    for (QAbstractButton* button : menu.Dialog.findChildren<QAbstractButton*>()) {
      EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
      EXPECT_FALSE(button->text().isEmpty() && button->accessibleName().isEmpty());
    }
    EXPECT_EQ(menu.Dialog.findChild<QPushButton*>(QStringLiteral("btns")), nullptr);
    menu.Cancel();
  });
}

TEST_F(MenuRowsWindow, ADeeperItemStandsUnderItsTitleOnTheFormAsInTheProgram) {
  InMenuEdit([](const Designer& menu) {
    menu.Add("&File", "mnuFile");
    menu.Key(Qt::Key_Right, Qt::AltModifier);
    menu.Add("&Open", "mnuOpen");
    menu.Key(Qt::Key_Right, Qt::AltModifier);
    menu.Add("&Recent", "mnuRecent");
    EXPECT_EQ(menu.Shown().at(2), "......&Recent    (mnuRecent)");
    menu.Ok();
  });
  program.Click(Title(1));
  auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(items, nullptr);
  ASSERT_EQ(items->actions().size(), 2);
  EXPECT_EQ(items->actions().at(1)->text(), "&Recent");
  EXPECT_EQ(items->actions().at(1)->menu(), nullptr);
  items->close();
  const std::string source = program.Source();
  EXPECT_NE(source.find("mnuFile.AddItems mnuRecent\r\nmnuRecent.Caption = \"&Recent\""),
            std::string::npos)
      << source;
}

TEST_F(MenuRowsWindow, ARowIsDraggedToItsPlace) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    const auto middle = [&](int row) {
      return menu.List().visualItemRect(menu.List().item(row)).center();
    };
    QWidget* area = menu.List().viewport();
    QTest::mousePress(area, Qt::LeftButton, Qt::NoModifier, middle(1));
    QTest::mouseMove(area, middle(2));
    QTest::mouseMove(area, middle(3));
    QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, middle(3));
    EXPECT_EQ(menu.List().currentRow(), 3);
    const Rows rows = menu.Shown();
    EXPECT_EQ(rows.at(1), "...&Open    (Form1mnuOpen)");
    EXPECT_EQ(rows.at(3), "...&New    (Form1mnuNew)");
    EXPECT_EQ(menu.Text(1).text(), "Form1mnuNew");
    menu.Cancel();
  });
}

TEST_F(MenuRowsWindow, ABadRowIsMarkedWithItsReasonAndTakenAllTheSame) {
  InMenuEdit([](const Designer& menu) {
    menu.Add("Copy (all)", "mnuCopy");
    menu.Add("End", "End");
    EXPECT_TRUE(menu.List().item(0)->toolTip().contains("brackets"));
    EXPECT_EQ(menu.List().item(1)->toolTip(), "The name End is a word of the language.");
    menu.Key(Qt::Key_Up);
    EXPECT_EQ(menu.Fault(), "The name End is a word of the language.");
    menu.Ok();
  });
  EXPECT_EQ(MenuRows(), (Rows{"Copy (all)    (all)", "End    (End)"}));
}

TEST_F(MenuRowsWindow, ThePreviewFollowsTheRowsAndChoosesThem) {
  InMenuEdit([](const Designer& menu) {
    menu.Press(10);
    EXPECT_FALSE(menu.Preview().PlaceOf(0).isEmpty());
    EXPECT_FALSE(menu.Preview().PlaceOf(6).isEmpty());
    EXPECT_TRUE(menu.Preview().PlaceOf(8).isEmpty());
    QTest::mouseClick(&menu.Preview(), Qt::LeftButton, Qt::NoModifier,
                      menu.Preview().PlaceOf(7).center());
    EXPECT_EQ(menu.List().currentRow(), 7);
    EXPECT_FALSE(menu.Preview().PlaceOf(8).isEmpty());
    EXPECT_TRUE(menu.Preview().PlaceOf(6).isEmpty());
    menu.Cancel();
  });
}

}  // namespace
}  // namespace tarnwick
