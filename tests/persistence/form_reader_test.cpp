#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_project.h"
#include "support/form_text.h"

namespace tarnwick::test {
namespace {

TEST(FormReader, EveryKindComesBackAsItWasWritten) {
  FakeProject project;
  project.Load(
      WithForm("[Label]   (1) {L}  Left<10>Left   Top<-3>Top   Width<0.5>Width   Height<7>Height   "
               "String<a\x8D"
               "b>String   Tip<t\x8Du>Tip  Cursor<3>Cursor  Enabled<1>Enabled  "
               "Autosize<1>Autosize  FontName<Arial>FontName FontClr<255>FontClr "
               "FontSize<8.25>FontSize  FontBold<1>FontBold  FontItalic<1>FontItalic  "
               "TabOrder<4>TabOrder  Transparent<0>Transparent  Icon<1>Icon  Color<65280>Color  "
               "Visible<1>Visible  Click<x>Click   DblClick<>DblClick   MouseDown<>MouseDown   "
               "MouseMove<>MouseMove   MouseUp<>MouseUp\r\n"));
  const DesignControl& label = project.Control(Kind::Label);
  EXPECT_EQ(label.Tag, "L");
  EXPECT_TRUE(label.Visible);
  EXPECT_EQ(label.Left, 150);
  EXPECT_EQ(label.Top, -45);
  EXPECT_EQ(label.Width, 7.5F);
  EXPECT_EQ(label.Height, 105);
  EXPECT_EQ(label.Caption, "a,b");
  EXPECT_EQ(label.ToolTipText, "t,u");
  EXPECT_TRUE(label.AutoSize);
  EXPECT_EQ(label.FontName, "Arial");
  EXPECT_EQ(label.ForeColor, 255);
  EXPECT_EQ(label.FontSize, 8.25F);
  EXPECT_TRUE(label.FontBold);
  EXPECT_TRUE(label.FontItalic);
  EXPECT_EQ(label.BackStyle, 0);
  EXPECT_TRUE(label.WordWrap);
  EXPECT_EQ(label.BackColor, 65280);
  const ObjectRec& record = project.Record(Kind::Label);
  EXPECT_EQ(record.Cursor, 3);
  EXPECT_EQ(record.Enabled, 1);
  EXPECT_EQ(record.TabOrder, 4);
  EXPECT_EQ(record.Icon, 1);
  EXPECT_EQ(record.Visible, 1);
  EXPECT_EQ(project.Code("Form1.Label1.OnClick"), "x");
}

TEST(FormReader, AFormsOwnValuesGoToItsRecordAndItsWindow) {
  FakeProject project;
  project.Load(
      "[Form](7) {Main}  Left<3>Left   Top<4>Top   Width<200>Width   Height<100>Height   "
      "Image<back.bmp>Image  Icon<(Default)>Icon  String<Hi\x8D you>String  Border<1>Border  "
      "Color<255>Color  Cursor<2>Cursor  Tip<a\x8D"
      "b>Tip  WndState<1>WndState  Center<1>Center  "
      "Visible<0>Visible\r\n");
  const FormRec& form = project.Form();
  EXPECT_EQ(form.Name, "Main");
  EXPECT_EQ(form.FileName, "C:\\Work\\a.ftn");
  EXPECT_EQ(form.Left, 3);
  EXPECT_EQ(form.Top, 4);
  EXPECT_EQ(form.Width, 200);
  EXPECT_EQ(form.Height, 100);
  EXPECT_EQ(form.BorderStyle, 1);
  EXPECT_EQ(form.Cursor, 2);
  EXPECT_EQ(form.Hint, "a,b");
  EXPECT_EQ(form.WndState, 1);
  EXPECT_EQ(form.Center, 1);
  EXPECT_EQ(form.Visible, 0);
  // The text of the file stays in the record, so that the project can be moved.
  EXPECT_EQ(form.ImageFile, "back.bmp");
  EXPECT_EQ(form.IconFile, "(Default)");
  const DesignForm& window = project.User();
  EXPECT_EQ(window.Width, 3000);
  EXPECT_EQ(window.Height, 1500);
  EXPECT_EQ(window.Caption, "Hi, you");
  EXPECT_EQ(window.BackColor, 255);
  EXPECT_EQ(window.WindowPicture, "C:\\Work\\back.bmp");
  // Its number is its place in the project, not the one in the file.
  EXPECT_EQ(window.Number(), 1);
  EXPECT_EQ(window.NameObjet, "Form");
  EXPECT_EQ(project.Tables.Bar(1)->Caption, "Main Procedures");
  EXPECT_EQ(project.Tables.Bar(1)->Height, 50);
  EXPECT_EQ(project.Tables.ListaFrms.Lines().at(0).Text, "Main (a.ftn)");
}

TEST(FormReader, AnIconIsKeptWithItsFullPathAndAnImageAsItStands) {
  FakeProject project;
  project.Load("[Form](1) {F} Image<c:\\pics\\b.bmp>Image Icon<my.ico>Icon\r\n");
  EXPECT_EQ(project.Form().IconFile, "C:\\Work\\my.ico");
  EXPECT_EQ(project.Form().ImageFile, "c:\\pics\\b.bmp");
  EXPECT_EQ(project.User().WindowPicture, "c:\\pics\\b.bmp");
}

TEST(FormReader, BlanksBetweenFieldsDoNotMatter) {
  FakeProject project;
  project.Load("[form](1){F}Width<30>WidthHeight<40>Height\r\n[BUTTON]{b}(1)LEFT<1>leftTop<2>TOP");
  EXPECT_EQ(project.Form().Width, 30);
  EXPECT_EQ(project.Form().Height, 40);
  EXPECT_EQ(project.Control(Kind::Button).Left, 15);
  EXPECT_EQ(project.Control(Kind::Button).Top, 30);
}

TEST(FormReader, ARecordWithoutATagInheritsTheValueOfTheLineBefore) {
  FakeProject project;
  project.Load(
      WithForm("[Button](1) {A} Left<5>Left Tip<hello>Tip Enabled<1>Enabled\r\n"
               "[Button](2) {B} Left<6>Left\r\n"));
  EXPECT_EQ(project.Control(Kind::Button, 2).Left, 90);
  EXPECT_EQ(project.Control(Kind::Button, 2).ToolTipText, "hello");
  EXPECT_EQ(project.Record(Kind::Button, 2).Enabled, 1);
}

TEST(FormReader, NumberAndNameAreInheritedTooButTheKindIsNot) {
  FakeProject project;
  project.Load(
      WithForm("[Button](3) {A}\r\n[Label] Left<1>Left\r\nLeft<9>Left\r\n[Button](4)\r\n"));
  EXPECT_EQ(project.Control(Kind::Label).Tag, "A");
  EXPECT_EQ(project.Form().Labels.UBound(), 3);
  // A line without a kind makes no object, but its tags are taken.
  EXPECT_EQ(project.User().UBound(Kind::Button), 2);
  EXPECT_EQ(project.Control(Kind::Button, 2).Left, 135);
  EXPECT_EQ(project.Control(Kind::Button, 2).Tag, "A");
}

TEST(FormReader, ValuesAreNotCarriedFromFileToFile) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\a.ftn", WithForm("[Button](9) {A} Tip<left over>Tip\r\n"));
  project.Ports.Files.Put("C:\\Work\\b.ftn", "[Form](1) {G}\r\n[Button] {B}\r\n");
  project.LoadIndex("a.ftn\r\nb.ftn\r\n");
  EXPECT_EQ(project.Control(Kind::Button, 1, 2).ToolTipText, "");
  EXPECT_EQ(project.Form(2).Hint, "");
  EXPECT_EQ(project.Form(2).Buttons.UBound(), 1);
}

TEST(FormReader, AValueThatHoldsATagShiftsTheFieldsBehind) {
  FakeProject project;
  project.Load(WithForm("[Button](1) {A} String<top<5>String Left<1>Left Top<7>Top\r\n"));
  // The first "top<" stands in the caption; the first ">top" is that of the field.
  EXPECT_EQ(project.Control(Kind::Button).Top, 75);
  EXPECT_EQ(project.Control(Kind::Button).Caption, "top<5");
}

TEST(FormReader, AValueThatHoldsAClosingTagEndsThere) {
  FakeProject project;
  project.Load(WithForm("[Time](1) {T} Click<a >Click b>Click\r\n"));
  EXPECT_EQ(project.Code("Form1.Time1.OnTimer"), "a");
}

TEST(FormReader, AClosingTagAheadOfTheValueLeavesTheOldOne) {
  FakeProject project;
  project.Load(WithForm("[Button](1) {A} Tip<one>Tip\r\n[Button](2) {B} x>Tip Tip<two\r\n"));
  EXPECT_EQ(project.Control(Kind::Button, 2).ToolTipText, "one");
}

TEST(FormReader, TheBorderOfALabelIsTheOneOfALineBefore) {
  FakeProject project;
  project.Load(
      WithForm("[TextBox](1) {T} Border<0>Border\r\n[Label](1) {L} TabOrder<3>TabOrder\r\n"));
  // "TabOrder<" ends in "border<", yet nothing in the line ends a border.
  EXPECT_EQ(project.Control(Kind::Label).BorderStyle, 0);
}

TEST(FormReader, FacesOfButtonsTakeTheColourOfALineBefore) {
  FakeProject project;
  project.Load(
      WithForm("[TextBox](1) {T} Color<777>Color FontClr<888>FontClr\r\n[Button](1) {B}\r\n"
               "[CheckBox](1) {C}\r\n[OptionButton](1) {O}\r\n[ComboBox](1) {M}\r\n"));
  EXPECT_EQ(project.Control(Kind::Button).BackColor, 777);
  EXPECT_EQ(project.Control(Kind::CheckBox).BackColor, 777);
  EXPECT_EQ(project.Control(Kind::OptionButton).BackColor, 777);
  EXPECT_EQ(project.Control(Kind::ComboBox).ForeColor, 888);
  EXPECT_EQ(project.Control(Kind::ComboBox).BackColor, 16777215);
}

TEST(FormReader, TheBorderOfAListIsItsAppearance) {
  FakeProject project;
  project.Load(WithForm("[ListBox](1) {L} Border<0>Border\r\n"));
  EXPECT_EQ(project.Control(Kind::ListBox).Appearance, 0);
  EXPECT_EQ(project.Control(Kind::ListBox).BorderStyle, 1);
}

TEST(FormReader, TheStateIsKeptOnTheControlAndInTheRecord) {
  FakeProject project;
  project.Load(
      WithForm("[CheckBox](1) {C} Checked<2>Checked\r\n"
               "[OptionButton](1) {O} Checked<1>Checked\r\n"));
  EXPECT_EQ(project.Control(Kind::CheckBox).Value, 2);
  EXPECT_EQ(project.Record(Kind::CheckBox).Checked, 2);
  EXPECT_EQ(project.Control(Kind::OptionButton).Value, -1);
  EXPECT_EQ(project.Record(Kind::OptionButton).Checked, 1);
}

TEST(FormReader, ABadNumberReadsByItsHeadAndTextWithoutOneGivesNought) {
  FakeProject project;
  project.Load(
      WithForm("[Button](1) {A} Left<12abc>Left Cursor<abc>Cursor TabOrder< 7 >TabOrder "
               "Enabled<2.5>Enabled Visible<1e1>Visible\r\n"));
  EXPECT_EQ(project.Control(Kind::Button).Left, 180);
  EXPECT_EQ(project.Record(Kind::Button).Cursor, 0);
  EXPECT_EQ(project.Record(Kind::Button).TabOrder, 7);
  EXPECT_EQ(project.Record(Kind::Button).Enabled, 2);
  EXPECT_EQ(project.Record(Kind::Button).Visible, 10);
}

TEST(FormReader, ANumberThatDoesNotFitLeavesTheFieldAsItIs) {
  FakeProject project;
  project.Load(
      "[Form](1) {F} Width<40000>Width Left<32768>Left Color<3000000000>Color\r\n"
      "[Button](1) {A} Cursor<99999>Cursor FontClr<-3000000000>FontClr "
      "Left<1e60>Left FontSize<1e60>FontSize\r\n");
  EXPECT_EQ(project.Form().Width, 400);
  EXPECT_EQ(project.Form().Left, 0);
  EXPECT_EQ(project.User().BackColor, 12632256);
  // The window takes single precision and has the room.
  EXPECT_EQ(project.User().Width, 600000);
  EXPECT_EQ(project.Record(Kind::Button).Cursor, 0);
  EXPECT_EQ(project.Record(Kind::Button).FontColor, 0);
  EXPECT_EQ(project.Control(Kind::Button).Left, 0);
  EXPECT_EQ(project.Control(Kind::Button).FontSize, 8);
}

TEST(FormReader, LinesOfAnUnknownKindAreSkipped) {
  FakeProject project;
  project.Load(
      WithForm("[Gadget](1) {G} Left<1>Left\r\n[Images](1) {I}\r\n[](1) {E}\r\n"
               "[Frame](1) {R}\r\n[Button](1) {B}\r\n"));
  EXPECT_EQ(project.User().Controls().size(), DesignForm().Controls().size() + 1);
  EXPECT_EQ(project.Control(Kind::Button).Tag, "B");
  EXPECT_EQ(project.Ports.Log.Count("show"), 0U);
}

TEST(FormReader, FormAndMenuRecordsMustStandAtTheStartOfTheirLine) {
  FakeProject project;
  project.Load(
      WithForm(" [Form](1) {G}\r\n [Menu](1) {m} String<M>String Items<>Items\r\n"
               " [MenuItem](1) {i} Click<x>Click\r\n  [Button](1) {B}\r\n"));
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.User().UBound(Kind::Menu), 0);
  EXPECT_EQ(project.Code("Form1.i.OnClick"), "(none)");
  EXPECT_EQ(project.User().UBound(Kind::Button), 1);
}

