#include "editor/form_codigo.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "designer/selection.h"
#include "editor/editor_project.h"
#include "fakes/fake_code_host.h"
#include "fakes/fake_edit_widget.h"
#include "fakes/fake_ports.h"

namespace tarnwick::test {
namespace {

using editor::FormCodigo;
using Rows = std::vector<std::string>;

class FormCodigoTest : public testing::Test {
 protected:
  void Select(Kind kind, int index) { tarnwick::Select(*Window(), Window()->Element(kind, index)); }
  void SelectItem(std::string_view name) {
    Window()->ControlSel = nullptr;
    Window()->NameObjet = name;
    Window()->IndexObjet = 0;
  }
  DesignForm* Window() { return project_.Tables.CurrentForm; }
  std::string Code(std::string_view key) {
    const std::string* code = project_.Tables.EventTable.Find(key);
    return code == nullptr ? "(none)" : *code;
  }
  void SetCode(std::string_view key, std::string_view code) {
    project_.Tables.EventTable.Replace(key, code);
  }
  Rows EventTexts() {
    Rows texts;
    for (const editor::EventRow& row : codigo_.Events()) texts.push_back(row.Text);
    return texts;
  }
  /// What would be lost if the program ended now.
  editor::CodeDrafts::Texts NotAccepted() {
    editor::CodeDrafts::Texts texts = drafts_.All();
    codigo_.Typed().AddTo(texts);
    return texts;
  }
  std::string Remembered(std::string_view section, std::string_view key) {
    return settings_.ReadEventIndex(section, key);
  }

  EditorProject project_;
  FakePorts ports_;
  Settings settings_{ports_.Profiles, "C:\\Tarnwick"};
  FakeEditWidget editor_;
  FakeCodeHost host_;
  editor::CodeDrafts drafts_{project_.Tables};
  FormCodigo codigo_{project_.Tables, project_.Language, settings_, editor_, host_, drafts_};
};

TEST_F(FormCodigoTest, AFormThatWasNeverOpenedShowsOnShowTheTwelfthRow) {
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

TEST_F(FormCodigoTest, TheRowsOfAFormKeepTheirDoubleBlanks) {
  tarnwick::Select(*Window(), nullptr);
  codigo_.Open();
  EXPECT_EQ(EventTexts().at(7),
            "Sub Main_OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)");
  EXPECT_EQ(EventTexts().size(), 12U);
}

TEST_F(FormCodigoTest, AnObjectShowsItsUserNameAndTheDefaultEventOfItsKind) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button1.OnClick", "Click");
  codigo_.Open();
  EXPECT_EQ(codigo_.Caption(), "Ok");
  EXPECT_EQ(codigo_.EventRowNo(), 0);
  EXPECT_EQ(EventTexts().at(0), "Sub Ok_OnClick");
  EXPECT_EQ(editor_.Text(), "Click");
}

TEST_F(FormCodigoTest, AnEmptyEntryAndNoEntryShowTheSamePage) {
  Select(Kind::Button, 1);
  codigo_.Open();
  EXPECT_EQ(editor_.Text(), "");
  codigo_.Cancel();
  SetCode("Form1.Button1.OnClick", "");
  codigo_.Open();
  EXPECT_EQ(editor_.Text(), "");
}

TEST_F(FormCodigoTest, AChangeOfEventStoresTheTextAndShowsTheOther) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button1.OnKeyDown", "key");
  codigo_.Open();
  editor_.SetText("typed");
  codigo_.Events_Click(1);
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "typed");
  EXPECT_EQ(editor_.Text(), "key");
  EXPECT_EQ(host_.Steps, Rows{"1 Code Ok"});
  EXPECT_EQ(host_.Log, Rows{"accepted 1"});
}

TEST_F(FormCodigoTest, SettingTheTextBeginsANewUndoHistory) {
  Select(Kind::Button, 1);
  codigo_.Open();
  const int before = editor_.Histories;
  codigo_.Events_Click(2);
  EXPECT_EQ(editor_.Histories, before + 1);
}

