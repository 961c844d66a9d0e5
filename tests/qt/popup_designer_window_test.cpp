// The designer of popup menus, and both designers from an empty form to the program and the files.
#include <QMenu>

#include <gtest/gtest.h>

#include "menu_window.h"
#include "persistence/form_writer.h"

namespace tarnwick {
namespace {

class PopUpDesignerWindow : public MenuDesigners {};

TEST_F(PopUpDesignerWindow, ThePopUpDesignerStoresItsRows) {
  program.Place(19, {20, 20});
  InPopUpEdit([](const Designer& menu) {
    EXPECT_EQ(menu.Dialog.windowTitle(), "PopUpMenu Edit");
    auto* code = menu.Dialog.findChild<QPushButton*>(QStringLiteral("btns"));
    ASSERT_NE(code, nullptr);
    EXPECT_EQ(code->text(), "Subroutines");
    EXPECT_FALSE(code->isEnabled());
    menu.Press(10);
    EXPECT_TRUE(code->isEnabled());
    menu.Ok();
  });
  const PopUpFormRec& popup = *program.Tables().PopUpMenus.At(1);
  ASSERT_EQ(popup.Items.size(), 8U);
  EXPECT_EQ(popup.Items[7].Level, 2);
  EXPECT_EQ(program.Form().NameObjet, "PopupMenu1");
}

TEST_F(PopUpDesignerWindow, SubroutinesOpensTheEditorAboveTheDesignerWhichComesBack) {
  program.Place(19, {20, 20});
  InPopUpEdit([this](const Designer& menu) {
    menu.Press(10);
    menu.Text(0).setFocus();
    menu.Key(Qt::Key_Down);
    auto* subroutines = menu.Dialog.findChild<QPushButton*>(QStringLiteral("btns"));
    QTest::mouseClick(subroutines, Qt::LeftButton);
    QWidget& code = Code();
    ASSERT_TRUE(code.isVisible());
    EXPECT_EQ(code.windowTitle(), "Form1ppmCut");
    ASSERT_TRUE(TakesKeys(code));
    // The designer waits.
    EXPECT_FALSE(menu.Button(7).isEnabled());
    menu.Dialog.reject();
    EXPECT_TRUE(menu.Dialog.isVisible());
    program.Type(QStringLiteral("Beep"));
    program.Key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(code.isVisible());
    EXPECT_TRUE(menu.Dialog.isVisible());
    EXPECT_TRUE(menu.Button(7).isEnabled());
    EXPECT_EQ(code.parentWidget(), &program.Window());
    const std::string* stored = program.Tables().EventTable.Find("Form1.Form1ppmCut.OnClick");
    ASSERT_NE(stored, nullptr);
    EXPECT_EQ(*stored, "Beep");
    // An item without code opens an empty page; emptied code leaves no entry.
    menu.Dialog.activateWindow();
    ASSERT_TRUE(TakesKeys(menu.Dialog));
    QTest::mouseClick(subroutines, Qt::LeftButton);
    ASSERT_TRUE(TakesKeys(code));
    program.Key(Qt::Key_A, Qt::ControlModifier);
    program.Key(Qt::Key_Delete);
    program.Key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(program.Tables().EventTable.Find("Form1.Form1ppmCut.OnClick"), nullptr);
    menu.Dialog.activateWindow();
    ASSERT_TRUE(TakesKeys(menu.Dialog));
    menu.Ok();
  });
  EXPECT_EQ(program.Tables().PopUpMenus.At(1)->Items.size(), 8U);
  EXPECT_EQ(program.Tables().JumpKey, "");
}

TEST_F(PopUpDesignerWindow, TwoFormsWithMenusPopUpsAndCodeGoToSourceAndComeBackFromDisk) {
  const auto make = [this](const char* prefix) {
    const std::string p(prefix);
    program.Place(19, {20, 20});
    InPopUpEdit([&](const Designer& menu) {
      menu.Add("&Cut", (p + "ppCut").c_str());
      menu.Add("&More", (p + "ppMore").c_str());
      menu.Key(Qt::Key_Right, Qt::AltModifier);
      menu.Add("&Deep", (p + "ppDeep").c_str());
      // The code of a sub-item by "Subroutines", which names it in the second text box.
      menu.Key(Qt::Key_Up);
      QTest::mouseClick(menu.Dialog.findChild<QPushButton*>(QStringLiteral("btns")),
                        Qt::LeftButton);
      TypeCode("Rem " + p + "ppDeep");
      menu.Dialog.activateWindow();
      ASSERT_TRUE(TakesKeys(menu.Dialog));
      menu.Ok();
    });
    InMenuEdit([&](const Designer& menu) {
      menu.Add("&File", (p + "File").c_str());
      menu.Key(Qt::Key_Right, Qt::AltModifier);
      menu.Add("&Open, now", (p + "Open").c_str());
      menu.Key(Qt::Key_Right, Qt::AltModifier);
      menu.Add("&Recent", (p + "Recent").c_str());
      menu.Ok();
    });
    // The code of the bar's items by presses on the form's own menu.
    for (const int item : {0, 1}) {
      program.Click(Title(1));
      auto* items = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(items, nullptr);
      program.Click(*items, items->actionGeometry(items->actions().at(item)).center());
      TypeCode("Rem " + p + (item == 0 ? "Open" : "Recent"));
    }
    program.Click(program.Surface(), {30, 30});
  };
  make("A");
  program.PressTool(9);
  program.Place(0, {40, 90});
  make("B");
  const std::string source = program.Source();
  for (const char* line : {"AFile.AddItems AOpen", "AOpen.Caption = \"&Open, now\"",
                           "AFile.AddItems ARecent", "ARecent.Caption = \"&Recent\"", "Rem BppDeep",
                           "Rem BRecent", "BFile.AddItems BOpen", "BppMore.AddItems BppDeep"}) {
    const bool second =
        std::string_view(line).starts_with("B") || std::string_view(line).starts_with("Rem B");
    // The arrays are those of the menu edited last, so the first form's menu is not in them.
    EXPECT_EQ(source.find(line) != std::string::npos, second) << line << "\n" << source;
  }
  const std::string first = FormFileText(program.Tables(), 1);
  const std::string second = FormFileText(program.Tables(), 2);
  program.Dialogs.SaveAnswers = {program.Projects.Path("p.tnp"), program.Projects.Path("a.ftn"),
                                 program.Projects.Path("b.ftn")};
  program.Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(program.Projects.Read("a.ftn"), first);
  EXPECT_EQ(program.Projects.Read("b.ftn"), second);
  program.Dialogs.OpenAnswers = {program.Projects.Path("p.tnp")};
  program.Key(Qt::Key_O, Qt::ControlModifier);
  ASSERT_EQ(program.Tables().FormsCount, 2);
  EXPECT_EQ(FormFileText(program.Tables(), 1), first);
  EXPECT_EQ(FormFileText(program.Tables(), 2), second);
  EXPECT_EQ(menus::RowsOfFormMenu(*program.Tables().User(1)),
            (Rows{"&File    (AFile)", "...&Open, now    (AOpen)", "......&Recent    (ARecent)"}));
  EXPECT_EQ(menus::RowsOfFormMenu(*program.Tables().User(2)),
            (Rows{"&File    (BFile)", "...&Open, now    (BOpen)", "......&Recent    (BRecent)"}));
  EXPECT_EQ(*program.Tables().EventTable.Find("Form1.ARecent.OnClick"), "Rem ARecent");
  EXPECT_EQ(*program.Tables().EventTable.Find("Form2.BppDeep.OnClick"), "Rem BppDeep");
  EXPECT_EQ(program.Source(), source);
  // What the designer shows is what was made.
  InMenuEdit([](const Designer& menu) {
    EXPECT_EQ(menu.Shown(), (Rows{"&File    (AFile)", "...&Open, now    (AOpen)",
                                  "......&Recent    (ARecent)", "", ""}));
    menu.Cancel();
  });
}

}  // namespace
}  // namespace tarnwick
