#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "fakes/fake_project.h"
#include "model/menu_bar.h"
#include "text/strings.h"

namespace tarnwick::test {
namespace {

std::string FileBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string CodeOf(std::string_view owner, const EventInfo& event) {
  return std::string(owner) + " " + std::string(event.Name) + "\r\nx = 1, 2";
}

/// Gives an object values of which no two are alike; `k` is its own number in them.
void AddWithAllValues(const BuiltForm& form, Kind kind, int k, std::string_view name) {
  const auto place = static_cast<std::int16_t>(k);
  BuiltObject object = form.Add(kind, name).At(10 * k, 10 * k + 1).Size(10 * k + 2, 10 * k + 3);
  const std::string word(name);
  const std::string number = ", " + std::to_string(k);
  DesignControl& control = object.Control;
  control.Caption = word + " caption" + number;
  control.Text = word + " text" + number;
  control.ToolTipText = word + " tip" + number;
  control.FontName = "Font " + std::to_string(k);
  control.FontSize = 8.0F + static_cast<float>(k) / 2.0F;
  control.FontBold = k % 2 == 1;
  control.FontItalic = k % 2 == 0;
  control.ForeColor = 2000 + k;
  control.BackColor = 1000 + k;
  control.BorderStyle = static_cast<std::int16_t>(k % 2);
  control.Appearance = static_cast<std::int16_t>((k + 1) % 2);
  control.BackStyle = 0;
  control.AutoSize = true;
  control.Stretch = true;
  control.Value = -1;
  const auto plus = [place](int base) { return static_cast<std::int16_t>(base + place); };
  ObjectRec& record = object.Record;
  record.FontColor = 3000 + k;
  record.ImageFile = word + ".bmp";
  record.Cursor = place;
  record.Enabled = 1;
  record.Visible = 0;
  record.TabOrder = plus(100);
  record.Icon = plus(200);
  record.ReadOnly = plus(300);
  record.HideScrollBars = plus(400);
  record.ScrollBars = plus(500);
  record.Sorted = plus(600);
  record.MultiSelect = plus(700);
  record.Columns = plus(800);
  record.Interval = plus(900);
  record.Items = "one, two\x95three\x95";
  record.Title = word + " title";
  record.Filter = "Text|*.txt";
  record.FileName = "a.txt";
  record.InitialDir = "C:\\start";
  for (const EventInfo& event : AllEvents()) object.Code(event.Id, CodeOf(name, event));
}

void FillForm(const BuiltForm& form) {
  FormRec& record = form.Record();
  record.Name = "EveryKind";
  record.FileName = "C:\\Work\\every.ftn";
  record.Left = -5;
  record.Top = 6;
  record.Width = 640;
  record.Height = 480;
  record.ImageFile = "back.bmp";
  record.BorderStyle = 3;
  record.Cursor = 4;
  record.Hint = "A hint, of the form";
  record.WndState = 2;
  record.Center = 1;
  record.Visible = 0;
  record.TfLeft = 21;
  record.TfTop = 22;
  record.TfWidth = 23;
  record.TfHeight = 24;
  record.TfCursor = 25;
  record.TfAlign = 26;
  record.TfTransparency = 27;
  record.TfTranspColor = 280000;
  record.DeclarePbl = "Dim a As Integer, b As String\r\nDim c";
  form.User().Caption = "Every kind, of object";
  form.User().BackColor = 16711680;
  for (const EventInfo& event : AllEvents()) form.Code(event.Id, CodeOf("Form", event));
}

void AddMenus(ProjectBuilder& project, const BuiltForm& form) {
  DesignForm& window = form.User();
  AddTitleControl(window, "&File, all", "mnuFile");
  AddItemControl(window, "&New, empty", "mnuNew");
  AddItemControl(window, "...&Last", "mnuLast");
  AddTitleControl(window, "&Help", "mnuHelp");
  AddItemControl(window, "-", "sep1");
  form.ItemCode("mnuNew", "New 1, 2").ItemCode("mnuLast", "Last").ItemCode("sep1", "");
  project.PopUpItem(1, "pOpen", "Open, now").PopUpEntry(1, "pHere", "Here");
  project.PopUpEntry(1, "pThere", "There").PopUpItem(1, "pClose", "Close");
  form.ItemCode("pHere", "Beep 1, 2").ItemCode("pClose", "End").ItemCode("pThere", "   ");
}

TEST(FormWriter, WritesEveryKindToTheByte) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  FillForm(form);
  for (int k = 1; k <= 17; ++k) {
    const auto kind = static_cast<Kind>(k - 1);
    AddWithAllValues(form, kind, k, "My" + std::string(InfoOf(kind).Name));
  }
  AddWithAllValues(form, Kind::Button, 20, "Second");
  form.Record().HtmlViewers.At(1)->Navigate = "page.htm";
  *form.Record().WinSocks.At(1) = {"AF_INET ", "IPPROTO_IP", "SOCK_STREAM", "7"};
  *form.Record().PopUps.At(1) = {2, 1, "Form1Btn1"};
  AddMenus(project.Builder, form);