TEST_F(FormCodigoTest, AcceptStoresRemembersTheEventTellsTheBarAndCloses) {
  Select(Kind::Button, 1);
  codigo_.Open();
  codigo_.Events_Click(2);
  editor_.SetText("k");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.Button1.OnKeyPress"), "k");
  EXPECT_EQ(Remembered("Events", "Form1.Button1"), ".OnKeyPress");
  EXPECT_EQ(Remembered("EventsIndex", "Form1.Button1"), "2");
  EXPECT_EQ(host_.Log, (Rows{"code 1 Button1", "accepted 1", "unload"}));
  EXPECT_FALSE(codigo_.IsOpen());
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 2);
  EXPECT_EQ(editor_.Text(), "k");
}

TEST_F(FormCodigoTest, AnAcceptIsAStepThatIsNamedAfterWhatIsOpen) {
  Select(Kind::Button, 1);
  codigo_.Open();
  codigo_.Events_Click(2);
  EXPECT_TRUE(host_.Steps.empty());
  codigo_.Accept();
  EXPECT_EQ(host_.Steps, Rows{"1 Code Ok"});
  codigo_.Open();
  codigo_.Cancel();
  EXPECT_EQ(host_.Steps.size(), 1U);
}

TEST_F(FormCodigoTest, KeysOfAnySpellingAreOne) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button1.OnkeyDown", "old spelling");
  codigo_.Open();
  codigo_.Events_Click(1);
  EXPECT_EQ(editor_.Text(), "old spelling");
}

TEST_F(FormCodigoTest, AcceptOfAnEmptyTextKeepsTheEntryAndTellsTheBar) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button1.OnClick", "x");
  codigo_.Open();
  editor_.SetText("");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "");
  EXPECT_EQ(host_.Log.front(), "no code 1 Button1");
}

TEST_F(FormCodigoTest, CancelStoresNothing) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button1.OnClick", "kept");
  codigo_.Open();
  editor_.SetText("typed");
  codigo_.Cancel();
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "kept");
  EXPECT_EQ(host_.Log, Rows{"unload"});
}

TEST_F(FormCodigoTest, WhatIsOpenStaysTheTargetWhateverIsSelectedMeanwhile) {
  Select(Kind::Button, 1);
  codigo_.Open();
  Select(Kind::Label, 1);
  editor_.SetText("of the button");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "of the button");
  EXPECT_EQ(Code("Form1.Label1.OnClick"), "(none)");
}

TEST_F(FormCodigoTest, APictureIsKeyedByItsArray) {
  Select(Kind::Image, 1);
  codigo_.Open();
  editor_.SetText("p");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.Images1.OnClick"), "p");
  EXPECT_EQ(host_.Log.front(), "code 1 Images1");
}

TEST_F(FormCodigoTest, APopupMenuIsKeyedByItsArrayAndOpensOnItsOneEvent) {
  Select(Kind::PopUpMenu, 1);
  codigo_.Open();
  EXPECT_EQ(EventTexts(), Rows{"Sub Pop_OnPopUp"});
  EXPECT_FALSE(codigo_.EventsEnabled());
  editor_.SetText("p");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.PopUpMnu1.OnPopUp"), "p");
}

TEST_F(FormCodigoTest, BracketsOfTheCaptionAreLeftOutOfTheRows) {
  Window()->Element(Kind::Image, 1)->Tag = "Image(3)";
  Select(Kind::Image, 1);
  codigo_.Open();
  EXPECT_EQ(EventTexts().front(), "Sub Image3_OnClick");
}

TEST_F(FormCodigoTest, AnItemOfTheMenuBarHasOneRowAndTheKeyOfItsName) {
  SelectItem("mnuOpen");
  codigo_.Open();
  EXPECT_EQ(EventTexts(), Rows{"Sub mnuOpen_OnClick"});
  editor_.SetText("open");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.mnuOpen.OnClick"), "open");
  EXPECT_EQ(Remembered("Events", "Form1.mnuOpen"), ".OnClick");
  EXPECT_EQ(host_.Log.front(), "code 1 mnuOpen");
}