TEST(FormReader, StringsTurnTheStoredLineBreakIntoLines) {
  FakeProject project;
  project.Load(
      WithForm("[TextBox](1) {T} String<a\x95"
               "b>String Tip<c\x95"
               "d>Tip\r\n"));
  // A caption that holds a bullet comes back split; a tip keeps it.
  EXPECT_EQ(project.Control(Kind::TextBox).Text, "a\r\nb");
  EXPECT_EQ(project.Control(Kind::TextBox).ToolTipText,
            "c\x95"
            "d");
}

TEST(FormReader, CodeIsRestoredAndTrimmed) {
  FakeProject project;
  project.Load(WithForm("[RichTextBox] (1)  {R} KeyPress<  a\x8D b\x95 c >KeyPress\r\n"));
  EXPECT_EQ(project.Code("Form1.RichTextBox1.OnKeyPress"), "a, b\r\n c");
}

TEST(FormReader, ItemsFillTheRecordAndTheControlsOwnList) {
  FakeProject project;
  project.Load(
      WithForm("[ListBox](1) {L} Items<a\x8C"
               "b\x95"
               "c\x95>Items\r\n"
               "[ComboBox](1) {C} Items<x\x8Cy>Items\r\n[ListBox](2) {E} Items<>Items\r\n"));
  EXPECT_EQ(project.Record(Kind::ListBox).Items,
            "a,b\x95"
            "c\x95");
  EXPECT_EQ(project.Control(Kind::ListBox).Items, (std::vector<std::string>{"a,b", "c"}));
  EXPECT_EQ(project.Control(Kind::ComboBox).Items, (std::vector<std::string>{"x", "y"}));
  EXPECT_TRUE(project.Control(Kind::ListBox, 2).Items.empty());
}