  const std::string expected =
      FileBytes(SourceFolder() + "/tests/golden/every-kind/project/every.ftn");
  ASSERT_FALSE(expected.empty());
  const std::string written = project.Saved();
  const auto expected_lines = Split(expected, "\r\n");
  const auto lines = Split(written, "\r\n");
  for (std::size_t i = 0; i < std::min(lines.size(), expected_lines.size()); ++i) {
    EXPECT_EQ(lines[i], expected_lines[i]) << "line " << i + 1;
  }
  EXPECT_EQ(written, expected);
}

/// The one record of a form with one object.
std::string ObjectLine(const FakeProject& project) {
  const std::string saved = project.Saved();
  return std::string(Split(saved, "\r\n")[2]);
}

/// The value of a tag in a line.
std::string ValueIn(std::string_view line, const std::string& tag) {
  const std::size_t start = line.find(tag + "<");
  const std::size_t end = line.find(">" + tag);
  if (start == std::string_view::npos || end == std::string_view::npos) return "(none)";
  return std::string(line.substr(start + tag.size() + 1, end - start - tag.size() - 1));
}

TEST(FormWriter, AFormWithoutObjectsIsTwoLines) {
  FakeProject project;
  project.Builder.AddForm();
  EXPECT_EQ(project.Saved(),
            "[Form](1) {Form1}  Left<0>Left   Top<0>Top   Width<400>Width   Height<333>Height   "
            "Image<(Default)>Image  Icon<(Default)>Icon  String<Form1>String  Border<2>Border  "
            "Color<12632256>Color  Cursor<0>Cursor  Tip<>Tip  WndState<0>WndState  "
            "Center<0>Center  Visible<1>Visible  Click<>Click  Close<>Close   Hint<>Hint   "
            "KeyDown<>KeyDown   KeyPress<>KeyPress   KeyUp<>KeyUp   MouseDown<>MouseDown   "
            "MouseMove<>MouseMove   MouseUp<>MouseUp   Paint<>Paint   Resize<>Resize   "
            "Show<>Show\r\n[DeclarePbl] String<>String\r\n");
}

TEST(FormWriter, NothingIsWrittenForANumberThatIsNotInUse) {
  FakeProject project;
  project.Builder.AddForm();
  EXPECT_EQ(project.Saved(0), "");
  EXPECT_EQ(project.Saved(2), "");
}

TEST(FormWriter, TheNumberOfAFormIsThatOfItsHiddenLabel) {
  FakeProject project;
  project.Builder.AddForm();
  project.Builder.AddForm();
  EXPECT_EQ(project.Saved(2).substr(0, 17), "[Form](2) {Form2}");
}

TEST(FormWriter, CodeIsTrimmedAndItsCommasAndLineBreaksAreStored) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::Time, "T").Code(Event::OnTimer, "  a, b\r\n c\r\n\r\nd ");
  EXPECT_EQ(ValueIn(ObjectLine(project), "Click"),
            "a\x8D b\x95 c\x95\x95"
            "d");
}

TEST(FormWriter, TrimmingTakesBlanksOnly) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::Time, "T").Code(Event::OnTimer, " \ta\r\n");
  EXPECT_EQ(ValueIn(ObjectLine(project), "Click"), "\ta\x95");
}

