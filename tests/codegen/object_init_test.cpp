#include "codegen/object_init.h"

#include <gtest/gtest.h>

#include "fakes/generated.h"

namespace tarnwick::test {
namespace {

/// The block of one object on its own form: all lines between the form's and the program's end.
Lines ObjectLines(ProjectBuilder& project) {
  Lines lines = Between(Generate(project), "Form1.WindowState = 0", "Form1.ShowModal");
  // The form's last line and blank line in front; the walk's end and the start line behind.
  return Lines(lines.begin() + 2, lines.end() - 2);
}

/// An object that has a value for everything, so that a line left out stands out.
BuiltObject AddFilled(const BuiltForm& form, Kind kind) {
  BuiltObject object = form.Add(kind, "X").At(1, 2).Size(3, 4);
  DesignControl& control = object.Control;
  control.FontName = "Arial";
  control.FontSize = 10;
  control.FontBold = true;
  control.ForeColor = 255;
  control.BackColor = 65280;
  control.Caption = "cap";
  control.Text = "txt";
  control.ToolTipText = "tip";
  control.BorderStyle = 7;
  control.Appearance = 8;
  ObjectRec& record = object.Record;
  record.TabOrder = 5;
  record.Cursor = 6;
  record.ReadOnly = 1;
  record.Icon = 9;
  record.ScrollBars = 2;
  record.HideScrollBars = 3;
  record.Columns = 4;
  record.MultiSelect = 11;
  record.Sorted = 12;
  record.Checked = 13;
  record.Interval = 14;
  record.FontColor = 16711680;
  return object;
}

TEST(ObjectInit, Button) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::Button);
  EXPECT_EQ(ObjectLines(project), (Lines{"Font.Name = \"Arial\"",
                                         "Font.Size = 10",
                                         "Font.Bold = True",
                                         "Font.Italic = False",
                                         "Font.Color = 16711680",
                                         "X.Font = Font",
                                         "X.Parent = Form1",
                                         "X.Top = 2",
                                         "X.Left = 1",
                                         "X.Width = 3",
                                         "X.Height = 4",
                                         "X.Caption = \"cap\"",
                                         "X.Color = 65280",
                                         "X.Hint = \"tip\"",
                                         "X.ShowHint = 1",
                                         "X.Enabled = 1",
                                         "X.Visible = 1",
                                         "X.TabOrder = 5",
                                         "X.Cursor = -6",
                                         "X.Layout = 2",
                                         ""}));
}

TEST(ObjectInit, CheckBox) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::CheckBox);
  EXPECT_EQ(ObjectLines(project),
            (Lines{"Font.Name = \"Arial\"", "Font.Size = 10", "Font.Bold = True",
                   "Font.Italic = False", "Font.Color = 255", "X.Font = Font", "X.Parent = Form1",
                   "X.Top = 2", "X.Left = 1", "X.Width = 3", "X.Height = 4", "X.Caption = \"cap\"",
                   "X.Hint = \"tip\"", "X.ShowHint = 1", "X.Enabled = 1", "X.Visible = 1",
                   "X.Checked = 13", "X.TabOrder = 5", ""}));
}

TEST(ObjectInit, OptionButton) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::OptionButton);
  EXPECT_EQ(ObjectLines(project),
            (Lines{"Font.Name = \"Arial\"", "Font.Size = 10", "Font.Bold = True",
                   "Font.Italic = False", "Font.Color = 255", "X.Font = Font", "X.Parent = Form1",
                   "X.Top = 2", "X.Left = 1", "X.Width = 3", "X.Height = 4", "X.Caption = \"cap\"",
                   "X.Hint = \"tip\"", "X.ShowHint = 1", "X.Enabled = 1", "X.Visible = 1",
                   "X.Checked = 13", "X.TabOrder = 5", ""}));
}

