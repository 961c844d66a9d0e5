// The code editor: what it opens on, what it stores and what it tells.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "editor/form_codigo_on_fakes.h"

namespace tarnwick::test {
namespace {

using Rows = std::vector<std::string>;

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

TEST_F(FormCodigoTest, OpeningTheFormTakesTheSelectionsObjectAway) {
  Select(Kind::Button, 1);
  Window()->NameObjet = "Form";
  codigo_.Open();
  EXPECT_EQ(codigo_.Caption(), "Main");
  EXPECT_EQ(Window()->ControlSel, nullptr);
}

}  // namespace
}  // namespace tarnwick::test
