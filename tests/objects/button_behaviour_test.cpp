#include <gtest/gtest.h>

#include "fakes/object_program.h"

namespace tarnwick::objects {
namespace {

using test::ObjectProgram;
using test::PrintedBy;

TEST(Buttons, OneRadioButtonOfAParentIsOn) {
  EXPECT_EQ(PrintedBy("DIM F AS QFORM, P AS QPANEL\nDIM R(3) AS QRADIOBUTTON\n"
                      "R(1).Parent = F : R(2).Parent = F : R(3).Parent = P\n"
                      "R(1).Checked = 1 : R(3).Checked = 1 : R(2).Checked = 1\n"
                      "PRINT R(1).Checked; R(2).Checked; R(3).Checked"),
            "011\n");
}

TEST(Buttons, CheckedFromCodeRaisesOnClickOnceWhenItChanges) {
  EXPECT_EQ(PrintedBy("DIM C AS QCHECKBOX\nSUB Click\nPRINT \"click\"; C.Checked\nEND SUB\n"
                      "C.OnClick = Click\nC.Checked = 1\nC.Checked = 5\nC.Checked = 0"),
            "click1\nclick0\n");
}

TEST(Buttons, ARadioButtonThatGoesOffRaisesNothing) {
  EXPECT_EQ(
      PrintedBy("DIM F AS QFORM\nDIM R(2) AS QRADIOBUTTON\nSUB Click (S AS QRADIOBUTTON)\n"
                "PRINT S.Tag;\nEND SUB\nDIM i AS INTEGER\nFOR i = 1 TO 2\nR(i).Parent = F\n"
                "R(i).Tag = i\nR(i).OnClick = Click\nNEXT\nR(1).Checked = 1\nR(2).Checked = 1"),
      "12");
}

TEST(Buttons, AClickOfTheUserTogglesABox) {
  ObjectProgram program(
      "DIM F AS QFORM, C AS QCHECKBOX\nC.Parent = F\nSUB Click\n"
      "PRINT C.Checked;\nEND SUB\nC.OnClick = Click\nF.ShowModal");
  program.ThenClick("C");
  program.ThenClick("C");
  EXPECT_EQ(program.Run(), "10");
}

TEST(Buttons, AKindBringsCaptionResultAndKey) {
  EXPECT_EQ(PrintedBy("DIM B AS QBUTTON\nB.Kind = 2\nPRINT B.Caption; B.ModalResult; B.Cancel"),
            "Cancel21\n");
}

TEST(Buttons, PositionsStayWithinTheirBounds) {
  EXPECT_EQ(PrintedBy("DIM T AS QTRACKBAR\nSUB Moved\nPRINT \"m\";\nEND SUB\nT.OnChange = Moved\n"
                      "T.Position = 99\nPRINT T.Position;\nT.Position = -5\nPRINT T.Position"),
            "m10m0\n");
}

TEST(Labels, AutoSizeFitsTheCaptionOnceTheLabelIsShown) {
  EXPECT_EQ(PrintedBy("DIM F AS QFORM, L AS QLABEL\nL.Parent = F\nL.Caption = \"four\"\n"
                      "PRINT L.Width;\nF.Show\nPRINT L.Width; L.Height;\nL.Caption = \"four and\"\n"
                      "PRINT L.Width;\nL.AutoSize = 0\nL.Caption = \"x\"\nPRINT L.Width"),
            "652413"
            "4848\n");
}

TEST(Menus, RowsAreAddedInsertedMovedAndTakenOut) {
  EXPECT_EQ(PrintedBy("DIM M AS QMAINMENU\nDIM I(3) AS QMENUITEM\nM.AddItems I(1), I(2)\n"
                      "M.InsertItem(0, I(3))\nPRINT I(3).MenuIndex; I(2).MenuIndex;\n"
                      "I(3).AddItems I(2)\nPRINT M.ItemCount; I(3).ItemCount;\nM.DelItems 0\n"
                      "PRINT M.ItemCount; I(1).MenuIndex"),
            "022110\n");
}

TEST(Menus, AnItemCannotBeARowOfItself) {
  EXPECT_EQ(PrintedBy("DIM A AS QMENUITEM, B AS QMENUITEM\nA.AddItems B\nB.AddItems A"),
            "error: A cannot be a row of itself");
}

TEST(Menus, OneMenuHangsOnSeveralForms) {
  ObjectProgram program(
      "DIM A AS QFORM, B AS QFORM, M AS QMAINMENU\nM.Parent = A\nM.Parent = B\n"
      "A.Show\nB.Show");
  program.Run();
  const ObjectRecord& menu = *program.Object("M");
  EXPECT_EQ(menu.As<MenuRows>()->Forms, (std::vector<ObjectId>{program.Id("A"), program.Id("B")}));
  EXPECT_EQ(program.Object("A")->As<FormState>()->Menu, menu.Id);
  EXPECT_EQ(program.Widgets.Log,
            "realise A\nmenu M\napply A.Visible = 1\nrealise B\nmenu M\napply B.Visible = 1\n");
}

TEST(Menus, OfTheRadioItemsOfAGroupOneIsChecked) {
  EXPECT_EQ(
      PrintedBy("DIM M AS QPOPUPMENU\nDIM I(3) AS QMENUITEM\nM.AddItems I(1), I(2), I(3)\n"
                "I(1).RadioItem = 1 : I(2).RadioItem = 1\nI(1).Checked = 1\nI(3).Checked = 1\n"
                "I(2).Checked = 1\nPRINT I(1).Checked; I(2).Checked; I(3).Checked"),
      "011\n");
}

TEST(Menus, APopupAsksBeforeItIsShown) {
  ObjectProgram program(
      "DIM M AS QPOPUPMENU\nSUB Ask\nPRINT \"asked\"\nEND SUB\nM.OnPopup = Ask\n"
      "M.Popup(10, 20)");
  EXPECT_EQ(program.Run(), "asked\n");
  EXPECT_EQ(program.Widgets.Log, "invoke M.Popup 10 20\n");
}

TEST(Menus, AClickOnAnItemRunsItsHandler) {
  ObjectProgram program(
      "DIM F AS QFORM, M AS QMAINMENU, I AS QMENUITEM\nM.Parent = F\n"
      "M.AddItems I\nSUB Go\nPRINT \"go\"\nEND SUB\nI.OnClick = Go\nF.ShowModal");
  program.ThenClick("I");
  EXPECT_EQ(program.Run(), "go\n");
}

TEST(Menus, AFreedItemLeavesItsMenu) {
  EXPECT_EQ(PrintedBy("DIM M AS QMAINMENU, I AS QMENUITEM, K AS QMENUITEM\nM.AddItems I\n"
                      "I.AddItems K\nI.Free\nPRINT M.ItemCount; K.MenuIndex"),
            "0-1\n");
}

TEST(Menus, CreatePutsItemsIntoTheMenuAround) {
  EXPECT_EQ(
      PrintedBy("CREATE F AS QFORM\nCaption = \"A\"\nCREATE M AS QMAINMENU\n"
                "CREATE I AS QMENUITEM\nCaption = \"File\"\nCREATE K AS QMENUITEM\n"
                "Caption = \"Open\"\nEND CREATE\nEND CREATE\nEND CREATE\nCREATE B AS QBUTTON\n"
                "Caption = \"Go\"\nEND CREATE\nEND CREATE\n"
                "PRINT F.Caption; M.ItemCount; I.ItemCount; K.Caption; F.ControlCount"),
      "A11Open1\n");
}

}  // namespace
}  // namespace tarnwick::objects