TEST(FormReader, TheNumberOfARecordIsThatOfTheFileAndTheControlTakesTheNextElement) {
  FakeProject project;
  project.Load(WithForm("[Button](5) {A} Cursor<1>Cursor Click<x>Click\r\n"));
  EXPECT_EQ(project.Form().Buttons.UBound(), 5);
  EXPECT_EQ(project.Record(Kind::Button, 5).Cursor, 1);
  EXPECT_EQ(project.Control(Kind::Button, 1).Tag, "A");
  EXPECT_EQ(project.Code("Form1.Button5.OnClick"), "x");
  // The writer closes the gap up.
  EXPECT_NE(project.Saved().find("[Button]   (1) {A}"), std::string::npos);
}

TEST(FormReader, ANumberNeverShrinksAnArray) {
  FakeProject project;
  project.Load(WithForm("[Button](5) {A}\r\n[Button](2) {B} Cursor<3>Cursor\r\n"));
  EXPECT_EQ(project.Form().Buttons.UBound(), 5);
  EXPECT_EQ(project.Record(Kind::Button, 2).Cursor, 3);
}

TEST(FormReader, NumberNoughtUsesTheUnusedSlot) {
  FakeProject project;
  project.Load(WithForm("[Button](x) {A} Cursor<3>Cursor Click<c>Click\r\n"));
  EXPECT_EQ(project.Form().Buttons.UBound(), 0);
  EXPECT_EQ(project.Record(Kind::Button, 0).Cursor, 3);
  EXPECT_EQ(project.Code("Form1.Button0.OnClick"), "c");
}

