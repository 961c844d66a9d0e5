#include "codegen/event_code.h"

#include <gtest/gtest.h>

#include "fakes/generated.h"

namespace tarnwick::test {
namespace {

Lines Declares(ProjectBuilder& project) {
  return Starting(Generate(project), "Declare Sub ");
}
Lines Subs(ProjectBuilder& project) {
  return Starting(Generate(project), "Sub ");
}

TEST(EventCode, FormEventsAreDeclaredBareAndHaveTheirParametersInTheBody) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  for (const Event event : kFormSubEvents) form.Code(event, "x");
  EXPECT_EQ(Declares(project),
            (Lines{"Declare Sub Form1_OnClick", "Declare Sub Form1_OnClose",
                   "Declare Sub Form1_OnHint", "Declare Sub Form1_OnKeyDown",
                   "Declare Sub Form1_OnKeyPress", "Declare Sub Form1_OnKeyUp",
                   "Declare Sub Form1_OnMouseDown", "Declare Sub Form1_OnMouseMove",
                   "Declare Sub Form1_OnMouseUp", "Declare Sub Form1_OnPaint",
                   "Declare Sub Form1_OnResize", "Declare Sub Form1_OnShow"}));
  EXPECT_EQ(Subs(project),
            (Lines{"Sub Form1_OnClick", "Sub Form1_OnClose (Action As Integer)",
                   "Sub Form1_OnHint (Hint As String)",
                   "Sub Form1_OnKeyDown (Key As Word, Shift As Integer)",
                   "Sub Form1_OnKeyPress (Key As Byte)",
                   "Sub Form1_OnKeyUp (Key As Word, Shift As Integer)",
                   "Sub Form1_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As "
                   "Integer)",
                   "Sub Form1_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)",
                   "Sub Form1_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As "
                   "Integer)",
                   "Sub Form1_OnPaint", "Sub Form1_OnResize", "Sub Form1_OnShow"}));
}

TEST(EventCode, FormsTimerChangeEnterAndDblClickCodeIsNeitherDeclaredNorWritten) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  for (const Event event : {Event::OnTimer, Event::OnChange, Event::OnEnter, Event::OnDblClick}) {
    form.Code(event, "x");
  }
  EXPECT_EQ(Declares(project), Lines{});
  EXPECT_EQ(Subs(project), Lines{});
}

TEST(EventCode, ObjectsCloseHintPaintResizeAndShowCodeIsNeitherDeclaredNorWritten) {
  ProjectBuilder project;
  BuiltObject button = project.AddForm().Add(Kind::Button, "B1");
  for (const Event event :
       {Event::OnClose, Event::OnHint, Event::OnPaint, Event::OnResize, Event::OnShow}) {
    button.Code(event, "x");
  }
  EXPECT_EQ(Declares(project), Lines{});
  EXPECT_EQ(Subs(project), Lines{});
}

TEST(EventCode, ObjectEventsComeInTheirOwnOrderWithTheirParameters) {
  ProjectBuilder project;
  BuiltObject button = project.AddForm().Add(Kind::Button, "B1");
  for (const Event event : kObjectEvents) button.Code(event, "x");
  const Lines expected{
      "Sub B1_OnTimer",
      "Sub B1_OnClick",
      "Sub B1_OnChange",
      "Sub B1_OnEnter",
      "Sub B1_OnDblClick",
      "Sub B1_OnKeyDown (Key As Word, Shift As Integer)",
      "Sub B1_OnKeyPress (Key As Byte)",
      "Sub B1_OnKeyUp (Key As Word, Shift As Integer)",
      "Sub B1_OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)",
      "Sub B1_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)",
      "Sub B1_OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)"};
  EXPECT_EQ(Subs(project), expected);
  Lines declared;
  for (const std::string& line : expected) declared.push_back("Declare " + line);
  EXPECT_EQ(Declares(project), declared);
}

TEST(EventCode, CodeIsCopiedByteForByte) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::Button, "B1").Code(Event::OnClick, "  a = \"x, y\"\r\n\r\n\tb\xE9 ");
  const Lines lines = Generate(project);
  EXPECT_EQ(Between(lines, "Sub B1_OnClick", "End Sub"),
            (Lines{"Sub B1_OnClick", "  a = \"x, y\"", "", "\tb\xE9 ", "End Sub"}));
}

TEST(EventCode, BlankCodeHasASubAndNoHook) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::Button, "B1").Code(Event::OnClick, "  ");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Declare Sub B1_OnClick"));
  EXPECT_TRUE(Has(lines, "Sub B1_OnClick"));
  EXPECT_FALSE(Has(lines, "B1.OnClick = B1_OnClick"));
}

