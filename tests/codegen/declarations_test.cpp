#include "codegen/declarations.h"

#include <gtest/gtest.h>

#include "fakes/generated.h"

namespace tarnwick::test {
namespace {

/// The Dim lines of the program behind that of the shared font.
Lines Dims(ProjectBuilder& project) {
  Lines dims = Starting(Generate(project), "Dim ");
  dims.erase(dims.begin());
  return dims;
}

TEST(Declarations, FormWithoutObjectsGivesItsLineABlankLineAndItsResources) {
  ProjectBuilder project;
  project.AddForm();
  const Lines lines = Generate(project);
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 4),
            (Lines{"Dim Font As QFont", "Dim Form1 As QForm", "",
                   "$Resource Default_Icon As \"C:\\Tarnwick\\IconApp.ico\""}));
}

TEST(Declarations, KindsComeInTheirOwnOrderWithTheirClasses) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  // The order in which the objects were placed does not count.
  for (const Kind kind :
       {Kind::HtmlViewer, Kind::TransparentFrame, Kind::FileStream, Kind::SaveDialog,
        Kind::OpenDialog, Kind::Time, Kind::TextBox, Kind::RichTextBox, Kind::OptionButton,
        Kind::ListBox, Kind::Label, Kind::Image, Kind::ComboBox, Kind::CheckBox, Kind::Button,
        Kind::WinSock, Kind::PopUpMenu}) {
    form.Add(kind, "the" + std::string(InfoOf(kind).Name));
  }
  project.Title("mnuFile", "File").Item("mnuExit", "Exit");
  form.ShowMenuBar();
  EXPECT_EQ(Dims(project), (Lines{"Dim Form1 As QForm",
                                  "Dim thePopUpMenu As QPopupmenu",
                                  "Dim theWinSock As QSocket",
                                  "Dim theButton As QButton",
                                  "Dim theCheckBox As QCheckBox",
                                  "Dim theComboBox As Qcombobox",
                                  "Dim theImage As QImage",
                                  "Dim theLabel As Qlabel",
                                  "Dim theListBox As Qlistbox",
                                  "Dim theOptionButton As QRadiobutton",
                                  "Dim theRichTextBox As Qrichedit",
                                  "Dim theTextBox As Qedit",
                                  "Dim MenuBar As QMainMenu",
                                  "Dim mnuFile As QMenuItem",
                                  "Dim mnuExit As QMenuItem",
                                  "Dim theTime As Qtimer",
                                  "Dim theOpenDialog As Qopendialog",
                                  "Dim theSaveDialog As Qsavedialog",
                                  "Dim theFileStream As QFileStream",
                                  "Dim theTransparentFrame As QGlassFrame",
                                  "Dim theHtmlViewer As QOleContainer"}));
}

TEST(Declarations, FamilyIsDeclaredOnceWithTheHighestIndexOfTheKind) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "Button1(1)");
  form.Add(Kind::Button, "Button1(2)");
  form.Add(Kind::Button, "Ok");
  EXPECT_EQ(Dims(project),
            (Lines{"Dim Form1 As QForm", "Dim Button1(3) As QButton", "Dim Ok As QButton"}));
}

TEST(Declarations, FamilyOfOneObjectStillHasTheSizeOfTheKind) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "Ok");
  form.Add(Kind::Button, "Cmd(7)");
  form.Add(Kind::Button, "Cancel");
  EXPECT_EQ(Dims(project), (Lines{"Dim Form1 As QForm", "Dim Ok As QButton",
                                  "Dim Cmd(3) As QButton", "Dim Cancel As QButton"}));
}

TEST(Declarations, OnlyTheFirstOfTwoFamiliesOfAKindIsDeclared) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Label, "A(1)");
  form.Add(Kind::Label, "B(1)");
  EXPECT_EQ(Dims(project), (Lines{"Dim Form1 As QForm", "Dim A(2) As Qlabel"}));
}

TEST(Declarations, EachKindCountsItsFamiliesAnew) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "A(1)");
  form.Add(Kind::CheckBox, "B(1)");
  EXPECT_EQ(Dims(project),
            (Lines{"Dim Form1 As QForm", "Dim A(1) As QButton", "Dim B(1) As QCheckBox"}));
}

TEST(Declarations, WinSockFamilyKeepsItsWholeName) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::WinSock, "Sock(1)");
  form.Add(Kind::WinSock, "Sock(2)");
  EXPECT_EQ(Dims(project), (Lines{"Dim Form1 As QForm", "Dim Sock(1)(2) As QSocket"}));
}

TEST(Declarations, ImagesAndFileStreamsAreDeclaredEachWithItsParenthesis) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Image, "Pic(1)");
  form.Add(Kind::Image, "Pic(2)");
  form.Add(Kind::FileStream, "Str(1)");
  form.Add(Kind::FileStream, "Str(2)");
  EXPECT_EQ(Dims(project),
            (Lines{"Dim Form1 As QForm", "Dim Pic(1) As QImage", "Dim Pic(2) As QImage",
                   "Dim Str(1) As QFileStream", "Dim Str(2) As QFileStream"}));
}

