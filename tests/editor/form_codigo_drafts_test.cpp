// Text of the code editor that was not accepted.
#include <gtest/gtest.h>

#include "editor/form_codigo_on_fakes.h"

namespace tarnwick::test {
namespace {

class FormCodigoDrafts : public FormCodigoTest {};

TEST_F(FormCodigoDrafts, TypedIsWhatDiffersFromTheStoredText) {
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

TEST_F(FormCodigoDrafts, WhatACancelLostIsOfferedOnTheSameEventAndCanBeHadBack) {
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

TEST_F(FormCodigoDrafts, ACancelWithoutAChangeLosesNothing) {
  Select(Kind::Button, 1);
  codigo_.Open();
  codigo_.Cancel();
  codigo_.Open();
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
}

TEST_F(FormCodigoDrafts, WhatWasLostCanBeDiscarded) {
  Select(Kind::Button, 1);
  codigo_.Open();
  editor_.SetSelText("x");
  codigo_.Cancel();
  codigo_.Open();
  codigo_.Typed().DiscardLost();
  EXPECT_EQ(codigo_.Typed().Lost(), nullptr);
  EXPECT_TRUE(drafts_.All().empty());
}

TEST_F(FormCodigoDrafts, WhatIsNotAcceptedIsTheShownTextAndAllThatWasLost) {
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

TEST_F(FormCodigoDrafts, WhatIsShownTakesThePlaceOfWhatWasLostThere) {
  Select(Kind::Button, 1);
  codigo_.Open();
  editor_.SetSelText("old");
  codigo_.Cancel();
  codigo_.Open();
  editor_.SetSelText("new");
  const editor::CodeDrafts::Texts expected{{"Form1.Button1.OnClick", "new"}};
  EXPECT_EQ(NotAccepted(), expected);
}

TEST_F(FormCodigoDrafts, TextsOfAnEarlierRunAreOfferedAtTheNextOpeningOnTheirKey) {
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

TEST_F(FormCodigoDrafts, AnAcceptedTextDropsTheLostOneAndALookAtItDoesNot) {
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

TEST_F(FormCodigoDrafts, TextTypedOnAKindWithoutEventsIsNeitherStoredNorKept) {
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

}  // namespace
}  // namespace tarnwick::test