TEST(FormReader, ANegativeOrTooLargeNumberStoresNoRecordButTheControlIsMade) {
  for (const char* number : {"-1", "32768", "1e9"}) {
    FakeProject project;
    project.Load(WithForm(std::string("[Button](") + number +
                          ") {A} Left<4>Left Cursor<3>Cursor Click<c>Click\r\n"));
    EXPECT_EQ(project.Form().Buttons.UBound(), 0) << number;
    EXPECT_EQ(project.Control(Kind::Button).Left, 60) << number;
    EXPECT_EQ(project.Tables.EventTable.Find("Form1.Button0.OnClick"), nullptr);
  }
}

TEST(FormReader, ASecondObjectOfANumberOverwritesTheRecordButNotTheCode) {
  FakeProject project;
  project.Load(
      WithForm("[Button](1) {A} Cursor<1>Cursor Click<first>Click\r\n"
               "[Button](1) {B} Cursor<2>Cursor Click<second>Click\r\n"));
  EXPECT_EQ(project.Record(Kind::Button).Cursor, 2);
  EXPECT_EQ(project.Code("Form1.Button1.OnClick"), "first");
  EXPECT_EQ(project.User().UBound(Kind::Button), 2);
}

TEST(FormReader, KindsWithoutANumberTakeTheOneBefore) {
  FakeProject project;
  project.Load(
      WithForm("[HtmlViewer] (2) {H} String<p.htm>String \r\n"
               "[WinSock] {W} Left<1>Left Tip<AF >Tip Cursor<P>Cursor String<S>String "
               "Items<1\x8C"
               "2>Items\r\n[FileStream] {S}\r\n"));
  EXPECT_EQ(project.Form().HtmlViewers.At(2)->Navigate, "p.htm");
  ASSERT_EQ(project.Form().WinSocks.UBound(), 2);
  const WinSockRec& socket = *project.Form().WinSocks.At(2);
  EXPECT_EQ(socket.Family, "AF ");
  EXPECT_EQ(socket.Protocol, "P");
  EXPECT_EQ(socket.Type, "S");
  EXPECT_EQ(socket.WMessage, "1,2");
  EXPECT_EQ(project.Control(Kind::WinSock).Left, 15);
  EXPECT_EQ(project.Control(Kind::FileStream).Tag, "S");
}

