#include "designer/object_kinds.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/new_form.h"

namespace tarnwick {
namespace {

class ObjectKinds : public ::testing::Test {
 protected:
  ControlRef Create(Kind kind) { return CreateObject(tables, form, kind, 150, 300); }

  ProjectTables tables;
  int number = AddForm(tables);
  DesignForm& form = *tables.User(number);
  FormRec& record = *tables.Form(number);
};

TEST_F(ObjectKinds, EveryObjectKindAndTheFrameCanBeArmed) {
  for (const char* word :
       {"PopUpMenu", "WinSock", "HtmlViewer", "TransparentFrame", "FileStream", "Time",
        "OpenDialog", "SaveDialog", "ComboBox", "Button", "TextBox", "Label", "ListBox", "Image",
        "RichTextBox", "CheckBox", "OptionButton", "Frame"}) {
    const auto kind = ArmedKind(word);
    ASSERT_TRUE(kind) << word;
    EXPECT_EQ(InfoOf(*kind).Name, word);
  }
}

TEST_F(ObjectKinds, OnlyKindWordsArm) {
  EXPECT_EQ(ArmedKind("PopUpMenu"), Kind::PopUpMenu);
  EXPECT_EQ(ArmedKind("Image"), Kind::Image);
  EXPECT_EQ(ArmedKind("Form"), std::nullopt);
  EXPECT_EQ(ArmedKind(""), std::nullopt);
  EXPECT_EQ(ArmedKind("button"), std::nullopt);
  EXPECT_EQ(ArmedKind("Menu"), std::nullopt);
}

TEST_F(ObjectKinds, ANewObjectHasItsPlaceAndNameAndIsShown) {
  const ControlRef button = Create(Kind::Button);
  EXPECT_EQ(button->Left, 150);
  EXPECT_EQ(button->Top, 300);
  EXPECT_EQ(button->Tag, "Form1Btn1");
  EXPECT_EQ(button->Caption, "Form1Btn1");
  EXPECT_EQ(button->Text, "") << "a button has no text to take";
  EXPECT_TRUE(button->Items.empty());
  EXPECT_TRUE(button->Visible);
}

TEST_F(ObjectKinds, DefaultNamesFollowThePrefixes) {
  struct Named {
    Kind Id;
    const char* Name;
  };
  const Named names[] = {
      {Kind::Button, "Form1Btn1"},
      {Kind::Label, "Form1Label1"},
      {Kind::Image, "Form1Image1"},
      {Kind::CheckBox, "Form1Check1"},
      {Kind::OptionButton, "Form1OptionBtn1"},
      {Kind::TextBox, "Form1Text1"},
      {Kind::RichTextBox, "Form1RichText1"},
      {Kind::ListBox, "Form1List1"},
      {Kind::ComboBox, "Form1Combo1"},
      {Kind::Time, "Form1Time1"},
      {Kind::OpenDialog, "Form1OpenDlg1"},
      {Kind::SaveDialog, "Form1SaveDlg1"},
      {Kind::FileStream, "Form1FileStr1"},
      {Kind::TransparentFrame, "Form1TrnspFrm"},
      {Kind::HtmlViewer, "Form1Html1"},
      {Kind::WinSock, "Form1Sock1"},
      {Kind::PopUpMenu, "Form1pMenu1"},
  };
  for (const Named& named : names) EXPECT_EQ(Create(named.Id)->Tag, named.Name);
  EXPECT_EQ(Create(Kind::Button)->Tag, "Form1Btn2");
}

TEST_F(ObjectKinds, RecordDefaultsPerKind) {
  Create(Kind::Button);
  const ObjectRec& button = *record.Buttons.At(1);
  EXPECT_EQ(button.Enabled, 1);
  EXPECT_EQ(button.Visible, 1);
  EXPECT_EQ(button.ImageFile, "(None)");
  EXPECT_EQ(button.Title, "(None)");
  Create(Kind::Image);
  const ObjectRec& image = *record.Images.At(1);
  EXPECT_EQ(image.ImageFile, "(None)");
  EXPECT_EQ(image.PictureName, "(None)");
  EXPECT_EQ(image.Title, "");
  EXPECT_EQ(image.Enabled, 1);
  EXPECT_EQ(image.Visible, 1);
  for (const Kind kind : {Kind::OpenDialog, Kind::SaveDialog}) {
    Create(kind);
    EXPECT_EQ(record.Objects(kind)->At(1)->Filter, "All Files|*.*");
    EXPECT_EQ(record.Objects(kind)->At(1)->Enabled, 0);
  }
  for (const Kind kind : {Kind::ComboBox, Kind::TextBox, Kind::Label, Kind::ListBox,
                          Kind::RichTextBox, Kind::CheckBox, Kind::OptionButton}) {
    Create(kind);
    EXPECT_EQ(record.Objects(kind)->At(1)->Enabled, 1) << InfoOf(kind).Name;
    EXPECT_EQ(record.Objects(kind)->At(1)->Visible, 1) << InfoOf(kind).Name;
  }
  Create(Kind::Time);
  EXPECT_EQ(record.Times.At(1)->Enabled, 0);
  EXPECT_EQ(record.ComboItems.UBound(), 1);
}

TEST_F(ObjectKinds, ANewWinSockHasItsFourTexts) {
  Create(Kind::WinSock);
  const WinSockRec& sock = *record.WinSocks.At(1);
  EXPECT_EQ(sock.Family, "AF_INET ");
  EXPECT_EQ(sock.Protocol, "IPPROTO_IP");
  EXPECT_EQ(sock.Type, "SOCK_STREAM");
  EXPECT_EQ(sock.WMessage, "0");
}

TEST_F(ObjectKinds, ANewHtmlViewerFillsTheClientArea) {
  Create(Kind::HtmlViewer);
  const HtmlViewerRec& viewer = *record.HtmlViewers.At(1);
  EXPECT_EQ(viewer.Navigate, "(None)");
  EXPECT_EQ(viewer.Left, "0");
  EXPECT_EQ(viewer.Top, "0");
  EXPECT_EQ(viewer.Width, "Form.ClientWidth");
  EXPECT_EQ(viewer.Height, "Form.ClientHeight");
}

TEST_F(ObjectKinds, ANewPopUpHangsOnItsFormAndHasNoRows) {
  Create(Kind::PopUpMenu);
  const PopUpItemRec& item = *record.PopUps.At(1);
  EXPECT_EQ(item.Alignment, 0);
  EXPECT_EQ(item.AutoPopUp, 1);
  EXPECT_EQ(item.PopUpMenu, "Form1");
  const PopUpFormRec& rows = *tables.PopUpMenus.At(1);
  ASSERT_EQ(rows.Items.size(), 1U);
  EXPECT_EQ(rows.Items[0].Entries.size(), 1U);
}

TEST_F(ObjectKinds, PopUpsOfTheSameNumberShareTheirRowsAcrossForms) {
  Create(Kind::PopUpMenu);
  tables.PopUpMenus.At(1)->Items.resize(3);
  const int second = NewForm(tables);
  CreateObject(tables, *tables.User(second), Kind::PopUpMenu, 0, 0);
  EXPECT_EQ(tables.PopUpMenus.UBound(), 1);
  EXPECT_EQ(tables.PopUpMenus.At(1)->Items.size(), 3U) << "rows of the older popup stay";
}

TEST_F(ObjectKinds, APopUpInTheSlotOfADeletedOneBeginsWithoutRows) {
  const ControlRef popup = Create(Kind::PopUpMenu);
  tables.PopUpMenus.At(1)->Items.resize(3);
  tables.PopUpMenus.At(1)->Removed = 1;
  DeleteObject(tables, form, popup);
  Create(Kind::PopUpMenu);
  EXPECT_EQ(tables.PopUpMenus.At(1)->Items.size(), 1U);
  EXPECT_EQ(tables.PopUpMenus.At(1)->Removed, 0);
}

TEST_F(ObjectKinds, TheTransparentFramesValuesLieInTheFormsRecord) {
  // What a frame that was deleted left behind.
  for (std::int16_t FormRec::*field :
       {&FormRec::TfTop, &FormRec::TfLeft, &FormRec::TfWidth, &FormRec::TfHeight,
        &FormRec::TfTransparency, &FormRec::TfAlign, &FormRec::TfCursor}) {
    record.*field = 7;
  }
  record.TfTranspColor = 7;
  record.TfString = "x";
  const ControlRef frame = Create(Kind::TransparentFrame);
  EXPECT_EQ(frame->Tag, "Form1TrnspFrm");
  EXPECT_EQ(record.TfTop, 0);
  EXPECT_EQ(record.TfLeft, 0);
  EXPECT_EQ(record.TfWidth, 105);
  EXPECT_EQ(record.TfHeight, 105);
  EXPECT_EQ(record.TfTransparency, 60);
  EXPECT_EQ(record.TfAlign, 5);
  EXPECT_EQ(record.TfCursor, 0);
  EXPECT_EQ(record.TfTranspColor, 0);
  EXPECT_EQ(record.TfString, "");
}

TEST_F(ObjectKinds, TabOrdersRunThroughTheForm) {
  for (const Kind kind : {Kind::Button, Kind::TextBox, Kind::ListBox, Kind::ComboBox,
                          Kind::CheckBox, Kind::OptionButton}) {
    const std::int16_t next = form.NextTabOrder;
    Create(kind);
    EXPECT_EQ(record.Objects(kind)->At(1)->TabOrder, next) << InfoOf(kind).Name;
    EXPECT_EQ(form.NextTabOrder, next + 1) << InfoOf(kind).Name;
  }
  EXPECT_EQ(record.Buttons.At(1)->TabOrder, 0) << "the first object of a form";
  for (const Kind kind : {Kind::Label, Kind::Image, Kind::Time, Kind::WinSock}) Create(kind);
  EXPECT_EQ(form.NextTabOrder, 6) << "these take no part";
}

TEST_F(ObjectKinds, AFrameRaisesTheTabOrderAndStoresNothing) {
  const ControlRef frame = Create(Kind::Frame);
  EXPECT_EQ(frame->Caption, frame->Tag);
  EXPECT_EQ(form.NextTabOrder, 1);
}

TEST_F(ObjectKinds, TheThirdNoneOfAnImageGoesToTheButtonOfItsIndex) {
  Create(Kind::Button);
  record.Buttons.At(1)->Title = "Frm1Btn1_Bmp";
  Create(Kind::Image);
  EXPECT_EQ(record.Buttons.At(1)->Title, "(None)");
  EXPECT_EQ(record.Images.At(1)->Title, "");
}

TEST_F(ObjectKinds, OnAFormWithFewerButtonsTheThirdNoneGoesNowhere) {
  Create(Kind::Image);
  EXPECT_EQ(record.Buttons.UBound(), 0);
  EXPECT_EQ(record.Images.At(1)->Title, "");
}

TEST_F(ObjectKinds, TheTabOrderOfARichTextBoxGoesToTheTextBoxOfItsIndex) {
  Create(Kind::Button);
  Create(Kind::TextBox);
  ASSERT_EQ(record.TextBoxes.At(1)->TabOrder, 1);
  Create(Kind::RichTextBox);
  EXPECT_EQ(record.TextBoxes.At(1)->TabOrder, 2);
  EXPECT_EQ(record.RichTextBoxes.At(1)->TabOrder, 0);
  EXPECT_EQ(form.NextTabOrder, 3);
}

TEST_F(ObjectKinds, WithoutTextBoxesTheTabOrderOfARichTextBoxGoesNowhereAndIsUsedUp) {
  Create(Kind::RichTextBox);
  EXPECT_EQ(record.TextBoxes.UBound(), 0);
  EXPECT_EQ(record.RichTextBoxes.At(1)->TabOrder, 0);
  EXPECT_EQ(form.NextTabOrder, 1);
}

TEST_F(ObjectKinds, ElevenEntriesComeUnderTheObjectsNameWhateverItsKind) {
  const std::size_t before = tables.EventTable.Size();
  Create(Kind::OpenDialog);
  EXPECT_EQ(tables.EventTable.Size(), before + 11);
  for (const char* suffix :
       {".OnTimer", ".OnClick", ".OnDblClick", ".OnKeyDown", ".OnKeyPress", ".OnKeyUp",
        ".OnMouseDown", ".OnMouseMove", ".OnMouseUp", ".OnEnter", ".OnChange"}) {
    const std::string* code = tables.EventTable.Find("Form1.Form1OpenDlg1" + std::string(suffix));
    ASSERT_NE(code, nullptr) << suffix;
    EXPECT_EQ(*code, "");
  }
  EXPECT_EQ(tables.EventTable.Find("Form1.OpenDialog1.OnClick"), nullptr);
}

TEST_F(ObjectKinds, AnEntryThatIsThereKeepsItsCode) {
  tables.EventTable.Add("Form1.Form1Btn1.OnClick", "Beep");
  Create(Kind::Button);
  EXPECT_EQ(*tables.EventTable.Find("Form1.Form1Btn1.OnClick"), "Beep");
}

TEST_F(ObjectKinds, ADeletionTakesTheNamesEntriesAndLeavesTheCodeAndTheRecord) {
  const std::size_t before = tables.EventTable.Size();
  const ControlRef button = Create(Kind::Button);
  tables.EventTable.Add("Form1.Button1.OnClick", "Beep");
  DeleteObject(tables, form, button);
  EXPECT_EQ(tables.EventTable.Size(), before + 1);
  EXPECT_EQ(*tables.EventTable.Find("Form1.Button1.OnClick"), "Beep");
  EXPECT_EQ(record.Buttons.UBound(), 1);
  EXPECT_EQ(record.Buttons.At(1)->Enabled, 1);
  EXPECT_FALSE(button->Visible);
  EXPECT_EQ(form.Element(Kind::Button, 1), nullptr);
}

TEST_F(ObjectKinds, ADeletedImageForgetsItsPicture) {
  const ControlRef image = Create(Kind::Image);
  record.Images.At(1)->ImageFile = "a.bmp";
  DeleteObject(tables, form, image);
  EXPECT_EQ(record.Images.At(1)->ImageFile, "");
}

TEST_F(ObjectKinds, AReusedSlotGetsAFreshRecordAndGrowsNothing) {
  Create(Kind::ListBox);
  const ControlRef second = Create(Kind::ListBox);
  record.ListBoxes.At(2)->Items = "old";
  DeleteObject(tables, form, second);
  Create(Kind::ListBox);
  EXPECT_EQ(record.ListBoxes.UBound(), 2);
  EXPECT_EQ(record.ListBoxes.At(2)->Items, "");
}

TEST_F(ObjectKinds, AWindowWithoutANumberTakesNoObject) {
  DesignForm stray;
  EXPECT_EQ(CreateObject(tables, stray, Kind::Button, 0, 0), nullptr);
  EXPECT_EQ(stray.UBound(Kind::Button), 0);
}

}  // namespace
}  // namespace tarnwick
