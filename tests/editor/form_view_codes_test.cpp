#include "editor/form_view_codes.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/editor_project.h"
#include "fakes/fake_code_host.h"
#include "fakes/fake_edit_widget.h"

namespace tarnwick::test {
namespace {

using Rows = std::vector<std::string>;

class FormViewCodesTest : public testing::Test {
 protected:
  FormViewCodesTest() { Declarations(2) = "Dim a"; }
  std::string& Declarations(int form) { return project_.Tables.Form(form)->DeclarePbl; }

  EditorProject project_;
  FakeEditWidget editor_;
  FakeCodeHost host_;
  editor::CodeDrafts drafts_{project_.Tables};
  editor::FormViewCodes codes_{project_.Tables, editor_, host_, drafts_};
};

TEST_F(FormViewCodesTest, ShowsTheDeclarationsOfItsFormUnderTheFormsName) {
  ASSERT_TRUE(codes_.Open(2));
  EXPECT_EQ(codes_.Caption(), "Form: Other  (Public Declarations)");
  EXPECT_EQ(editor_.Text(), "Dim a");
  EXPECT_EQ(codes_.Form(), 2);
}

TEST_F(FormViewCodesTest, AFormThatIsNotThereOpensNothing) {
  EXPECT_FALSE(codes_.Open(3));
  EXPECT_FALSE(codes_.Open(0));
  project_.Builder.Form(2).Remove();
  EXPECT_FALSE(codes_.Open(2));
  EXPECT_FALSE(codes_.IsOpen());
  EXPECT_EQ(codes_.Caption(), "");
}

TEST_F(FormViewCodesTest, AcceptStoresAsOneStepAndCloses) {
  codes_.Open(2);
  editor_.SetText("Dim b");
  codes_.Accept();
  EXPECT_EQ(Declarations(2), "Dim b");
  EXPECT_EQ(host_.Steps, Rows{"2 Public Declarations"});
  EXPECT_EQ(host_.Log, (Rows{"accepted 2", "unload"}));
  EXPECT_FALSE(codes_.IsOpen());
  EXPECT_TRUE(drafts_.All().empty());
}

TEST_F(FormViewCodesTest, AnAcceptThatChangedNothingIsNoStep) {
  codes_.Open(2);
  codes_.Accept();
  EXPECT_TRUE(host_.Steps.empty());
  EXPECT_EQ(host_.Log, Rows{"unload"});
}

TEST_F(FormViewCodesTest, AStoreIsAStepAndTheWindowStays) {
  codes_.Open(2);
  codes_.Store();
  EXPECT_TRUE(host_.Steps.empty());
  editor_.SetText("Dim b");
  codes_.Store();
  EXPECT_EQ(Declarations(2), "Dim b");
  EXPECT_EQ(host_.Steps, Rows{"2 Public Declarations"});
  EXPECT_EQ(host_.Log, Rows{"accepted 2"});
  EXPECT_TRUE(codes_.IsOpen());
  codes_.Cancel();
  EXPECT_TRUE(drafts_.All().empty());
}

TEST_F(FormViewCodesTest, ACancelLeavesTheDeclarationsAndTheNextOpeningOffersWhatWasTyped) {
  codes_.Open(2);
  EXPECT_EQ(codes_.Typed().Lost(), nullptr);
  editor_.SetText("Dim b");
  codes_.Cancel();
  EXPECT_EQ(Declarations(2), "Dim a");
  EXPECT_TRUE(host_.Steps.empty());
  codes_.Open(1);
  EXPECT_EQ(codes_.Typed().Lost(), nullptr) << "it was typed on the other form";
  codes_.Cancel();
  codes_.Open(2);
  EXPECT_EQ(editor_.Text(), "Dim a");
  ASSERT_NE(codes_.Typed().Lost(), nullptr);
  codes_.Typed().RestoreLost();
  EXPECT_EQ(editor_.Text(), "Dim b");
  codes_.Accept();
  EXPECT_EQ(Declarations(2), "Dim b");
}

TEST_F(FormViewCodesTest, OpeningAnotherFormKeepsWhatWasTypedOnTheFirst) {
  codes_.Open(2);
  editor_.SetText("Dim b");
  codes_.Open(1);
  EXPECT_EQ(codes_.Form(), 1);
  EXPECT_EQ(editor_.Text(), "");
  codes_.Cancel();
  codes_.Open(2);
  ASSERT_NE(codes_.Typed().Lost(), nullptr);
  EXPECT_EQ(*codes_.Typed().Lost(), "Dim b");
}

TEST_F(FormViewCodesTest, OpeningTheSameFormAgainKeepsTheTextInTheEditor) {
  codes_.Open(2);
  editor_.SetText("Dim b");
  EXPECT_TRUE(codes_.Open(2));
  EXPECT_EQ(editor_.Text(), "Dim b");
}

TEST_F(FormViewCodesTest, WhatIsTypedIsKnownByAKeyThatNoEventHas) {
  codes_.Open(2);
  editor::CodeDrafts::Texts texts;
  codes_.Typed().AddTo(texts);
  EXPECT_TRUE(texts.empty());
  editor_.SetText("Dim b");
  EXPECT_TRUE(codes_.Typed().Differs());
  codes_.Typed().AddTo(texts);
  EXPECT_EQ(texts, (editor::CodeDrafts::Texts{{"Form2.(Public Declarations)", "Dim b"}}));
}

TEST_F(FormViewCodesTest, TextsOfAnEarlierRunAreOfferedUnlessTheyAreStored) {
  drafts_.Offer({{editor::DeclarationsKey(2), "Dim a"},
                 {editor::DeclarationsKey(1), "Dim c"},
                 {editor::DeclarationsKey(7), "of no form"},
                 {editor::DeclarationsKey(8), ""}});
  codes_.Open(2);
  EXPECT_EQ(codes_.Typed().Lost(), nullptr);
  codes_.Cancel();
  codes_.Open(1);
  ASSERT_NE(codes_.Typed().Lost(), nullptr);
  EXPECT_EQ(*codes_.Typed().Lost(), "Dim c");
  EXPECT_EQ(drafts_.All().size(), 2U);
}

TEST_F(FormViewCodesTest, TheTextFollowsAnUndoWhileNothingWasTyped) {
  codes_.Open(2);
  const int before = editor_.Histories;
  codes_.Refresh();
  EXPECT_EQ(editor_.Histories, before) << "nothing has changed";
  Declarations(2) = "";
  codes_.Refresh();
  EXPECT_EQ(editor_.Text(), "");
  editor_.SetText("typed");
  Declarations(2) = "Dim a";
  codes_.Refresh();
  EXPECT_EQ(editor_.Text(), "typed");
  codes_.Accept();
  EXPECT_EQ(Declarations(2), "typed");
}

TEST_F(FormViewCodesTest, TheTextOfAFormThatHasGoneIsKept) {
  codes_.Open(2);
  editor_.SetText("typed");
  project_.Builder.Form(2).Remove();
  codes_.Refresh();
  codes_.Accept();
  EXPECT_FALSE(codes_.IsOpen());
  EXPECT_TRUE(host_.Steps.empty());
  ASSERT_NE(drafts_.Find(editor::DeclarationsKey(2)), nullptr);
}

TEST_F(FormViewCodesTest, WhileItIsClosedNothingIsStoredOrClosed) {
  codes_.Accept();
  codes_.Cancel();
  EXPECT_TRUE(host_.Log.empty());
}

TEST(CodeFonts, TheNameOfTheDeclarationsFontStandsAsItIs) {
  EXPECT_EQ(editor::kCodeFont, "Courier New");
  EXPECT_EQ(editor::kDeclarationsFont, "Courdir new");
}

}  // namespace
}  // namespace tarnwick::test