TEST(EventCode, FormBodyIsFollowedByOneBlankLineObjectBodyByTwo) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Code(Event::OnShow, "s");
  form.Add(Kind::Button, "B1").Code(Event::OnClick, "c");
  const Lines lines = Generate(project);
  EXPECT_EQ(Between(lines, "Sub Form1_OnShow", "Form1.Top = 0"),
            (Lines{"Sub Form1_OnShow", "s", "End Sub", "", "Sub B1_OnClick", "c", "End Sub", "", "",
                   "", "Form1.Top = 0"}));
}

TEST(EventCode, NameInArrayFormTakesTheRunningNumber) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "Cmd(1)");
  form.Add(Kind::Label, "L1");
  form.Add(Kind::Button, "Ok");
  form.Add(Kind::Button, "Cmd(9)").Code(Event::OnClick, "x");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Declare Sub Cmd3_OnClick"));
  EXPECT_TRUE(Has(lines, "Sub Cmd3_OnClick"));
  EXPECT_TRUE(Has(lines, "Cmd(9).OnClick = Cmd3_OnClick"));
}

TEST(EventCode, OnTheSecondFormDeclaresGoOnCountingWhileBodiesBeginAtOne) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm();
  form1.Add(Kind::Button, "A1").Code(Event::OnClick, "a1");
  const BuiltForm form2 = project.AddForm();
  form2.Add(Kind::Button, "B1").Code(Event::OnClick, "b1");
  form2.Add(Kind::Button, "B2").Code(Event::OnClick, "b2");
  // B1 is looked up as button 2, whose code is that of B2; B2 as button 3, which has none.
  EXPECT_EQ(Declares(project), (Lines{"Declare Sub A1_OnClick", "Declare Sub B1_OnClick"}));
  EXPECT_EQ(Subs(project), (Lines{"Sub A1_OnClick", "Sub B1_OnClick", "Sub B2_OnClick"}));
  EXPECT_TRUE(Has(Generate(project), "b1"));
}

TEST(EventCode, KindWithoutACounterIsLookedUpUnderTheNumberOfTheObjectBefore) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "B1");
  form.Add(Kind::Button, "B2");
  form.Add(Kind::OpenDialog, "Dlg");
  project.Tables.EventTable.Add("Form1.OpenDialog2.OnClick", "by chance");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Declare Sub Dlg_OnClick"));
  EXPECT_TRUE(Has(lines, "Sub Dlg_OnClick"));
}

TEST(EventCode, StaleNumberComesFromTheCompilationBefore) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::OpenDialog, "Dlg");
  form.Add(Kind::Label, "L1");
  form.Add(Kind::Label, "L2");
  project.Tables.EventTable.Add("Form1.OpenDialog2.OnClick", "x");
  GeneratorState state;
  EXPECT_FALSE(Has(LinesOf(GenerateSource(project.Tables, state)), "Declare Sub Dlg_OnClick"));
  EXPECT_TRUE(Has(LinesOf(GenerateSource(project.Tables, state)), "Declare Sub Dlg_OnClick"));
}

TEST(EventCode, VisibleMenuTitleIsWalkedUnderAStaleNumber) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "B1");
  project.Title("mnuFile", "File");
  form.ShowMenuBar();
  project.Tables.EventTable.Add("Form1.mnuBar1.OnClick", "x");
  EXPECT_TRUE(Has(Generate(project), "Sub mnuFile_OnClick"));
}

TEST(EventCode, HiddenObjectIsLeftOutAndCountsNothing) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  BuiltObject hidden = form.Add(Kind::Button, "Hidden").Code(Event::OnClick, "first");
  hidden.Control.Visible = false;
  form.Add(Kind::Button, "Shown").Code(Event::OnClick, "second");
  const Lines lines = Generate(project);
  EXPECT_EQ(Subs(project), Lines{"Sub Shown_OnClick"});
  EXPECT_TRUE(Has(lines, "first"));
  EXPECT_FALSE(Has(lines, "second"));
}

TEST(EventCode, CounterAtTheEndOfItsRangeStays) {
  std::int16_t ordinal = 32766;
  StepOrdinal(ordinal);
  EXPECT_EQ(ordinal, 32767);
  StepOrdinal(ordinal);
  EXPECT_EQ(ordinal, 32767);
}

TEST(EventCode, PopUpItemZeroHasABodyAndNoDeclaration) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::PopUpMenu, "pm1");
  project.PopUpItem(1, "itA", "A");
  project.Tables.PopUpMenus.At(1)->Items[0].Name = "itZero";
  form.ItemCode("itZero", "zero").ItemCode("itA", "a");
  const Lines lines = Generate(project);
  EXPECT_EQ(Declares(project), Lines{"Declare Sub itA_OnClick"});
  EXPECT_EQ(Subs(project), (Lines{"Sub itZero_OnClick", "Sub itA_OnClick"}));
  EXPECT_TRUE(Has(lines, "Dim itZero As QMenuItem"));
  EXPECT_FALSE(Has(lines, "pm1.AddItems itZero"));
}