TEST(ObjectInit, ComboBox) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::ComboBox);
  EXPECT_EQ(ObjectLines(project),
            (Lines{"Font.Color = 255", "X.Font = Font", "X.Parent = Form1", "X.Top = 2",
                   "X.Left = 1", "X.Width = 3", "X.Height = 4", "X.Text = \"txt\"",
                   "X.Hint = \"tip\"", "X.ShowHint = 1", "X.Enabled = 1", "X.Visible = 1",
                   "X.Cursor = -6", "X.TabOrder = 5", "X.Sorted = 12", ""}));
}

TEST(ObjectInit, Images) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::Image).Control.Stretch = true;
  EXPECT_EQ(ObjectLines(project),
            (Lines{"X.Font = Font", "X.Parent = Form1", "X.Top = 2", "X.Left = 1", "X.Width = 3",
                   "X.Height = 4", "X.Stretch = True", "X.Hint = \"tip\"", "X.ShowHint = 1",
                   "X.Enabled = 1", "X.Visible = 1", "X.Cursor = -6", ""}));
}

TEST(ObjectInit, Label) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::Label).Control.AutoSize = true;
  EXPECT_EQ(ObjectLines(project), (Lines{"Font.Name = \"Arial\"",
                                         "Font.Size = 10",
                                         "Font.Bold = True",
                                         "Font.Italic = False",
                                         "Font.Color = 255",
                                         "X.Font = Font",
                                         "X.Parent = Form1",
                                         "X.WordWrap = 9",
                                         "X.AutoSize = True",
                                         "X.Top = 2",
                                         "X.Left = 1",
                                         "X.Width = 3",
                                         "X.Height = 4",
                                         "X.Caption = \"cap\"",
                                         "X.Color = 65280",
                                         "X.Hint = \"tip\"",
                                         "X.ShowHint = 1",
                                         "X.Enabled = 1",
                                         "X.Visible = 1",
                                         "X.Cursor = -6",
                                         "X.Transparent = 0",
                                         ""}));
}

TEST(ObjectInit, ListBox) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::ListBox).Rows({"one", "two"});
  EXPECT_EQ(ObjectLines(project), (Lines{"Font.Name = \"Arial\"",
                                         "Font.Size = 10",
                                         "Font.Bold = True",
                                         "Font.Italic = False",
                                         "Font.Color = 255",
                                         "X.Font = Font",
                                         "X.Parent = Form1",
                                         "X.Top = 2",
                                         "X.Left = 1",
                                         "X.Width = 3",
                                         "X.Height = 4",
                                         "X.BorderStyle = 8",
                                         "X.Color = 65280",
                                         "X.Hint = \"tip\"",
                                         "X.ShowHint = 1",
                                         "X.Enabled = 1",
                                         "X.Visible = 1",
                                         "X.Cursor = -6",
                                         "X.Columns = 4",
                                         "X.MultiSelect = 11",
                                         "X.TabOrder = 5",
                                         "X.Sorted = 12",
                                         "X.AddItems \"one\"",
                                         "X.AddItems \"two\"",
                                         ""}));
}

TEST(ObjectInit, RichTextBox) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::RichTextBox);
  EXPECT_EQ(ObjectLines(project), (Lines{"Font.Name = \"Arial\"",
                                         "Font.Size = 10",
                                         "Font.Bold = True",
                                         "Font.Italic = False",
                                         "Font.Color = 255",
                                         "X.Font = Font",
                                         "X.Parent = Form1",
                                         "X.Top = 2",
                                         "X.Left = 1",
                                         "X.Width = 3",
                                         "X.Height = 4",
                                         "X.Text = \"txt\"",
                                         "X.BorderStyle = 7",
                                         "X.Color = 65280",
                                         "X.Hint = \"tip\"",
                                         "X.ShowHint = 1",
                                         "X.Enabled = 1",
                                         "X.Visible = 1",
                                         "X.TabOrder = 5",
                                         "X.WordWrap = 9",
                                         "X.ReadOnly = 1",
                                         "X.ScrollBars = 2",
                                         "X.HideScrollBars = 3",
                                         ""}));
}

