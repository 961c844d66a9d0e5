#include "model/vocabulary.h"

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

TEST(Vocabulary, EveryEventHasItsCodeSuffixAndSignature) {
  struct Row {
    std::string_view Code, Name, Signature;
  };
  const std::vector<Row> rows{
      {"10", "OnClick", "OnClick"},
      {"20", "OnClose", "OnClose (Action As Integer)"},
      {"30", "OnHint", "OnHint (Hint As String)"},
      {"40", "OnKeyDown", kKeyDown},
      {"50", "OnKeyPress", "OnKeyPress (Key As Byte)"},
      {"60", "OnKeyUp", "OnKeyUp (Key As Word, Shift As Integer)"},
      {"70", "OnMouseDown", kMouseDown},
      {"80", "OnMouseMove", kMouseMove},
      {"90", "OnMouseUp", kMouseUp},
      {"100", "OnEnter", "OnEnter"},
      {"110", "OnDblClick", "OnDblClick"},
      {"120", "OnChange", "OnChange"},
      {"130", "OnPaint", "OnPaint"},
      {"140", "OnResize", "OnResize"},
      {"150", "OnShow", "OnShow"},
      {"160", "OnTimer", "OnTimer"},
      {"170", "OnPopUp", "OnPopUp"},
  };
  ASSERT_EQ(rows.size(), kEventCount);
  for (const Row& row : rows) {
    const auto by_code = EventOfCode(row.Code);
    ASSERT_TRUE(by_code) << row.Code;
    const EventInfo& info = InfoOf(*by_code);
    EXPECT_EQ(info.Name, row.Name);
    EXPECT_EQ(info.Suffix, "." + std::string(row.Name));
    EXPECT_EQ(info.Signature, row.Signature);
    EXPECT_EQ(EventOfName(row.Name), by_code);
  }
}

TEST(Vocabulary, AnEventIsFoundByItsNameInAnyCase) {
  EXPECT_EQ(EventOfName("oNmOUSEdOWN"), Event::OnMouseDown);
  EXPECT_EQ(EventOfName("OnMouse"), std::nullopt);
  EXPECT_EQ(EventOfName(""), std::nullopt);
  EXPECT_EQ(EventOfCode("15"), std::nullopt);
}

TEST(Vocabulary, EveryKindHasItsWords) {
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

TEST(Vocabulary, AWordOfAFileNamesItsKindInAnyCase) {
  EXPECT_EQ(KindOfFileWord("RICHtextbox"), Kind::RichTextBox);
  EXPECT_EQ(KindOfFileWord("popupmenu"), Kind::PopUpMenu);
  // Array names are no words of a file, and heads of other records name no object.
  for (const char* word : {"images", "popupmnu", "mnubar", "menu", "form", "frame", "numero", ""}) {
    EXPECT_EQ(KindOfFileWord(word), std::nullopt) << word;
  }
}

TEST(Vocabulary, EveryEventListIsItsLiteral) {
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

TEST(Vocabulary, SignaturesAndCodesOfAListSplitIntoParallelArraysWithAnEmptyEnd) {
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

TEST(Vocabulary, MenuOptionButtonAndCheckBoxHaveTheSameListOfOneEvent) {
  for (const char* tag : {"menu", "optionbutton", "checkbox"}) {
    EXPECT_EQ(EventListOfTag(tag).Signatures, "OnClick#") << tag;
    EXPECT_EQ(EventListOfTag(tag).Codes, "10#") << tag;
  }
}

TEST(Vocabulary, ImageAndImagesBothSelectThePictureList) {
  EXPECT_EQ(EventListOfTag("image").Codes, "10#110#70#80#90#");
  EXPECT_EQ(EventListOfTag("images").Codes, EventListOfTag("image").Codes);
  EXPECT_NE(InfoOf(Kind::Image).Array, InfoOf(Kind::Image).Name);
}

TEST(Vocabulary, BothWordsOfAPopUpMenuSelectItsList) {
  EXPECT_EQ(EventListOfTag("popupmenu").Codes, "170#");
  EXPECT_EQ(EventListOfTag("popupmnu").Codes, "170#");
}

TEST(Vocabulary, SixKindsHaveNoEventList) {
  for (const char* tag :
       {"filestream", "opendialog", "savedialog", "transparentframe", "htmlviewer", "winsock"}) {
    EXPECT_TRUE(KindOfTag(tag)) << tag;
    EXPECT_EQ(EventListOfTag(tag).Signatures, "") << tag;
    EXPECT_EQ(EventListOfTag(tag).Codes, "") << tag;
  }
}

TEST(Vocabulary, AnUnknownTagYieldsNoListAndNoError) {
  for (const char* tag : {"", "buttons", "Button", "itemmenu", "#"}) {
    EXPECT_EQ(EventListOfTag(tag).Signatures, "") << tag;
    EXPECT_EQ(EventListOfTag(tag).Codes, "") << tag;
    EXPECT_TRUE(EventListOfTag(tag).Events.empty()) << tag;
  }
}

TEST(Vocabulary, TheFurtherListsStandAsTheyAre) {
  EXPECT_EQ(kMemberEventNames,
            "OnTimer#OnClick#OnClose#OnChange#OnEnter#OnDblClick#OnHint#OnKeyDown#OnKeyPress#"
            "OnKeyUp#OnMouseDown#OnMouseMove#OnMouseUp#OnPaint#OnResize#OnShow#");
  // No OnKeyPress for forms.
  EXPECT_EQ(kShortFormEventNames,
            "OnClick#OnClose#OnHint#OnKeyDown#OnKeyUp#OnMouseDown#OnMouseMove#OnMouseUp#OnPaint#"
            "OnResize#OnShow");
  EXPECT_EQ(kShortObjectEventNames,
            "OnClick#OnKeyDown#OnKeyPress#OnKeyUp#OnMouseDown#OnMouseMove#OnMouseUp");
}

TEST(Vocabulary, ANewFormGetsThirteenEntriesAndANewObjectEleven) {
  using enum Event;
  const std::vector<Event> form(NewFormEvents().begin(), NewFormEvents().end());
  const std::vector<Event> object(NewObjectEvents().begin(), NewObjectEvents().end());
  EXPECT_EQ(form, (std::vector<Event>{OnTimer, OnClick, OnClose, OnHint, OnPaint, OnResize, OnShow,
                                      OnKeyDown, OnKeyPress, OnKeyUp, OnMouseDown, OnMouseMove,
                                      OnMouseUp}));
  EXPECT_EQ(object,
            (std::vector<Event>{OnTimer, OnClick, OnDblClick, OnKeyDown, OnKeyPress, OnKeyUp,
                                OnMouseDown, OnMouseMove, OnMouseUp, OnEnter, OnChange}));
}

}  // namespace
}  // namespace tarnwick
