#include "codegen/form_init.h"

#include <gtest/gtest.h>

#include "fakes/generated.h"

namespace tarnwick::test {
namespace {

/// The lines of form 1 from its first one to the blank line behind its hooks.
Lines FormLines(ProjectBuilder& project, std::string_view first) {
  return Between(Generate(project), first, "");
}

TEST(FormInit, NoLineIsLeftOutForADefaultValue) {
  ProjectBuilder project;
  project.AddForm();
  EXPECT_EQ(FormLines(project, "Form1.Top = 0"),
            (Lines{"Form1.Top = 0", "Form1.Left = 0", "Form1.IcoHandle = Default_Icon",
                   "Form1.Width = 400", "Form1.Height = 333", "Form1.BorderStyle = 2",
                   "Form1.Caption = \"Form1\"", "Form1.Color = 12632256", "Form1.Cursor = -0",
                   "Form1.Hint = \"\"", "Form1.ShowHint = 1", "Form1.WindowState = 0", ""}));
}

TEST(FormInit, ValuesComeFromTheRecordCaptionAndColourFromTheWindow) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm("Main");
  FormRec& record = form.Record();
  record.Top = -5;
  record.Left = 7;
  record.Width = 640;
  record.Height = 480;
  record.BorderStyle = 3;
  record.Cursor = 11;
  record.Hint = "a, b";
  record.WndState = 2;
  form.User().Caption = "My window";
  form.User().BackColor = -2147483633;
  EXPECT_EQ(FormLines(project, "Main.Top = -5"),
            (Lines{"Main.Top = -5", "Main.Left = 7", "Main.IcoHandle = Default_Icon",
                   "Main.Width = 640", "Main.Height = 480", "Main.BorderStyle = 3",
                   "Main.Caption = \"My window\"", "Main.Color = -2147483633", "Main.Cursor = -11",
                   "Main.Hint = \"a, b\"", "Main.ShowHint = 1", "Main.WindowState = 2", ""}));
}

TEST(FormInit, CentredFormHasNoPlace) {
  ProjectBuilder project;
  project.AddForm().Record().Center = 1;
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Form1.Center"));
  EXPECT_TRUE(Starting(lines, "Form1.Top = ").empty());
  EXPECT_TRUE(Starting(lines, "Form1.Left = ").empty());
}

TEST(FormInit, HtmlViewerOnACentredFormRepeatsTheCentering) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Record().Center = 1;
  form.Add(Kind::HtmlViewer, "Html1");
  const Lines lines = Generate(project);
  EXPECT_EQ(CountOf(lines, "Form1.Center"), 2);
  EXPECT_EQ(Starting(lines, "Form1.Top = "), Lines{"Form1.Top = Screen.Height + 500"});
}

TEST(FormInit, QuotesInACaptionAreNotEscaped) {
  ProjectBuilder project;
  project.AddForm().User().Caption = "say \"hello\"";
  EXPECT_TRUE(Has(Generate(project), "Form1.Caption = \"say \"hello\"\""));
}

TEST(FormInit, OwnIconUsesTheNameOfItsResource) {
  ProjectBuilder project;
  project.AddForm();
  project.AddForm().Record().ImageFile = "own.ico";
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Form2.IcoHandle = Form2_Icon"));
  EXPECT_TRUE(Has(lines, "$Resource Form2_Icon As \"C:\\Work\\own.ico\""));
}

TEST(FormInit, HooksNameTheirSubs) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  for (const EventInfo& event : AllEvents()) form.Code(event.Id, "x");
  const Lines lines = FormLines(project, "Form1.Top = 0");
  EXPECT_EQ(Lines(lines.begin() + 12, lines.end() - 1),
            (Lines{"Form1.OnTimer = Form1_OnTimer", "Form1.OnClick = Form1_OnClick",
                   "Form1.OnClose = Form1_OnClose", "Form1.OnHint = Form1_OnHint",
                   "Form1.OnKeyDown = Form1_OnKeyDown", "Form1.OnKeyPress = Form1_OnKeyPress",
                   "Form1.OnKeyUp = Form1_OnKeyUp", "Form1.OnMouseDown = Form1_OnMouseDown",
                   "Form1.OnMouseMove = Form1_OnMouseMove", "Form1.OnMouseUp = Form1_OnMouseUp",
                   "Form1.OnPaint = Form1_OnPaint", "Form1.OnResize = Form1_OnResize",
                   "Form1.OnShow = Form1_OnShow"}));
}

