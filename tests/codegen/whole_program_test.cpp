// A whole small program, line by line.
#include <gtest/gtest.h>

#include "fakes/generated.h"

namespace tarnwick::test {
namespace {

/// Two forms; on the first a button and a timer with code and a menu bar of one title and item.
void BuildTwoForms(ProjectBuilder& project) {
  const BuiltForm form1 = project.AddForm();
  form1.Record().Top = 100;
  form1.Record().Left = 100;
  form1.Record().Width = 320;
  form1.Record().Height = 240;
  form1.User().BackColor = 16777215;
  auto button = form1.Add(Kind::Button, "Button1").At(10, 10).Size(75, 25);
  button.Control.Caption = "Button1";
  button.Code(Event::OnClick, "ShowMessage \"clicked\"");
  auto timer = form1.Add(Kind::Time, "Time1").Code(Event::OnTimer, "DoEvents");
  timer.Record.Interval = 1000;
  project.Title("mnuFile", "File").Item("mnuExit", "Exit");
  form1.ShowMenuBar().ItemCode("mnuExit", "Form1.Close");

  const BuiltForm form2 = project.AddForm();
  form2.Record().Top = 120;
}

const Lines kTwoForms{
    "Dim Font As QFont",
    "Dim Form1 As QForm",
    "Dim Button1 As QButton",
    "Dim MenuBar As QMainMenu",
    "Dim mnuFile As QMenuItem",
    "Dim mnuExit As QMenuItem",
    "Dim Time1 As Qtimer",
    "",
    "$Resource Default_Icon As \"C:\\Tarnwick\\IconApp.ico\"",
    "Dim Form2 As QForm",
    "",
    "$Include \"C:\\Tarnwick\\Tarnwick1.lib\"",
    "",
    "Declare Sub Button1_OnClick",
    "Declare Sub Time1_OnTimer",
    "Declare Sub mnuExit_OnClick",
    "",
    "'---Public Declarations",
    "",
    "",
    "",
    "",
    "",
    "'---Public Declarations",
    "",
    "",
    "",
    "Sub Button1_OnClick",
    "ShowMessage \"clicked\"",
    "End Sub",
    "",
    "",
    "Sub Time1_OnTimer",
    "DoEvents",
    "End Sub",
    "",
    "",
    "",
    "Sub mnuExit_OnClick",
    "Form1.Close",
    "End Sub",
    "",
    "Form1.Top = 100",
    "Form1.Left = 100",
    "Form1.IcoHandle = Default_Icon",
    "Form1.Width = 320",
    "Form1.Height = 240",
    "Form1.BorderStyle = 2",
    "Form1.Caption = \"Form1\"",
    "Form1.Color = 16777215",
    "Form1.Cursor = -0",
    "Form1.Hint = \"\"",
    "Form1.ShowHint = 1",
    "Form1.WindowState = 0",
    "",
    "Font.Name = \"MS Sans Serif\"",
    "Font.Size = 8",
    "Font.Bold = False",
    "Font.Italic = False",
    "Font.Color = 0",
    "Button1.Font = Font",
    "Button1.Parent = Form1",
    "Button1.Top = 10",
    "Button1.Left = 10",
    "Button1.Width = 75",
    "Button1.Height = 25",
    "Button1.Caption = \"Button1\"",
    "Button1.Color = 12632256",
    "Button1.Hint = \"\"",
    "Button1.ShowHint = 1",
    "Button1.Enabled = 1",
    "Button1.Visible = 1",
    "Button1.TabOrder = 0",
    "Button1.Cursor = -0",
    "Button1.Layout = 2",
    "Button1.OnClick = Button1_OnClick",
    "",
    "Time1.Enabled = 1",
    "Time1.Interval = 1000",
    "Time1.OnTimer = Time1_OnTimer",
    "",
    "MenuBar.Parent = Form1",
    "MenuBar.AddItems  mnuFile",
    "",
    "mnuFile.Caption = \"File\"",
    "mnuFile.AddItems mnuExit",
    "mnuExit.Caption = \"Exit\"",
    "mnuExit.OnClick = mnuExit_OnClick",
    "",
    "",
    "Form2.Top = 120",
    "Form2.Left = 0",
    "Form2.IcoHandle = Default_Icon",
    "Form2.Width = 400",
    "Form2.Height = 333",
    "Form2.BorderStyle = 2",
    "Form2.Caption = \"Form2\"",
    "Form2.Color = 12632256",
    "Form2.Cursor = -0",
    "Form2.Hint = \"\"",
    "Form2.ShowHint = 1",
    "Form2.WindowState = 0",
    "",
    "",
    "Form1.ShowModal",
    "",
};

TEST(WholeProgram, TwoFormsWithButtonTimerAndMenuBar) {
  ProjectBuilder project;
  BuildTwoForms(project);
  const Lines lines = Generate(project);
  ASSERT_EQ(lines.size(), kTwoForms.size());
  for (std::size_t n = 0; n < lines.size(); ++n) {
    EXPECT_EQ(lines[n], kTwoForms[n]) << "line " << n + 1;
  }
}

TEST(WholeProgram, EveryLineEndsInCrLf) {
  ProjectBuilder project;
  BuildTwoForms(project);
  GeneratorState state;
  const std::string text = GenerateSource(project.Tables, state);
  std::string expected;
  for (const std::string& line : kTwoForms) expected += line + "\r\n";
  EXPECT_EQ(text, expected);
}

TEST(WholeProgram, GeneratedTwiceItIsTheSame) {
  ProjectBuilder project;
  BuildTwoForms(project);
  GeneratorState state;
  const std::string first = GenerateSource(project.Tables, state);
  EXPECT_EQ(GenerateSource(project.Tables, state), first);
}

}  // namespace
}  // namespace tarnwick::test