TEST(ObjectInit, TextBox) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::TextBox);
  EXPECT_EQ(ObjectLines(project),
            (Lines{"Font.Name = \"Arial\"", "Font.Size = 10",   "Font.Bold = True",
                   "Font.Italic = False",   "Font.Color = 255", "X.Font = Font",
                   "X.Parent = Form1",      "X.Top = 2",        "X.Left = 1",
                   "X.Width = 3",           "X.Height = 4",     "X.Text = \"txt\"",
                   "X.BorderStyle = 7",     "X.Color = 65280",  "X.Hint = \"tip\"",
                   "X.ShowHint = 1",        "X.Enabled = 1",    "X.Visible = 1",
                   "X.TabOrder = 5",        "X.ReadOnly = 1",   ""}));
}

TEST(ObjectInit, Time) {
  ProjectBuilder project;
  AddFilled(project.AddForm(), Kind::Time);
  EXPECT_EQ(ObjectLines(project), (Lines{"X.Enabled = 1", "X.Interval = 14", ""}));
}

TEST(ObjectInit, OpenDialog) {
  ProjectBuilder project;
  BuiltObject dialog = project.AddForm().Add(Kind::OpenDialog, "Dlg");
  dialog.Record.Title = "Open it";
  dialog.Record.Filter = "All Files|*.*";
  dialog.Record.InitialDir = "C:\\";
  dialog.Record.FileName = "a.txt";
  EXPECT_EQ(ObjectLines(project),
            (Lines{"Dlg.Caption = \"Open it\"", "Dlg.Filter = \"All Files|*.*\"",
                   "Dlg.InitialDir = \"C:\\\"", "Dlg.FileName = \"a.txt\"", ""}));
}

TEST(ObjectInit, WinSock) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::WinSock, "Sock1");
  *form.Record().WinSocks.At(1) = {"AF_INET ", "IPPROTO_IP", "SOCK_STREAM", "0"};
  EXPECT_EQ(ObjectLines(project),
            (Lines{"Sock1.Parent = Form1", "Sock1.Family = AF_INET ", "Sock1.Protocol = IPPROTO_IP",
                   "Sock1.Type = SOCK_STREAM", "Sock1.WMessage = 0", ""}));
}

TEST(ObjectInit, HtmlViewerWithAPage) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Record().Top = 11;
  form.Record().Left = 12;
  form.Add(Kind::HtmlViewer, "Html1").At(1, 2).Size(300, 200);
  form.Record().HtmlViewers.At(1)->Navigate = "page.htm";
  EXPECT_EQ(ObjectLines(project), (Lines{"Form1.Visible = 1",
                                         "Form1.Top = Screen.Height + 500",
                                         "Html1.Parent = Form1",
                                         "Html1.Width = 300",
                                         "Html1.Height = 200",
                                         "Html1.Top = 2",
                                         "Html1.Left = 1",
                                         "Html1.createObject(\"Shell.Explorer.1\")",
                                         "Form1.Visible = 0",
                                         "Form1.Top = 11",
                                         "Form1.Left = 12",
                                         "Dim xpFl as qFileStream: Dim axp$ as string",
                                         "xpFl.Open (\"C:\\Work\\page.htm\",2)",
                                         "for i = 0 to xpfl.linecount - 1",
                                         "axp$ = axp$ + xpfl.readline",
                                         "next i",
                                         "xpfl.close",
                                         "axp$ = \"about: \" + axp$",
                                         "Html1.Navigate(axp$)",
                                         ""}));
}

TEST(ObjectInit, APageOnTheProgramsDriveStandsAsItIsOnlyInTheSameLetters) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::HtmlViewer, "Html1");
  form.Record().HtmlViewers.At(1)->Navigate = "C:\\page.htm";
  EXPECT_EQ(Starting(Generate(project), "xpFl.Open"), (Lines{"xpFl.Open (\"C:\\page.htm\",2)"}));
  // The drive in the other case counts as relative to the project.
  form.Record().HtmlViewers.At(1)->Navigate = "c:\\page.htm";
  EXPECT_EQ(Starting(Generate(project), "xpFl.Open"),
            (Lines{"xpFl.Open (\"C:\\Work\\c:\\page.htm\",2)"}));
}