TEST_F(FormCodigoTest, AnItemWhoseNameHoldsFormIsNotTheForm) {
  Window()->Element(Kind::MenuItem, 1)->Tag = "mnuFormat";
  SelectItem("mnuFormat");
  codigo_.Open();
  EXPECT_EQ(EventTexts(), Rows{"Sub mnuFormat_OnClick"});
}

TEST_F(FormCodigoTest, AnObjectOnAFormWithAMenuBarIsStillAnObject) {
  Select(Kind::Button, 1);
  codigo_.Open();
  EXPECT_EQ(codigo_.Caption(), "Ok");
}

TEST_F(FormCodigoTest, AJumpToAnEventOpensThereOnce) {
  Select(Kind::Button, 1);
  project_.Tables.JumpKey = "OnKeyUp";
  codigo_.Open();
  EXPECT_EQ(EventTexts().at(static_cast<std::size_t>(codigo_.EventRowNo())),
            "Sub Ok_OnKeyUp (Key As Word, Shift As Integer)");
  EXPECT_EQ(project_.Tables.JumpKey, "");
}

TEST_F(FormCodigoTest, AJumpToAnEventThatTheKindLacksOpensTheDefault) {
  Select(Kind::Button, 1);
  project_.Tables.JumpKey = "OnTimer";
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 0);
}

TEST_F(FormCodigoTest, AJumpWithADotOpensTheItemWhateverIsSelected) {
  Select(Kind::Button, 1);
  SetCode("Form1.ppmCopy.OnClick", "copy");
  project_.Tables.JumpKey = "Form1.ppmCopy";
  codigo_.Open();
  EXPECT_EQ(EventTexts(), Rows{"Sub ppmCopy_OnClick"});
  EXPECT_EQ(editor_.Text(), "copy");
  EXPECT_EQ(project_.Tables.JumpKey, "");
}

TEST_F(FormCodigoTest, AJumpOpensTheItemOfTheFormThatItsKeyNames) {
  SetCode("Form2.ppmCopy.OnClick", "two");
  project_.Tables.JumpKey = "Form2.ppmCopy";
  codigo_.Open();
  EXPECT_EQ(editor_.Text(), "two");
  EXPECT_EQ(codigo_.Target().Form, 2);
}

TEST_F(FormCodigoTest, AJumpToAWholeKeyOpensItsEventAlsoWithoutTheObject) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button9.OnKeyDown", "left behind");
  project_.Tables.JumpKey = "Form1.Button9.OnKeyDown";
  codigo_.Open();
  EXPECT_EQ(codigo_.Caption(), "Button9");
  EXPECT_EQ(EventTexts(), Rows{"Sub Button9_OnKeyDown (Key As Word, Shift As Integer)"});
  EXPECT_EQ(editor_.Text(), "left behind");
  editor_.SetText("");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.Button9.OnKeyDown"), "(none)");
  EXPECT_EQ(host_.Log, (Rows{"no code 1 Button9", "accepted 1", "unload"}));
}

TEST_F(FormCodigoTest, AnItemThatIsNamedLikeAnEventIsAnItem) {
  SetCode("Form1.OnShow.OnClick", "item");
  project_.Tables.JumpKey = "Form1.OnShow";
  codigo_.Open();
  EXPECT_EQ(editor_.Text(), "item");
}

TEST_F(FormCodigoTest, TypedIsWhatDiffersFromTheStoredText) {
  Select(Kind::Button, 1);
  EXPECT_FALSE(codigo_.Typed().Differs());
  codigo_.Open();
  EXPECT_FALSE(codigo_.Typed().Differs());
  editor_.SetText("typed");
  EXPECT_TRUE(codigo_.Typed().Differs());
  codigo_.StoreShown();
  EXPECT_FALSE(codigo_.Typed().Differs());
  editor_.SetText("more");
  codigo_.Cancel();
  EXPECT_FALSE(codigo_.Typed().Differs());
}