TEST(FormWriter, ALoneCarriageReturnOrLineFeedInCodeStands) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::Time, "T").Code(Event::OnTimer, "a\nb\rc");
  EXPECT_EQ(ValueIn(ObjectLine(project), "Click"), "a\nb\rc");
}

TEST(FormWriter, CaptionTextAndTipKeepTheirLineBreaks) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::TextBox, "T").Control.Text = "one, 1\r\ntwo";
  // The line break goes out as it is and breaks the record.
  const std::string saved = project.Saved();
  EXPECT_NE(saved.find("String<one\x8D 1\r\ntwo>String"), std::string::npos);
}

TEST(FormWriter, HintAndDeclarationsHaveTheirOwnEncodings) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Record().Hint = "a, b";
  form.Record().DeclarePbl = " Dim a, b\r\nDim c ";
  const std::string saved = project.Saved();
  EXPECT_NE(saved.find("Tip<a\x8D b>Tip"), std::string::npos);
  // Declarations are not trimmed.
  EXPECT_NE(saved.find("[DeclarePbl] String< Dim a\x8D b\x95"
                       "Dim c >String\r\n"),
            std::string::npos);
}

TEST(FormWriter, ItemsStoreTheirCommasUnderAnotherByte) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::ListBox, "L").Record.Items =
      "a,b\x95"
      "c\x95";
  EXPECT_EQ(ValueIn(ObjectLine(project), "Items"),
            "a\x8C"
            "b\x95"
            "c\x95");
}

TEST(FormWriter, CheckedIsOneForOneAndMinusOneAndNoughtForTheRest) {
  struct Row {
    std::int16_t Value;
    const char* Written;
  };
  for (const Row& row : {Row{1, "1"}, Row{-1, "1"}, Row{0, "0"}, Row{2, "0"}, Row{-2, "0"}}) {
    FakeProject project;
    const BuiltForm form = project.Builder.AddForm();
    form.Add(Kind::CheckBox, "C").Control.Value = row.Value;
    EXPECT_EQ(ValueIn(ObjectLine(project), "Checked"), row.Written) << row.Value;
  }
}

TEST(FormWriter, TheStateWrittenIsTheControlsAndNotTheRecords) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::OptionButton, "O").Record.Checked = 1;
  EXPECT_EQ(ValueIn(ObjectLine(project), "Checked"), "0");
}

TEST(FormWriter, ColoursAreThirtyTwoBitDecimals) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::TextBox, "T").Control.BackColor = -2147483633;
  EXPECT_EQ(ValueIn(ObjectLine(project), "Color"), "-2147483633");
}

TEST(FormWriter, PlacesAreWrittenInPixels) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  DesignControl& control = form.Add(Kind::Button, "B").Control;
  control.Left = 150;
  control.Top = -30;
  control.Width = 7.5F;
  control.Height = 100;
  const std::string line = ObjectLine(project);
  EXPECT_EQ(ValueIn(line, "Left"), "10");
  EXPECT_EQ(ValueIn(line, "Top"), "-2");
  EXPECT_EQ(ValueIn(line, "Width"), "0.5");
  EXPECT_EQ(ValueIn(line, "Height"), "6.6666665");
}

TEST(FormWriter, AHiddenControlLeavesNoRecordAndNoEmptyLine) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::Button, "A");
  BuiltObject hidden = form.Add(Kind::Button, "B");
  const std::string both = project.Saved();
  hidden.Control.Visible = false;
  const std::string one = project.Saved();
  EXPECT_EQ(Split(both, "\r\n").size(), Split(one, "\r\n").size() + 2);
  EXPECT_EQ(one.find("{B}"), std::string::npos);
  hidden.Delete();
  EXPECT_EQ(project.Saved(), one);
}

TEST(FormWriter, TheVisibilityTheUserAskedForComesFromTheRecord) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::Button, "A").Record.Visible = 0;
  EXPECT_EQ(ValueIn(ObjectLine(project), "Visible"), "0");
}