TEST(FormReader, AFramesValuesGoToTheFormAndItsControlStandsWhereTheySay) {
  FakeProject project;
  project.Load(
      WithForm("[TransparentFrame] {T} Left<1>Left Top<2>Top Width<3>Width "
               "Height<4>Height Tip<t>Tip Cursor<5>Cursor String<6>String Items<7>Items "
               "Transparent<80000>Transparent Visible<1>Visible Enabled<1>Enabled\r\n"));
  const FormRec& form = project.Form();
  EXPECT_EQ(form.TfLeft, 1);
  EXPECT_EQ(form.TfTop, 2);
  EXPECT_EQ(form.TfWidth, 3);
  EXPECT_EQ(form.TfHeight, 4);
  EXPECT_EQ(form.TfCursor, 5);
  EXPECT_EQ(form.TfAlign, 6);
  EXPECT_EQ(form.TfTransparency, 7);
  EXPECT_EQ(form.TfTranspColor, 80000);
  const DesignControl& frame = project.Control(Kind::TransparentFrame);
  EXPECT_EQ(frame.Left, 15);
  EXPECT_EQ(frame.Top, 30);
  EXPECT_EQ(frame.Width, 45);
  EXPECT_EQ(frame.Height, 60);
  EXPECT_EQ(frame.ToolTipText, "t");
}