TEST_F(FormCodigoTest, TextOfAJumpedItemThatIsDeletedLeavesNoEntry) {
  project_.Tables.JumpKey = "Form1.ppmCopy";
  codigo_.Open();
  editor_.SetText("copy");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.ppmCopy.OnClick"), "copy");
  project_.Tables.JumpKey = "Form1.ppmCopy";
  codigo_.Open();
  editor_.SetText("");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.ppmCopy.OnClick"), "(none)");
}

TEST_F(FormCodigoTest, AKindWithoutALineInTheSupportFileHasNoEvents) {
  project_.Builder.Form(1).Add(Kind::WinSock, "Sock");
  Select(Kind::WinSock, 1);
  codigo_.Open();
  EXPECT_TRUE(codigo_.Events().empty());
  EXPECT_EQ(codigo_.EventRowNo(), -1);
  editor_.SetText("x");
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.WinSock1.OnClick"), "(none)");
}

TEST_F(FormCodigoTest, AJumpOnAKindWithoutEventsIsForgotten) {
  project_.Builder.Form(1).Add(Kind::WinSock, "Sock");
  Select(Kind::WinSock, 1);
  project_.Tables.JumpKey = "OnKeyUp";
  codigo_.Open();
  EXPECT_EQ(project_.Tables.JumpKey, "");
}

TEST_F(FormCodigoTest, ARememberedEventThatIsNoRowGivesTheDefault) {
  settings_.WriteEventIndex("Events", "Form1.Button1", ".OnTimer");
  Select(Kind::Button, 1);
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 0);
}

TEST_F(FormCodigoTest, ARememberedEventThatAFormLacksGivesOnShow) {
  settings_.WriteEventIndex("Events", "Form1", ".OnTimer");
  tarnwick::Select(*Window(), nullptr);
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 11);
}

TEST_F(FormCodigoTest, TheRememberedRowNumberCountsForNothing) {
  settings_.WriteEventIndex("Events", "Form1.Button1", ".OnKeyUp");
  settings_.WriteEventIndex("EventsIndex", "Form1.Button1", "60");
  Select(Kind::Button, 1);
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 3);
}

TEST_F(FormCodigoTest, AnObjectThatIsRenamedKeepsItsCode) {
  Select(Kind::Button, 1);
  codigo_.Open();
  editor_.SetText("mine");
  codigo_.Accept();
  Window()->Element(Kind::Button, 1)->Tag = "Renamed";
  codigo_.Open();
  EXPECT_EQ(codigo_.Caption(), "Renamed");
  EXPECT_EQ(editor_.Text(), "mine");
}

TEST_F(FormCodigoTest, StoringWhatIsShownChangesNothingElse) {
  Select(Kind::Button, 1);
  codigo_.StoreShown();
  codigo_.Open();
  editor_.SetText("half");
  codigo_.StoreShown();
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "half");
  EXPECT_TRUE(codigo_.IsOpen());
  EXPECT_EQ(host_.Log, Rows{"accepted 1"});
  codigo_.StoreShown();
  EXPECT_EQ(host_.Log, Rows{"accepted 1"}) << "it is stored already";
}

TEST_F(FormCodigoTest, ThePanelOpensAsItWasLeftAtAnAccept) {
  Select(Kind::Button, 1);
  codigo_.Open();
  EXPECT_TRUE(codigo_.WndFuncVisible());
  codigo_.ShowWndFunc(false);
  codigo_.Accept();
  codigo_.Open();
  EXPECT_FALSE(codigo_.WndFuncVisible());
  EXPECT_EQ(Remembered("Load", "LstFnc"), "2");
  codigo_.ShowWndFunc(true);
  codigo_.Cancel();
  codigo_.Open();
  EXPECT_FALSE(codigo_.WndFuncVisible());
}