TEST(FormInit, TimerCodeOfAFormHasAHookAndNoSub) {
  ProjectBuilder project;
  project.AddForm().Code(Event::OnTimer, "x");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Form1.OnTimer = Form1_OnTimer"));
  EXPECT_FALSE(Has(lines, "Sub Form1_OnTimer"));
}

TEST(FormInit, BlankCodeOfAFormHasAHook) {
  ProjectBuilder project;
  project.AddForm().Code(Event::OnClick, " ");
  EXPECT_TRUE(Has(Generate(project), "Form1.OnClick = Form1_OnClick"));
}

TEST(FormInit, ObjectsStandInTheOrderOfTheCollection) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::TextBox, "T1");
  form.Add(Kind::Button, "B1");
  form.Add(Kind::TextBox, "T2");
  EXPECT_EQ(Starting(Generate(project), "T1.Parent"), Lines{"T1.Parent = Form1"});
  const Lines lines = Generate(project);
  EXPECT_LT(PositionOf(lines, "T1.Parent = Form1"), PositionOf(lines, "B1.Parent = Form1"));
  EXPECT_LT(PositionOf(lines, "B1.Parent = Form1"), PositionOf(lines, "T2.Parent = Form1"));
}

TEST(FormInit, FileStreamAndHiddenObjectsArePassedOver) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::FileStream, "Str1");
  BuiltObject hidden = form.Add(Kind::Label, "L1");
  hidden.Control.Visible = false;
  const Lines lines = Generate(project);
  EXPECT_TRUE(Starting(lines, "Str1").empty());
  EXPECT_TRUE(Starting(lines, "L1").empty());
}

TEST(FormInit, TransparentFrameGivesABlankLineOnly) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  // Form 1 has no frame, so that no call is rewritten in what is compared.
  const BuiltForm form2 = project.AddForm();
  form2.Add(Kind::TransparentFrame, "Glass");
  form2.Add(Kind::TransparentFrame, "");
  const Lines lines = Generate(project);
  const Lines rest(
      lines.begin() + static_cast<std::ptrdiff_t>(PositionOf(lines, "Form2.WindowState = 0")),
      lines.end());
  EXPECT_EQ(rest, (Lines{"Form2.WindowState = 0", "", "", "", "", "Form1.ShowModal", ""}));
  static_cast<void>(form);
}

TEST(FormInit, PopUpGivesNoBlankLine) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::PopUpMenu, "pm1");
  form.Add(Kind::PopUpMenu, "pm2");
  const Lines lines = Generate(project);
  EXPECT_EQ(Between(lines, "Form1.PopUpMenu = pm1", "Form1.ShowModal"),
            (Lines{"Form1.PopUpMenu = pm1", "pm1.Alignment = 0", "pm1.AutoPopUp = 1",
                   "Form1.PopUpMenu = pm2", "pm2.Alignment = 0", "pm2.AutoPopUp = 1", "",
                   "Form1.ShowModal"}));
}

TEST(FormInit, MenuBarStandsWhereTheFirstTitleIsMetAndOnlyOnce) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  project.Title("mnuA", "A").Title("mnuB", "B");
  form.Add(Kind::Label, "L1");
  form.ShowMenuBar();
  form.Add(Kind::Label, "L2");
  const Lines lines = Generate(project);
  EXPECT_EQ(CountOf(lines, "MenuBar.Parent = Form1"), 1);
  EXPECT_LT(PositionOf(lines, "L1.Parent = Form1"), PositionOf(lines, "MenuBar.Parent = Form1"));
  EXPECT_LT(PositionOf(lines, "MenuBar.Parent = Form1"), PositionOf(lines, "L2.Parent = Form1"));
}

}  // namespace
}  // namespace tarnwick::test