TEST(ObjectInit, HtmlViewerWithoutAPageOpensNone) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::HtmlViewer, "Html1");
  form.Add(Kind::HtmlViewer, "Html2");
  form.Record().HtmlViewers.At(2)->Navigate = "";
  EXPECT_TRUE(Starting(Generate(project), "xpFl").empty());
}

TEST(ObjectInit, LabelReadsAllItsLinesAtOneNumber) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  BuiltObject first = form.Add(Kind::Label, "L1");
  BuiltObject second = form.Add(Kind::Label, "L2").Code(Event::OnClick, "x");
  first.Record.Icon = 1;
  first.Record.Cursor = 1;
  second.Record.Icon = 2;
  second.Record.Cursor = 2;
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "L1.WordWrap = 1"));
  EXPECT_TRUE(Has(lines, "L1.Cursor = -1"));
  EXPECT_TRUE(Has(lines, "L2.WordWrap = 2"));
  EXPECT_TRUE(Has(lines, "L2.Cursor = -2"));
  EXPECT_TRUE(Has(lines, "L2.OnClick = L2_OnClick"));
}

TEST(ObjectInit, LabelWithTransparentBackground) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Label, "L1").Control.BackStyle = 0;
  form.Add(Kind::Label, "L2").Control.BackStyle = 5;
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "L1.Transparent = 1"));
  EXPECT_TRUE(Has(lines, "L2.Transparent = 0"));
}

TEST(ObjectInit, ListOfOneRowIsNeverWritten) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::ListBox, "List1").Rows({"something else"});
  form.Add(Kind::ListBox, "List2").Rows({});
  EXPECT_TRUE(Starting(Generate(project), "List1.AddItems").empty());
}

TEST(ObjectInit, ListWhoseFirstRowIsItsNameIsNotWritten) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::ListBox, "List1").Rows({"List1", "two"});
  form.Add(Kind::ListBox, "List2").Rows({"LIST2", "two"});
  const Lines lines = Generate(project);
  EXPECT_TRUE(Starting(lines, "List1.AddItems").empty());
  EXPECT_EQ(Starting(lines, "List2.AddItems"),
            (Lines{"List2.AddItems \"LIST2\"", "List2.AddItems \"two\""}));
}

Lines ComboItemsOf(std::string items) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::ComboBox, "C").Record.Items = std::move(items);
  return Starting(Generate(project), "C.Additems ");
}

TEST(ObjectInit, ComboItemsSplitAtTheDoubleQuote) {
  EXPECT_EQ(ComboItemsOf("one\"two"), (Lines{"C.Additems \"one\"", "C.Additems \"two\""}));
}

TEST(ObjectInit, ComboItemsEndingInAQuoteHaveNoLineForTheRest) {
  EXPECT_EQ(ComboItemsOf("one\"two\""), (Lines{"C.Additems \"one\"", "C.Additems \"two\""}));
}

TEST(ObjectInit, EmptyComboItemInTheMiddleIsWritten) {
  EXPECT_EQ(ComboItemsOf("one\"\"two"),
            (Lines{"C.Additems \"one\"", "C.Additems \"\"", "C.Additems \"two\""}));
  EXPECT_EQ(ComboItemsOf("\""), Lines{"C.Additems \"\""});
}

TEST(ObjectInit, ComboItemsSplitAtTheItemEndToo) {
  EXPECT_EQ(ComboItemsOf("a,b\x95"
                         "c\x95"),
            (Lines{"C.Additems \"a,b\"", "C.Additems \"c\""}));
}

TEST(ObjectInit, ComboWithoutItemsHasNoItemLine) {
  EXPECT_EQ(ComboItemsOf(""), Lines{});
}