TEST(FormReader, SmallKindsTakeOnlyTheirPlace) {
  FakeProject project;
  project.Load(
      WithForm("[Button](1) {B} Width<99>Width Height<98>Height\r\n"
               "[Time](1) {T} Left<1>Left Top<2>Top Enabled<1>Enabled Tip<500>Tip\r\n"
               "[OpenDialog](1) {O} String<t>String Tip<f>Tip Width<w>Width "
               "Height<h>Height\r\n[FileStream] {F}\r\n[PopUpMenu](1) {P} "
               "Width<Form1>Width Items<>Items\r\n"));
  for (const Kind kind : {Kind::Time, Kind::OpenDialog, Kind::FileStream, Kind::PopUpMenu}) {
    EXPECT_EQ(project.Control(kind).Width, 28 * 15) << InfoOf(kind).Name;
    EXPECT_EQ(project.Control(kind).Height, 28 * 15) << InfoOf(kind).Name;
  }
  EXPECT_EQ(project.Record(Kind::Time).Interval, 500);
  const ObjectRec& dialog = project.Record(Kind::OpenDialog);
  EXPECT_EQ(dialog.Title, "t");
  EXPECT_EQ(dialog.Filter, "f");
  EXPECT_EQ(dialog.FileName, "w");
  EXPECT_EQ(dialog.InitialDir, "h");
}

TEST(FormReader, PicturesAreLoadedByFullPathUnderAResourceName) {
  FakeProject project;
  project.Load(
      WithForm("[Button](1) {B} Image<p.bmp>Image\r\n[Image](2) {I} Image<c:\\q.ico>Image\r\n"
               "[Button](3) {N} Image<(None)>Image\r\n[Button](4) {E} Image<>Image\r\n"));
  EXPECT_EQ(project.Control(Kind::Button).Picture, "C:\\Work\\p.bmp");
  EXPECT_EQ(project.Record(Kind::Button).Title, "Frm1Btn1_Bmp");
  EXPECT_EQ(project.Record(Kind::Button).ImageFile, "p.bmp");
  EXPECT_EQ(project.Control(Kind::Image).Picture, "c:\\q.ico");
  EXPECT_EQ(project.Record(Kind::Image, 2).Title, "Frm1Image2_Bmp");
  EXPECT_EQ(project.Control(Kind::Button, 2).Picture, "");
  EXPECT_EQ(project.Record(Kind::Button, 3).Title, "");
  EXPECT_EQ(project.Control(Kind::Button, 3).Picture, "");
}

TEST(FormReader, TheOrderOfLinesDecidesTheElements) {
  FakeProject project;
  project.Load(WithForm("[Button](2) {B}\r\n[Button](1) {A}\r\n"));
  EXPECT_EQ(project.Control(Kind::Button, 1).Tag, "B");
  EXPECT_EQ(project.Control(Kind::Button, 2).Tag, "A");
}

