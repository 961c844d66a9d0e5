// The rows of events of the code editor, and which of them is shown first.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "editor/form_codigo_on_fakes.h"

namespace tarnwick::test {
namespace {

using Rows = std::vector<std::string>;

class FormCodigoRows : public FormCodigoTest {};

TEST_F(FormCodigoRows, AFormThatWasNeverOpenedShowsOnShowTheTwelfthRow) {
  tarnwick::Select(*Window(), nullptr);
  SetCode("Form1.OnShow", "Beep");
  codigo_.Open();
  EXPECT_EQ(codigo_.Caption(), "Main");
  EXPECT_EQ(codigo_.EventRowNo(), 11);
  EXPECT_EQ(EventTexts().at(11), "Sub Main_OnShow");
  EXPECT_EQ(EventTexts().at(1), "Sub Main_OnClose (Action As Integer)");
  EXPECT_EQ(editor_.Text(), "Beep");
  EXPECT_EQ(Remembered("EventsIndex", "Form1"), "11");
}

TEST_F(FormCodigoRows, TheRowsOfAFormKeepTheirDoubleBlanks) {
  tarnwick::Select(*Window(), nullptr);
  codigo_.Open();
  EXPECT_EQ(EventTexts().at(7),
            "Sub Main_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)");
  EXPECT_EQ(EventTexts().size(), 12U);
}

TEST_F(FormCodigoRows, BracketsOfTheCaptionAreLeftOutOfTheRows) {
  Window()->Element(Kind::Image, 1)->Tag = "Image(3)";
  Select(Kind::Image, 1);
  codigo_.Open();
  EXPECT_EQ(EventTexts().front(), "Sub Image3_OnClick");
}

TEST_F(FormCodigoRows, AnItemOfTheMenuBarHasOneRowAndTheKeyOfItsName) {
  SelectItem("mnuOpen");
  codigo_.Open();
  EXPECT_EQ(EventTexts(), Rows{"Sub mnuOpen_OnClick"});
  editor_.SetText("open");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.mnuOpen.OnClick"), "open");
  EXPECT_EQ(Remembered("Events", "Form1.mnuOpen"), ".OnClick");
  EXPECT_EQ(host_.Log.front(), "code 1 mnuOpen");
}

TEST_F(FormCodigoRows, AKindWithoutALineInTheSupportFileHasNoEvents) {
  project_.Builder.Form(1).Add(Kind::WinSock, "Sock");
  Select(Kind::WinSock, 1);
  codigo_.Open();
  EXPECT_TRUE(codigo_.Events().empty());
  EXPECT_EQ(codigo_.EventRowNo(), -1);
  editor_.SetText("x");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.WinSock1.OnClick"), "(none)");
}

TEST_F(FormCodigoRows, ARememberedEventThatIsNoRowGivesTheDefault) {
  settings_.WriteEventIndex("Events", "Form1.Button1", ".OnTimer");
  Select(Kind::Button, 1);
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 0);
}

TEST_F(FormCodigoRows, ARememberedEventThatAFormLacksGivesOnShow) {
  settings_.WriteEventIndex("Events", "Form1", ".OnTimer");
  tarnwick::Select(*Window(), nullptr);
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 11);
}

TEST_F(FormCodigoRows, TheRememberedRowNumberCountsForNothing) {
  settings_.WriteEventIndex("Events", "Form1.Button1", ".OnKeyUp");
  settings_.WriteEventIndex("EventsIndex", "Form1.Button1", "60");
  Select(Kind::Button, 1);
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 3);
}

TEST_F(FormCodigoRows, TheRowOfTheSearchIsRememberedAndABadOneIsTheFirst) {
  Select(Kind::Button, 1);
  codigo_.Open();
  codigo_.SetComboSearch(2);
  codigo_.Cancel();
  codigo_.Open();
  EXPECT_EQ(codigo_.ComboSearch(), 2);
  codigo_.SetComboSearch(0);
  EXPECT_EQ(codigo_.ComboSearch(), 0);
  codigo_.SetComboSearch(3);
  EXPECT_EQ(codigo_.ComboSearch(), 2);
  EXPECT_EQ(Remembered("Search", "Whr"), "2");
  settings_.WriteEventIndex("Search", "Whr", "9");
  codigo_.Open();
  EXPECT_EQ(codigo_.ComboSearch(), 0);
}

TEST_F(FormCodigoRows, ARowThatIsNotThereChangesNothing) {
  Select(Kind::Button, 1);
  codigo_.Open();
  editor_.SetSelText("typed");
  codigo_.Events_Click(7);
  codigo_.Events_Click(-1);
  codigo_.Events_Click(0);
  EXPECT_EQ(editor_.Text(), "typed");
  EXPECT_EQ(codigo_.EventRowNo(), 0);
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "(none)");
}

TEST_F(FormCodigoRows, EachKindWordHasItsRowsAndItsDefault) {
  const std::string key_rows =
      "OnKeyDown (Key As Word, Shift As Integer)#OnKeyPress (Key As Byte)#"
      "OnKeyUp (Key As Word, Shift As Integer)#";
  const std::string mouse_rows =
      "OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)#"
      "OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)#"
      "OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)#";
  const std::pair<std::string, std::string> kinds[] = {
      {"popupmenu", "OnPopUp#"},
      {"form", "OnClick#OnClose (Action As Integer)#OnHint (Hint As String)#" + key_rows +
                   mouse_rows + "OnPaint#OnResize#OnShow#"},
      {"time", "OnTimer#"},
      {"button", "OnClick#" + key_rows + mouse_rows},
      {"textbox", "OnChange#" + key_rows},
      {"richtextbox", "OnChange#" + key_rows + mouse_rows},
      {"menu", "OnClick#"},
      {"optionbutton", "OnClick#"},
      {"checkbox", "OnClick#"},
      {"label", "OnClick#OnDblClick#" + mouse_rows},
      {"image", "OnClick#OnDblClick#" + mouse_rows},
      {"images", "OnClick#OnDblClick#" + mouse_rows},
      {"listbox", "OnClick#OnDblClick#OnEnter#"},
      {"combobox", "OnChange#"},
      {"filestream", ""}};
  for (const auto& [word, expected] : kinds) {
    std::string rows;
    const std::vector<editor::EventRow> of_kind = editor::EventRowsOf(word, "A");
    for (const editor::EventRow& row : of_kind) {
      ASSERT_TRUE(row.Text.starts_with("Sub A_")) << row.Text;
      rows += row.Text.substr(6) + "#";
    }
    EXPECT_EQ(rows, expected) << word;
    const int first = word == "form" ? 11 : expected.empty() ? -1 : 0;
    EXPECT_EQ(editor::DefaultRowOf(word, of_kind), first) << word;
  }
}

TEST_F(FormCodigoRows, TheFormsLaterOpeningKeepsItsRememberedRow) {
  tarnwick::Select(*Window(), nullptr);
  codigo_.Open();
  codigo_.Events_Click(0);
  codigo_.Accept();
  EXPECT_EQ(Remembered("EventsIndex", "Form1"), "0");
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 0);
  EXPECT_EQ(Remembered("EventsIndex", "Form1"), "0");
}

}  // namespace
}  // namespace tarnwick::test