TEST(FormWriter, ADeletionClosesTheNumbersUpAndRecordsAreReadAtTheRunningNumber) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  BuiltObject first = form.Add(Kind::Button, "First");
  first.Record.Cursor = 11;
  first.Code(Event::OnClick, "first");
  BuiltObject second = form.Add(Kind::Button, "Second");
  second.Record.Cursor = 22;
  second.Code(Event::OnClick, "second");
  first.Delete();
  const std::string line = ObjectLine(project);
  EXPECT_EQ(line.substr(0, 23), "[Button]   (1) {Second}");
  EXPECT_EQ(ValueIn(line, "Cursor"), "11");
  // Code is looked up under the element's own index.
  EXPECT_EQ(ValueIn(line, "Click"), "second");
}

TEST(FormWriter, AnObjectWithoutAKeyIsWrittenWithTheCodeOfTheOneBefore) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::Button, "A").Code(Event::OnClick, "code of A");
  form.Add(Kind::Button, "B");
  form.Add(Kind::Label, "C").Code(Event::OnDblClick, "code of C");
  const std::string saved = project.Saved();
  const std::size_t b = saved.find("{B}");
  const std::size_t c = saved.find("{C}");
  EXPECT_EQ(ValueIn(std::string_view(saved).substr(b, c - b), "Click"), "code of A");
  EXPECT_EQ(ValueIn(std::string_view(saved).substr(c), "Click"), "code of A");
  EXPECT_EQ(ValueIn(std::string_view(saved).substr(c), "DblClick"), "code of C");
}

TEST(FormWriter, CodeOfTheFormIsNotCarriedOverToObjects) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Code(Event::OnClick, "of the form");
  form.Add(Kind::Button, "A");
  EXPECT_EQ(ValueIn(ObjectLine(project), "Click"), "");
}

TEST(FormWriter, AnEmptyEntryEndsTheCarryingOver) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::Time, "A").Code(Event::OnTimer, "tick");
  form.Add(Kind::Time, "B").Code(Event::OnTimer, "");
  const std::string saved = project.Saved();
  EXPECT_EQ(ValueIn(std::string_view(saved).substr(saved.find("{B}")), "Click"), "");
}

TEST(FormWriter, EntriesUnderTheNameOfAnObjectAreNotItsCode) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::Button, "Form1Btn1");
  project.Tables.EventTable.Add("Form1.Form1Btn1.OnClick", "lost");
  EXPECT_EQ(ValueIn(ObjectLine(project), "Click"), "");
}

TEST(FormWriter, ARecordThatIsNotThereReadsAsAnEmptyOne) {
  FakeProject project;
  project.Builder.AddForm();
  DesignControl& control = *project.User().Load(Kind::ListBox);
  control.Visible = true;
  const std::string line = ObjectLine(project);
  EXPECT_EQ(ValueIn(line, "Items"), "");
  EXPECT_EQ(ValueIn(line, "Enabled"), "0");
  EXPECT_EQ(ValueIn(line, "TabOrder"), "0");
}

TEST(FormWriter, TwoFramesWriteTheSameNumbers) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::TransparentFrame, "A").At(1, 2);
  form.Add(Kind::TransparentFrame, "B").At(3, 4);
  form.Record().TfLeft = 77;
  const std::string saved = project.Saved();
  for (const char* name : {"{A}", "{B}"}) {
    const std::string_view record = std::string_view(saved).substr(saved.find(name));
    EXPECT_EQ(ValueIn(record, "Left"), "77");
    EXPECT_EQ(ValueIn(record, "Visible"), "1");
    EXPECT_EQ(ValueIn(record, "Enabled"), "1");
  }
}

TEST(FormWriter, TextsOfDialogsSocketsAndViewersGoOutAsTheyAre) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::OpenDialog, "D").Record.Filter = "a,b|*.c";
  form.Add(Kind::HtmlViewer, "H");
  form.Record().HtmlViewers.At(1)->Navigate = "a,b.htm";
  form.Add(Kind::WinSock, "W");
  form.Record().WinSocks.At(1)->WMessage = "1,2";
  form.Add(Kind::PopUpMenu, "P");
  form.Record().PopUps.At(1)->PopUpMenu = "a,b";
  const std::string saved = project.Saved();
  for (const char* stored :
       {"Tip<a,b|*.c>Tip", "String<a,b.htm>String \r\n", "Items<1,2>Items", "Width<a,b>Width"}) {
    EXPECT_NE(saved.find(stored), std::string::npos) << stored;
  }
}