TEST_F(FormCodigoTest, TheRowOfTheSearchIsRememberedAndABadOneIsTheFirst) {
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

TEST_F(FormCodigoTest, WhatACancelLostIsOfferedOnTheSameEventAndCanBeHadBack) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button1.OnClick", "kept");
  codigo_.Open();
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
  editor_.SetSelText("line 1\r\nline 2\r\n");
  codigo_.Cancel();
  codigo_.Open();
  EXPECT_EQ(editor_.Text(), "kept");
  ASSERT_NE(codigo_.Typed().Lost(), nullptr);
  codigo_.Events_Click(1);
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
  codigo_.Events_Click(0);
  codigo_.Typed().RestoreLost();
  EXPECT_EQ(editor_.Text(), "line 1\r\nline 2\r\nkept");
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
}

TEST_F(FormCodigoTest, ACancelWithoutAChangeLosesNothing) {
  Select(Kind::Button, 1);
  codigo_.Open();
  codigo_.Cancel();
  codigo_.Open();
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
}

TEST_F(FormCodigoTest, WhatWasLostCanBeDiscarded) {
  Select(Kind::Button, 1);
  codigo_.Open();
  editor_.SetSelText("x");
  codigo_.Cancel();
  codigo_.Open();
  codigo_.Typed().DiscardLost();
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
  EXPECT_TRUE(drafts_.All().empty());
}

TEST_F(FormCodigoTest, WhatIsNotAcceptedIsTheShownTextAndAllThatWasLost) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button1.OnClick", "kept");
  codigo_.Open();
  EXPECT_TRUE(NotAccepted().empty());
  editor_.SetSelText("a");
  codigo_.Cancel();
  codigo_.Open();
  codigo_.Events_Click(1);
  editor_.SetSelText("b");
  const editor::CodeDrafts::Texts expected{{"Form1.Button1.OnClick", "akept"},
                                           {"Form1.Button1.OnKeyDown", "b"}};
  EXPECT_EQ(NotAccepted(), expected);
  EXPECT_EQ(Code("Form1.Button1.OnKeyDown"), "(none)");
}

TEST_F(FormCodigoTest, WhatIsShownTakesThePlaceOfWhatWasLostThere) {
  Select(Kind::Button, 1);
  codigo_.Open();
  editor_.SetSelText("old");
  codigo_.Cancel();
  codigo_.Open();
  editor_.SetSelText("new");
  const editor::CodeDrafts::Texts expected{{"Form1.Button1.OnClick", "new"}};
  EXPECT_EQ(NotAccepted(), expected);
}

TEST_F(FormCodigoTest, TextsOfAnEarlierRunAreOfferedAtTheNextOpeningOnTheirKey) {
  SetCode("Form1.Button1.OnKeyUp", "same");
  drafts_.Offer({{"Form1.Button1.OnClick", "typed"},
                 {"Form1.Button1.OnKeyDown", ""},
                 {"Form1.Button1.OnKeyUp", "same"}});
  Select(Kind::Button, 1);
  codigo_.Open();
  ASSERT_NE(codigo_.Typed().Lost(), nullptr);
  EXPECT_EQ(*codigo_.Typed().Lost(), "typed");
  codigo_.Events_Click(1);
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
  codigo_.Events_Click(3);
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
}

TEST_F(FormCodigoTest, ARenameShowsInTheOpenWindow) {
  Select(Kind::Button, 1);
  codigo_.Open();
  codigo_.NameChanged(1, "Ok", "Fine");
  EXPECT_EQ(codigo_.Caption(), "Fine");
  EXPECT_EQ(EventTexts().front(), "Sub Fine_OnClick");
  codigo_.NameChanged(2, "Fine", "Other");
  EXPECT_EQ(codigo_.Caption(), "Fine");
}

TEST_F(FormCodigoTest, NothingOpensWithoutAForm) {
  project_.Tables.CurrentForm = nullptr;
  codigo_.Open();
  EXPECT_FALSE(codigo_.IsOpen());
  codigo_.Accept();
  EXPECT_TRUE(host_.Log.empty());
}