TEST(ObjectInit, ButtonWithoutAPictureStillHasItsLayout) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "B1").Picture("(None)");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Starting(lines, "B1.BmpHandle").empty());
  EXPECT_TRUE(Has(lines, "B1.Layout = 2"));
}

TEST(ObjectInit, ButtonsWithOnePictureShareItsResource) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Button, "B1");
  form.Add(Kind::Button, "B2").Picture("a.bmp");
  form.Add(Kind::Button, "B3").Picture("A.BMP");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "B2.BmpHandle = Frm1Btn2_Bmp"));
  EXPECT_TRUE(Has(lines, "B3.BmpHandle = Frm1Btn2_Bmp"));
}

TEST(ObjectInit, IconInAnImageKeepsTheSuffix) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Image, "I1").Picture("a.ico");
  form.Add(Kind::Image, "I2").Picture("b.BMP");
  form.Add(Kind::Image, "I3").Picture("bm");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "I1.IcoHandle = Frm1Image1_Bmp"));
  EXPECT_TRUE(Has(lines, "I2.BmpHandle = Frm1Image2_Bmp"));
  EXPECT_TRUE(Has(lines, "I3.IcoHandle = Frm1Image3_Bmp"));
}

TEST(ObjectInit, RecordsAreReadAtTheRunningNumberAfterADeletion) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  BuiltObject first = form.Add(Kind::Button, "B1").Picture("a.bmp");
  BuiltObject second = form.Add(Kind::Button, "B2").Picture("b.bmp");
  first.Record.TabOrder = 7;
  second.Record.TabOrder = 8;
  first.Delete();
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "B2.TabOrder = 7"));
  // The resource that the object left over refers to is bound as well.
  EXPECT_TRUE(Has(lines, "B2.BmpHandle = Frm1Btn1_Bmp"));
  EXPECT_TRUE(Has(lines, "$Resource Frm1Btn1_Bmp As \"C:\\Work\\a.bmp\""));
}

TEST(ObjectInit, MissingRecordReadsAsEmpty) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::TextBox, "T1");
  form.Record().TextBoxes.Clear();
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "T1.Enabled = 0"));
  EXPECT_TRUE(Has(lines, "T1.TabOrder = 0"));
}

TEST(ObjectInit, SaveDialogReadsItsRecordsAtTheOpenDialogsNumber) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::OpenDialog, "Open1").Record.Title = "open";
  form.Add(Kind::SaveDialog, "Save1").Record.Title = "first";
  form.Add(Kind::SaveDialog, "Save2").Record.Title = "second";
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Open1.Caption = \"open\""));
  EXPECT_TRUE(Has(lines, "Save1.Caption = \"first\""));
  EXPECT_TRUE(Has(lines, "Save2.Caption = \"first\""));
}

TEST(ObjectInit, SaveDialogWithoutAnOpenDialogShowsEmptyTexts) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::SaveDialog, "Save1").Record.Title = "first";
  EXPECT_TRUE(Has(Generate(project), "Save1.Caption = \"\""));
}

TEST(ObjectInit, WinSockNumberGoesOnOverFormsAndCompilations) {
  ProjectBuilder project;
  const BuiltForm form1 = project.AddForm();
  form1.Add(Kind::WinSock, "SockA");
  *form1.Record().WinSocks.At(1) = {"fam1", "", "", ""};
  const BuiltForm form2 = project.AddForm();
  form2.Add(Kind::WinSock, "SockB");
  *form2.Record().WinSocks.At(1) = {"fam2", "", "", ""};
  GeneratorState state;
  Lines lines = LinesOf(GenerateSource(project.Tables, state));
  EXPECT_TRUE(Has(lines, "SockA.Family = fam1"));
  EXPECT_TRUE(Has(lines, "SockB.Family = "));
  lines = LinesOf(GenerateSource(project.Tables, state));
  EXPECT_TRUE(Has(lines, "SockA.Family = "));
}