TEST(FormReader, EmptyLinesAndALastLineEndAreSkipped) {
  FakeProject project;
  project.Load("\r\n\r\n[Form](1) {F} Width<30>Width\r\n\r\n[Button](1) {B}\r\n\r\n");
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.Form().Width, 30);
  EXPECT_EQ(project.User().UBound(Kind::Button), 1);
}

TEST(FormReader, TheNextTabOrderIsTheHighestReadPlusOne) {
  FakeProject project;
  project.Load(
      WithForm("[Button](1) {A} TabOrder<7>TabOrder\r\n[Button](2) {B} TabOrder<2>TabOrder\r\n"));
  EXPECT_EQ(project.User().NextTabOrder, 8);
  FakeProject empty;
  empty.Load(WithForm(""));
  EXPECT_EQ(empty.User().NextTabOrder, 0);
}

TEST(FormReader, ASecondFormOfAFileBecomesAFormOfItsOwn) {
  FakeProject project;
  project.Load("[Form](1) {F}\r\n[Button](1) {A}\r\n[Form](2) {G}\r\n[Button](1) {B}\r\n");
  ASSERT_EQ(project.Tables.FormsCount, 2);
  EXPECT_EQ(project.Form(2).Name, "G");
  EXPECT_EQ(project.Form(2).FileName, "C:\\Work\\a.ftn");
  EXPECT_EQ(project.Control(Kind::Button, 1, 2).Tag, "B");
}

TEST(FormReader, AFormThatIsThereAlreadyIsRefusedAndTheFileReadNoFurther) {
  FakeProject project;
  project.Load(WithForm("[Button](1) {A}\r\n"));
  project.Ports.Files.Put("C:\\Other\\A.FTN", "[Form](1) {f}\r\n[Button](1) {B}\r\n");
  EXPECT_EQ(project::ReadFormFile(project.Context, "C:\\Other\\A.FTN"), FormReadResult::Refused);
  EXPECT_EQ(project.Ports.Log.Count("show f already exist!"), 1U);
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.User().UBound(Kind::Button), 1);
  EXPECT_EQ(project.Form().FileName, "C:\\Work\\a.ftn");
}

TEST(FormReader, TwoFormsMayShareANameWhenTheirFilesDiffer) {
  FakeProject project;
  project.Ports.Files.Put("C:\\Work\\a.ftn", "[Form](1) {F}\r\n");
  project.Ports.Files.Put("C:\\Work\\b.ftn", "[Form](1) {F}\r\n");
  project.LoadIndex("a.ftn\r\nb.ftn\r\n");
  EXPECT_EQ(project.Tables.FormsCount, 2);
  EXPECT_EQ(project.Ports.Log.Count("show"), 0U);
}

TEST(FormReader, WithoutAFormRecordObjectsGoToTheFormBefore) {
  FakeProject project;
  project.Load(WithForm(""));
  project.Ports.Files.Put("C:\\Work\\b.ftn", "[Button](1) {B}\r\n");
  EXPECT_EQ(project::ReadFormFile(project.Context, "C:\\Work\\b.ftn"), FormReadResult::NoForm);
  EXPECT_EQ(project.Control(Kind::Button).Tag, "B");
}

TEST(FormReader, CodeInAFileWithoutAFormRecordHasTheKeyOfTheFormBefore) {
  FakeProject project;
  project.Load(WithForm(""));
  project.Ports.Files.Put("C:\\Work\\b.ftn",
                          "[Button](1) {B} Click<Beep>Click\r\n[Sub]{mnuX} Click<Halt>Click\r\n");
  project::ReadFormFile(project.Context, "C:\\Work\\b.ftn");
  EXPECT_EQ(project.Code("Form1.Button1.OnClick"), "Beep");
  EXPECT_EQ(project.Code("Form1.mnuX.OnClick"), "Halt");
}

TEST(FormReader, AFileWithoutAFormRecordMakesNoObjectWhileThereIsNoForm) {
  FakeProject project;
  project.Load("[Button](1) {B} Click<Beep>Click\r\n");
  ASSERT_EQ(project.Tables.FormsCount, 1) << "the empty form that every project has";
  EXPECT_EQ(project.User().UBound(Kind::Button), 0);
  EXPECT_EQ(project.Code("Form1.Button1.OnClick"), "(none)");
}