TEST_F(FormCodigoTest, AnAcceptThatChangedNothingMakesNoEntry) {
  Select(Kind::Button, 1);
  codigo_.Open();
  codigo_.Events_Click(1);
  codigo_.Accept();
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "(none)");
  EXPECT_EQ(Code("Form1.Button1.OnKeyDown"), "(none)");
}

TEST_F(FormCodigoTest, AChangeOfEventWithoutAChangeOfTextIsNoStep) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button1.OnClick", "kept");
  codigo_.Open();
  codigo_.Events_Click(1);
  EXPECT_TRUE(host_.Steps.empty());
  EXPECT_EQ(Code("Form1.Button1.OnClick"), "kept");
}

TEST_F(FormCodigoTest, AnAcceptedTextDropsTheLostOneAndALookAtItDoesNot) {
  Select(Kind::Button, 1);
  codigo_.Open();
  editor_.SetSelText("lost");
  codigo_.Cancel();
  codigo_.Open();
  codigo_.Accept();
  codigo_.Open();
  ASSERT_NE(codigo_.Typed().Lost(), nullptr) << "it was only looked at";
  editor_.SetSelText("new");
  codigo_.Accept();
  codigo_.Open();
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
}

TEST_F(FormCodigoTest, WhileItsListIsFilledAChoiceOfEventDoesNothing) {
  Select(Kind::Button, 1);
  SetCode("Form1.Button1.OnClick", "click");
  SetCode("Form1.Button1.OnKeyPress", "press");
  // A list that is being filled may tell of its rows.
  editor_.OnSetText = [this] { codigo_.Events_Click(2); };
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 0);
  EXPECT_EQ(editor_.Text(), "click");
}

TEST_F(FormCodigoTest, ARowThatIsNotThereChangesNothing) {
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

TEST_F(FormCodigoTest, AfterItsCloseNothingIsShownAndNoEventCanBeChosen) {
  Select(Kind::Button, 1);
  codigo_.Open();
  codigo_.Events_Click(3);
  codigo_.Cancel();
  EXPECT_FALSE(codigo_.IsOpen());
  EXPECT_EQ(codigo_.EventRowNo(), -1);
  EXPECT_TRUE(codigo_.Events().empty());
  EXPECT_EQ(codigo_.Typed().Key(), "");
  codigo_.Events_Click(1);
  codigo_.StoreShown();
  codigo_.Cancel();
  EXPECT_EQ(host_.Log, Rows{"unload"});
}

TEST_F(FormCodigoTest, TextTypedOnAKindWithoutEventsIsNeitherStoredNorKept) {
  project_.Builder.Form(1).Add(Kind::WinSock, "Sock");
  Select(Kind::WinSock, 1);
  codigo_.Open();
  editor_.SetSelText("x");
  EXPECT_FALSE(codigo_.Typed().Differs());
  EXPECT_TRUE(NotAccepted().empty());
  codigo_.Cancel();
  EXPECT_TRUE(drafts_.All().empty());
}

/// Every row of the table of kinds: the rows of `Events`, and the one that opens first.
TEST_F(FormCodigoTest, EachKindWordHasItsRowsAndItsDefault) {
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

TEST_F(FormCodigoTest, TheFormsLaterOpeningKeepsItsRememberedRow) {
  tarnwick::Select(*Window(), nullptr);
  codigo_.Open();
  codigo_.Events_Click(0);
  codigo_.Accept();
  EXPECT_EQ(Remembered("EventsIndex", "Form1"), "0");
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 0);
  EXPECT_EQ(Remembered("EventsIndex", "Form1"), "0");
}

TEST_F(FormCodigoTest, OpeningTheFormTakesTheSelectionsObjectAway) {
  Select(Kind::Button, 1);
  Window()->NameObjet = "Form";
  codigo_.Open();
  EXPECT_EQ(codigo_.Caption(), "Main");
  EXPECT_EQ(Window()->ControlSel, nullptr);
}

}  // namespace
}  // namespace tarnwick::test