TEST(FormWriter, EachVisibleMenuControlGivesAnEmptyLineInTheWalk) {
  FakeProject project;
  project.Builder.AddForm();
  AddTitleControl(project.User(), "&File", "mnuFile");
  AddItemControl(project.User(), "&New", "mnuNew");
  const std::string saved = project.Saved();
  const auto lines = Split(saved, "\r\n");
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[1], "");
  EXPECT_EQ(lines[2], "");
  EXPECT_EQ(lines[3],
            "[Menu]  (1) {mnuFile} String<&File>String   "
            "Items<&New\x8D#\x8DmnuNew\x8D*\x8D>Items");
}

TEST(FormWriter, AMenuOfNestedItemsHasItsOwnHead) {
  FakeProject project;
  project.Builder.AddForm();
  AddTitleControl(project.User(), "&File", "mnuFile");
  AddItemControl(project.User(), "...&New", "mnuNew");
  const std::string saved = project.Saved();
  EXPECT_NE(saved.find("\r\n[Menu]   (1)  {mnuFile}  String<&File>String   "
                       "Items<&New\x8E#\x8DmnuNew\x8D*\x8D>Items\r\n"),
            std::string::npos)
      << saved;
}

TEST(FormWriter, CodeOfMenuItemsStandsAheadOfTheirTitleUnderTheRunningNumber) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  AddTitleControl(project.User(), "A", "mnuA");
  AddItemControl(project.User(), "No code", "a1");
  AddTitleControl(project.User(), "B", "mnuB");
  AddItemControl(project.User(), "Direct", "b1");
  AddItemControl(project.User(), "...Nested", "b2");
  form.ItemCode("b1", "one").ItemCode("b2", "two");
  const std::string saved = project.Saved();
  const auto lines = Split(saved, "\r\n");
  ASSERT_EQ(lines.size(), 12U);
  EXPECT_EQ(lines[6].substr(0, 12), "[Menu]  (1) ");
  EXPECT_EQ(lines[7], "[MenuItem]   (2)  {b1}  Click<one>Click");
  EXPECT_EQ(lines[8], "[ItemMenu]   (3)  {b2}  Click<two>Click");
  EXPECT_EQ(lines[9].substr(0, 14), "[Menu]   (2)  ");
}

TEST(FormWriter, PopUpEntriesWithCodeStandAheadOfTheirPopUp) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::PopUpMenu, "P");
  project.Builder.PopUpItem(1, "top", "Top").PopUpEntry(1, "sub", "Sub").PopUpItem(1, "none", "N");
  form.ItemCode("sub", "s").ItemCode("top", "t").ItemCode("none", "");
  const std::string saved = project.Saved();
  const auto lines = Split(saved, "\r\n");
  ASSERT_EQ(lines.size(), 7U);
  EXPECT_EQ(lines[1], "");
  EXPECT_EQ(lines[2], "[Sub]{top} Click<t>Click");
  EXPECT_EQ(lines[3], "[Sub]{sub} Click<s>Click");
  EXPECT_EQ(ValueIn(lines[4], "Items"), "Top\x8Dtop\x8FSub\x8Dsub\x8EN\x8Dnone\x8E");
}

TEST(FormWriter, FontSizesPrintInTheirShortestForm) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::Button, "B").Control.FontSize = 8.25F;
  EXPECT_EQ(ValueIn(ObjectLine(project), "FontSize"), "8.25");
}

TEST(FormWriter, RichTextKeyPressCodeStandsBehindABlank) {
  FakeProject project;
  const BuiltForm form = project.Builder.AddForm();
  form.Add(Kind::RichTextBox, "R").Code(Event::OnKeyPress, "x");
  EXPECT_EQ(ValueIn(ObjectLine(project), "KeyPress"), " x");
}

}  // namespace
}  // namespace tarnwick::test