TEST(ObjectInit, GeneratingTwiceDiffersInTheWinSockLinesOnly) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  for (const KindInfo& kind : AllKinds().first<kObjectKindCount>()) {
    AddFilled(form, kind.Id).Code(Event::OnClick, "x");
  }
  *form.Record().WinSocks.At(1) = {"AF_INET ", "IPPROTO_IP", "SOCK_STREAM", "0"};
  GeneratorState state;
  const Lines first = LinesOf(GenerateSource(project.Tables, state));
  // The ordinal that is left over from the walk may name other code the second time; here none.
  const Lines second = LinesOf(GenerateSource(project.Tables, state));
  ASSERT_EQ(first.size(), second.size());
  Lines differing;
  for (std::size_t n = 0; n < first.size(); ++n) {
    if (first[n] != second[n]) differing.push_back(first[n]);
  }
  EXPECT_EQ(differing, (Lines{"X.Family = AF_INET ", "X.Protocol = IPPROTO_IP",
                              "X.Type = SOCK_STREAM", "X.WMessage = 0"}));
}

TEST(ObjectInit, TimerHookInArrayFormTakesTheTimersNumber) {
  ProjectBuilder project;
  const BuiltForm form = project.AddForm();
  form.Add(Kind::Time, "Tick(1)");
  form.Add(Kind::Time, "Tick(2)").Code(Event::OnTimer, "x");
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "Tick(2).OnTimer = Tick2_OnTimer"));
  EXPECT_TRUE(Has(lines, "Sub Tick2_OnTimer"));
  EXPECT_TRUE(Starting(lines, "Tick(1).OnTimer").empty());
}

TEST(ObjectInit, BlankTimerCodeHasAHook) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::Time, "Time1").Code(Event::OnTimer, "  ");
  EXPECT_TRUE(Has(Generate(project), "Time1.OnTimer = Time1_OnTimer"));
}

TEST(ObjectInit, FractionalLengthsPrintInTheirShortestForm) {
  ProjectBuilder project;
  BuiltObject button = project.AddForm().Add(Kind::Button, "B1");
  button.Control.Left = 100;
  button.Control.Top = -22.5F;
  button.Control.Width = 0.0F;
  button.Control.Height = 450000000.0F;
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "B1.Left = 6.6666665"));
  EXPECT_TRUE(Has(lines, "B1.Top = -1.5"));
  EXPECT_TRUE(Has(lines, "B1.Width = 0"));
  EXPECT_TRUE(Has(lines, "B1.Height = 30000000"));
}

TEST(ObjectInit, FontSizeIsRoundedHalfToEven) {
  for (const auto& [size, text] : std::vector<std::pair<float, std::string>>{
           {8.25F, "8"}, {8.5F, "8"}, {9.5F, "10"}, {9.75F, "10"}, {-0.5F, "0"}}) {
    ProjectBuilder project;
    project.AddForm().Add(Kind::Label, "L1").Control.FontSize = size;
    EXPECT_EQ(Starting(Generate(project), "Font.Size"), Lines{"Font.Size = " + text});
  }
}

TEST(ObjectInit, TextsAreNotEscaped) {
  ProjectBuilder project;
  BuiltObject button = project.AddForm().Add(Kind::Button, "B1");
  button.Control.Caption = "a \"b\"";
  button.Control.ToolTipText = "x, y";
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "B1.Caption = \"a \"b\"\""));
  EXPECT_TRUE(Has(lines, "B1.Hint = \"x, y\""));
}

TEST(ObjectInit, SecondFormsNumbersBeginAtOne) {
  ProjectBuilder project;
  project.AddForm().Add(Kind::Button, "A").Record.TabOrder = 3;
  BuiltObject second = project.AddForm().Add(Kind::Button, "B");
  second.Record.TabOrder = 4;
  second.Record.FontColor = 77;
  const Lines lines = Generate(project);
  EXPECT_TRUE(Has(lines, "B.TabOrder = 4"));
  EXPECT_TRUE(Has(lines, "Font.Color = 77"));
}

}  // namespace
}  // namespace tarnwick::test