TEST(EventCode, PopUpItselfItsItemsAndSubItemsHaveBodiesWithoutBlankLines) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::PopUpMenu, "pm1").Code(Event::OnPopUp, "up");
  project.PopUpItem(1, "itA", "A").PopUpEntry(1, "itA1", "A1");
  form.ItemCode("itA", "a").ItemCode("itA1", "a1");
  EXPECT_EQ(Declares(project), (Lines{"Declare Sub pm1_OnPopUp", "Declare Sub itA_OnClick",
                                      "Declare Sub itA1_OnClick"}));
  EXPECT_EQ(Between(Generate(project), "Sub pm1_OnPopUp", "Form1.Top = 0"),
            (Lines{"Sub pm1_OnPopUp", "up", "End Sub", "Sub itA_OnClick", "a", "End Sub",
                   "Sub itA1_OnClick", "a1", "End Sub", "Form1.Top = 0"}));
}

TEST(EventCode, PopUpCodeIsTakenFromItsNameBeforeItsArrayName) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::PopUpMenu, "pm1").Code(Event::OnPopUp, "by array");
  EXPECT_TRUE(Has(Generate(project), "by array"));
  project.Tables.EventTable.Add("Form1.pm1.OnPopUp", "by name");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "by name"));
  EXPECT_FALSE(Has(lines, "by array"));
  EXPECT_EQ(CountOf(lines, "Sub pm1_OnPopUp"), 1);
}

TEST(EventCode, SubItemsHaveCodeWithoutTheirItemHavingAny) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::PopUpMenu, "pm1");
  project.PopUpItem(1, "itA", "A").PopUpEntry(1, "itA1", "A1");
  form.ItemCode("itA1", "a1");
  EXPECT_EQ(Declares(project), Lines{"Declare Sub itA1_OnClick"});
}

TEST(EventCode, RemovedPopUpHasNoItemCode) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::PopUpMenu, "pm1").Code(Event::OnPopUp, "up");
  project.PopUpItem(1, "itA", "A");
  form.ItemCode("itA", "a");
  project.Tables.PopUpMenus.At(1)->Removed = 1;
  EXPECT_EQ(Declares(project), Lines{"Declare Sub pm1_OnPopUp"});
  EXPECT_EQ(Subs(project), Lines{"Sub pm1_OnPopUp"});
}

TEST(EventCode, MenuItemInArrayFormTakesItsPlaceInTheProjectsItems) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "B1");
  project.Title("mnuFile", "File").Item("mnuA", "A").Item("It(5)", "B");
  form.ShowMenuBar().ItemCode("It(5)", "x");
  const Lines lines = Generate(project);
  EXPECT_EQ(Declares(project), Lines{"Declare Sub It2_OnClick"});
  EXPECT_EQ(Subs(project), Lines{"Sub It2_OnClick"});
  EXPECT_TRUE(Has(lines, "It(5).OnClick = It2_OnClick"));
}

TEST(EventCode, MenuItemsOfAFormWithoutAMenuBarHaveNoCode) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnuFile", "File").Item("mnuA", "A");
  form.ItemCode("mnuA", "x");
  EXPECT_EQ(Declares(project), Lines{});
  EXPECT_EQ(Subs(project), Lines{});
}

TEST(EventCode, NamelessMenuItemHasNoSub) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnuFile", "File").Item("", "A");
  form.ShowMenuBar().ItemCode("", "x");
  EXPECT_EQ(Subs(project), Lines{});
}

TEST(EventCode, PublicDeclarationsStandAsTheyAre) {
  ProjectBuilder project;
  project.AddForm().Record().DeclarePbl = "Dim a As Integer\r\nDim b$";
  const Lines lines = Generate(project);
  EXPECT_EQ(Between(lines, "'---Public Declarations", "Form1.Top = 0"),
            (Lines{"'---Public Declarations", "Dim a As Integer", "Dim b$", "", "", "",
                   "Form1.Top = 0"}));
}

TEST(EventCode, KeysCompareWithoutRegardToCase) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::Image, "Pic");
  project.Tables.EventTable.Add("FORM1.IMAGES1.ONDBLCLICK", "x");
  EXPECT_EQ(Subs(project), Lines{"Sub Pic_OnDblClick"});
}

}  // namespace
}  // namespace tarnwick::test
