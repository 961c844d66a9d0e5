#include "model/kinds.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "text/strings.h"

namespace tarnwick {
namespace {

constexpr std::string_view kKeyDown = "OnKeyDown (Key As Word, Shift As Integer)";
constexpr std::string_view kMouseDown =
    "OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)";
constexpr std::string_view kMouseMove =
    "OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)";
constexpr std::string_view kMouseUp =
    "OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)";

TEST(Kinds, AnIndexedWordNamesItsKindInAnyCase) {
  EXPECT_EQ(KindOfNameObjet("Button12"), Kind::Button);
  EXPECT_EQ(KindOfNameObjet("popupmenu1"), Kind::PopUpMenu);
  EXPECT_EQ(KindOfNameObjet("TransparentFrame"), Kind::TransparentFrame);
  EXPECT_EQ(KindOfNameObjet("Form"), Kind::Form);
  // Names of menu items and array names are no kind words.
  for (const char* name : {"", "7", "mnuOpen", "PopUpMnu1", "Images2", "Buttons1"}) {
    EXPECT_EQ(KindOfNameObjet(name), std::nullopt) << name;
  }
}

TEST(Kinds, EveryKindHasItsWords) {
  struct Row {
    Kind Id;
    std::string_view Name, Tag, Array, Prefix;
  };
  for (const Row& row : std::vector<Row>{
           {Kind::Button, "Button", "button", "Button", "Btn"},
           {Kind::Label, "Label", "label", "Label", "Label"},
           {Kind::Image, "Image", "images", "Images", "Image"},
           {Kind::CheckBox, "CheckBox", "checkbox", "CheckBox", "Check"},
           {Kind::OptionButton, "OptionButton", "optionbutton", "OptionButton", "OptionBtn"},
           {Kind::TextBox, "TextBox", "textbox", "TextBox", "Text"},
           {Kind::RichTextBox, "RichTextBox", "richtextbox", "RichTextBox", "RichText"},
           {Kind::ListBox, "ListBox", "listbox", "ListBox", "List"},
           {Kind::ComboBox, "ComboBox", "combobox", "ComboBox", "Combo"},
           {Kind::Time, "Time", "time", "Time", "Time"},
           {Kind::OpenDialog, "OpenDialog", "opendialog", "OpenDialog", "OpenDlg"},
           {Kind::SaveDialog, "SaveDialog", "savedialog", "SaveDialog", "SaveDlg"},
           {Kind::FileStream, "FileStream", "filestream", "FileStream", "FileStr"},
           {Kind::TransparentFrame, "TransparentFrame", "transparentframe", "TransparentFrame",
            "TrnspFrm"},
           {Kind::HtmlViewer, "HtmlViewer", "htmlviewer", "HtmlViewer", "Html"},
           {Kind::WinSock, "WinSock", "winsock", "WinSock", "Sock"},
           {Kind::PopUpMenu, "PopUpMenu", "popupmnu", "PopUpMnu", "pMenu"},
       }) {
    const KindInfo& info = InfoOf(row.Id);
    EXPECT_EQ(info.Id, row.Id);
    EXPECT_EQ(info.Name, row.Name);
    EXPECT_EQ(info.Tag, row.Tag) << row.Name;
    EXPECT_EQ(info.Array, row.Array) << row.Name;
    EXPECT_EQ(info.Prefix, row.Prefix) << row.Name;
    EXPECT_EQ(KindOfTag(row.Tag), row.Id);
    EXPECT_EQ(KindOfFileWord(row.Name), row.Id);
  }
  EXPECT_EQ(InfoOf(Kind::Form).Prefix, "Form");
  EXPECT_EQ(InfoOf(Kind::Menu).Array, "mnuBar");
  EXPECT_EQ(InfoOf(Kind::MenuItem).Array, "ItemMnuBar");
}

TEST(Kinds, AWordOfAFileNamesItsKindInAnyCase) {
  EXPECT_EQ(KindOfFileWord("RICHtextbox"), Kind::RichTextBox);
  EXPECT_EQ(KindOfFileWord("popupmenu"), Kind::PopUpMenu);
  // Array names are no words of a file, and heads of other records name no object.
  for (const char* word : {"images", "popupmnu", "mnubar", "menu", "form", "frame", "numero", ""}) {
    EXPECT_EQ(KindOfFileWord(word), std::nullopt) << word;
  }
}

TEST(Kinds, EveryEventListIsItsLiteral) {
  struct Row {
    std::string_view Tag;
    std::string Signatures;
    std::string_view Codes;
  };
  const std::string keys =
      std::string(kKeyDown) + "#OnKeyPress (Key As Byte)#OnKeyUp (Key As Word, Shift As Integer)#";
  const std::string mouse =
      std::string(kMouseDown) + "#" + std::string(kMouseMove) + "#" + std::string(kMouseUp) + "#";
  const std::string picture = "OnClick#OnDblClick#" + mouse;
  for (const Row& row : std::vector<Row>{
           {"form",
            "OnClick#OnClose (Action As Integer)#OnHint (Hint As String)#" + keys + mouse +
                "OnPaint#OnResize#OnShow#",
            "10#20#30#40#50#60#70#80#90#130#140#150#"},
           {"button", "OnClick#" + keys + mouse, "10#40#50#60#70#80#90#"},
           {"textbox", "OnChange#" + keys, "120#40#50#60#"},
           {"richtextbox", "OnChange#" + keys + mouse, "120#40#50#60#70#80#90#"},
           {"label", picture, "10#110#70#80#90#"},
           {"images", picture, "10#110#70#80#90#"},
           {"listbox", "OnClick#OnDblClick#OnEnter#", "10#110#100#"},
           {"checkbox", "OnClick#", "10#"},
           {"combobox", "OnChange#", "120#"},
           {"time", "OnTimer#", "160#"},
           {"popupmnu", "OnPopUp#", "170#"},
       }) {
    const EventList& list = EventListOfTag(row.Tag);
    EXPECT_EQ(list.Signatures, row.Signatures) << row.Tag;
    EXPECT_EQ(list.Codes, row.Codes) << row.Tag;
  }
}

TEST(Kinds, SignaturesAndCodesOfAListSplitIntoParallelArraysWithAnEmptyEnd) {
  for (const KindInfo& kind : AllKinds()) {
    const EventList& list = EventListOfTag(kind.Tag);
    const auto signatures = Split(list.Signatures, "#");
    const auto codes = Split(list.Codes, "#");
    ASSERT_EQ(signatures.size(), list.Events.size() + 1) << kind.Tag;
    ASSERT_EQ(codes.size(), signatures.size());
    EXPECT_EQ(signatures.back(), "");
    EXPECT_EQ(codes.back(), "");
    for (std::size_t i = 0; i < list.Events.size(); ++i) {
      EXPECT_EQ(signatures[i], InfoOf(list.Events[i]).Signature);
      EXPECT_EQ(codes[i], InfoOf(list.Events[i]).Code);
    }
  }
}

TEST(Kinds, MenuOptionButtonAndCheckBoxHaveTheSameListOfOneEvent) {
  for (const char* tag : {"menu", "optionbutton", "checkbox"}) {
    EXPECT_EQ(EventListOfTag(tag).Signatures, "OnClick#") << tag;
    EXPECT_EQ(EventListOfTag(tag).Codes, "10#") << tag;
  }
}

TEST(Kinds, ImageAndImagesBothSelectThePictureList) {
  EXPECT_EQ(EventListOfTag("image").Codes, "10#110#70#80#90#");
  EXPECT_EQ(EventListOfTag("images").Codes, EventListOfTag("image").Codes);
  EXPECT_NE(InfoOf(Kind::Image).Array, InfoOf(Kind::Image).Name);
}

TEST(Kinds, BothWordsOfAPopUpMenuSelectItsList) {
  EXPECT_EQ(EventListOfTag("popupmenu").Codes, "170#");
  EXPECT_EQ(EventListOfTag("popupmnu").Codes, "170#");
}

TEST(Kinds, SixKindsHaveNoEventList) {
  for (const char* tag :
       {"filestream", "opendialog", "savedialog", "transparentframe", "htmlviewer", "winsock"}) {
    EXPECT_TRUE(KindOfTag(tag)) << tag;
    EXPECT_EQ(EventListOfTag(tag).Signatures, "") << tag;
    EXPECT_EQ(EventListOfTag(tag).Codes, "") << tag;
  }
}

TEST(Kinds, AnUnknownTagYieldsNoListAndNoError) {
  for (const char* tag : {"", "buttons", "Button", "itemmenu", "#"}) {
    EXPECT_EQ(EventListOfTag(tag).Signatures, "") << tag;
    EXPECT_EQ(EventListOfTag(tag).Codes, "") << tag;
    EXPECT_TRUE(EventListOfTag(tag).Events.empty()) << tag;
  }
}

}  // namespace
}  // namespace tarnwick