TEST(FormReader, AWholeRecordWithEmptyBracketsKeepsItsNameAndValues) {
  FakeProject written;
  written.Load(
      WithForm("[Button](1) {Ok} String<Go>String Cursor<4>Cursor Image<(None)>Image "
               "Tip<Press>Tip Click<Beep>Click\r\n"));
  std::string text = written.Saved();
  const std::string head = "[Button]   (1) {Ok}";
  const std::size_t at = text.find(head);
  ASSERT_NE(at, std::string::npos);
  text.replace(at, head.size(), "[Button]   () {Ok}");
  FakeProject project;
  project.Load(text);
  const DesignControl& button = project.Control(Kind::Button);
  EXPECT_EQ(button.Tag, "Ok");
  EXPECT_EQ(button.Caption, "Go");
  EXPECT_EQ(button.ToolTipText, "Press");
  // No digits are the number 0.
  EXPECT_EQ(project.Record(Kind::Button, 0).Cursor, 4);
  EXPECT_EQ(project.Code("Form1.Button0.OnClick"), "Beep");
}

TEST(FormReader, AFileThatCannotBeReadChangesNothing) {
  FakeProject project;
  project.Load(WithForm(""));
  EXPECT_EQ(project::ReadFormFile(project.Context, "C:\\Work\\none.ftn"),
            FormReadResult::Unreadable);
  EXPECT_EQ(project.Tables.FormsCount, 1);
}

TEST(FormReader, TheLoadingMarkIsTakenBackAtTheEnd) {
  FakeProject project;
  project.Load(WithForm(""));
  EXPECT_EQ(project.Tables.LoadingProject, 0);
  project.Ports.Files.Put("C:\\Work\\b.ftn", "[Form](1) {G}\r\n");
  project::ReadFormFile(project.Context, "C:\\Work\\b.ftn");
  EXPECT_EQ(project.Tables.LoadingProject, 0);
}

TEST(FormReader, ReadingBackIntoANumberKeepsListFileAndCount) {
  FakeProject project;
  project.Load(WithForm("[Button](1) {A}\r\n"));
  project.Tables.CurrentForm = &project.User();
  project.Ports.Log.Clear();
  EXPECT_EQ(project::ReadFormTextInto(project.Context,
                                      "[Form](1) {New} Width<50>Width\r\n[Label](1) {L}\r\n", 1),
            FormReadResult::Read);
  EXPECT_EQ(project.Tables.FormsCount, 1);
  EXPECT_EQ(project.Tables.ListaFrms.Lines().size(), 1U);
  EXPECT_EQ(project.Form().FileName, "C:\\Work\\a.ftn");
  EXPECT_EQ(project.Form().Name, "New");
  EXPECT_EQ(project.User().UBound(Kind::Button), 0);
  EXPECT_EQ(project.User().UBound(Kind::Label), 1);
  EXPECT_EQ(project.Tables.CurrentForm, &project.User());
  EXPECT_EQ(project.Ports.Log.Entries(),
            (std::vector<std::string>{"closing 1", "opened 1", "bar 1"}))
      << "the views hear of the new window";
}

TEST(FormReader, ATextWithoutAFormLeavesTheLiveFormAsItWas) {
  FakeProject project;
  project.Load(WithForm("[Button](1) {A} Cursor<4>Cursor\r\n"));
  const std::string before = project.Saved();
  EXPECT_EQ(project::ReadFormTextInto(project.Context, "[Label](1) {L}\r\n", 1),
            FormReadResult::NoForm);
  EXPECT_EQ(project.Saved(), before);
  EXPECT_EQ(project::ReadFormTextInto(project.Context, "[Form](1) {L}\r\n", 2),
            FormReadResult::Unreadable);
  EXPECT_EQ(project.Saved(), before);
}

}  // namespace
}  // namespace tarnwick::test