TEST(Declarations, ComboAndListBoxesNeedOneOnTheFormInFocus) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm();
  const BuiltForm form2 = project.AddForm();
  form2.Add(Kind::ComboBox, "Combo1");
  form2.Add(Kind::ListBox, "List1");
  const Lines lines = Generate(project);
  EXPECT_FALSE(Has(lines, "Dim Combo1 As Qcombobox"));
  EXPECT_FALSE(Has(lines, "Dim List1 As Qlistbox"));
  // Their property lines stand all the same.
  EXPECT_TRUE(Has(lines, "Combo1.Parent = Form2"));
  EXPECT_TRUE(Has(lines, "List1.Parent = Form2"));

  form1.Add(Kind::ComboBox, "Combo0");
  const Lines with_combo = Generate(project);
  EXPECT_TRUE(Has(with_combo, "Dim Combo1 As Qcombobox"));
  EXPECT_FALSE(Has(with_combo, "Dim List1 As Qlistbox"));

  project.Tables.CurrentForm = &form2.User();
  EXPECT_TRUE(Has(Generate(project), "Dim List1 As Qlistbox"));
}

TEST(Declarations, NoFormInFocusDeclaresNoComboBox) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::ComboBox, "Combo1");
  project.Tables.CurrentForm = nullptr;
  EXPECT_FALSE(Has(Generate(project), "Dim Combo1 As Qcombobox"));
}

TEST(Declarations, OnlyTheFirstTransparentFrameIsDeclared) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::TransparentFrame, "Glass1");
  form.Add(Kind::TransparentFrame, "Glass2");
  EXPECT_EQ(Dims(project), (Lines{"Dim Form1 As QForm", "Dim Glass1 As QGlassFrame"}));
}

TEST(Declarations, PopUpIsFollowedByItsItemsAndSubItems) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::PopUpMenu, "pm1");
  form.Add(Kind::PopUpMenu, "pm2");
  project.PopUpItem(1, "itA", "A").PopUpEntry(1, "itA1", "A1").PopUpEntry(1, "", "nameless");
  project.PopUpItem(1, "itB", "B");
  project.PopUpItem(2, "itC", "C");
  EXPECT_EQ(Dims(project),
            (Lines{"Dim Form1 As QForm", "Dim pm1 As QPopupmenu", "Dim itA As QMenuItem",
                   "Dim itA1 As QMenuItem", "Dim  As QMenuItem", "Dim itB As QMenuItem",
                   "Dim pm2 As QPopupmenu", "Dim itC As QMenuItem"}));
}

TEST(Declarations, SubItemsOfANamelessPopUpItemAreNotDeclared) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::PopUpMenu, "pm1");
  project.PopUpItem(1, "", "A").PopUpEntry(1, "itA1", "A1");
  EXPECT_EQ(Dims(project), (Lines{"Dim Form1 As QForm", "Dim pm1 As QPopupmenu"}));
}

TEST(Declarations, PopUpNumberOneOfEveryFormSharesItsItems) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::PopUpMenu, "pm1");
  project.AddForm().Add(Kind::PopUpMenu, "pm2");
  project.PopUpItem(1, "itA", "A");
  EXPECT_EQ(CountOf(Dims(project), "Dim itA As QMenuItem"), 2);
}

TEST(Declarations, MenuBarIsRepeatedForEveryFormThatShowsOne) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm();
  const BuiltForm form2 = project.AddForm();
  project.AddForm();
  project.Title("mnuFile", "File").Item("mnuExit", "Exit");
  form1.ShowMenuBar();
  form2.ShowMenuBar();
  const Lines dims = Dims(project);
  EXPECT_EQ(CountOf(dims, "Dim MenuBar As QMainMenu"), 2);
  EXPECT_EQ(CountOf(dims, "Dim mnuExit As QMenuItem"), 2);
}

TEST(Declarations, MenuFamiliesCountTitlesAndItemsApart) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("T(1)", "One").Item("I(1)", "a").Item("I(2)", "b").Item("", "none");
  project.Title("T(2)", "Two").Item("mnuC", "c");
  form.ShowMenuBar();
  EXPECT_EQ(Dims(project),
            (Lines{"Dim Form1 As QForm", "Dim MenuBar As QMainMenu", "Dim T(2) As QMenuItem",
                   "Dim I(4) As QMenuItem", "Dim mnuC As QMenuItem"}));
}

TEST(Declarations, FormLineGoesByTheNumberInTheWindow) {
  ProjectBuilder project;
  project.AddForm("Main");
  const BuiltForm form2 = project.AddForm("Other");
  form2.User().SetNumber(1);
  EXPECT_EQ(Dims(project), (Lines{"Dim Main As QForm", "Dim Main As QForm"}));
}

TEST(Declarations, DeletedObjectStillCountsInTheSizeOfAFamily) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  BuiltObject first = form.Add(Kind::Button, "Cmd(1)");
  form.Add(Kind::Button, "Cmd(2)");
  form.Add(Kind::Button, "Ok");
  first.Delete();
  EXPECT_EQ(Dims(project),
            (Lines{"Dim Form1 As QForm", "Dim Cmd(3) As QButton", "Dim Ok As QButton"}));
}

}  // namespace
}  // namespace tarnwick::test
