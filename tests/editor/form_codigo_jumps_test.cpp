// Jumps into the code of an event or a menu item.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "editor/form_codigo_on_fakes.h"

namespace tarnwick::test {
namespace {

using Rows = std::vector<std::string>;

class FormCodigoJumps : public FormCodigoTest {};

TEST_F(FormCodigoJumps, AJumpToAnEventOpensThereOnce) {
  Select(Kind::Button, 1);
  project_.Tables.JumpKey = "OnKeyUp";
  codigo_.Open();
  EXPECT_EQ(EventTexts().at(static_cast<std::size_t>(codigo_.EventRowNo())),
            "Sub Ok_OnKeyUp (Key As Word, Shift As Integer)");
  EXPECT_EQ(project_.Tables.JumpKey, "");
}

TEST_F(FormCodigoJumps, AJumpToAnEventThatTheKindLacksOpensTheDefault) {
  Select(Kind::Button, 1);
  project_.Tables.JumpKey = "OnTimer";
  codigo_.Open();
  EXPECT_EQ(codigo_.EventRowNo(), 0);
}

TEST_F(FormCodigoJumps, AJumpWithADotOpensTheItemWhateverIsSelected) {
  Select(Kind::Button, 1);
  SetCode("Form1.ppmCopy.OnClick", "copy");
  project_.Tables.JumpKey = "Form1.ppmCopy";
  codigo_.Open();
  EXPECT_EQ(EventTexts(), Rows{"Sub ppmCopy_OnClick"});
  EXPECT_EQ(editor_.Text(), "copy");
  EXPECT_EQ(project_.Tables.JumpKey, "");
}

TEST_F(FormCodigoJumps, AJumpOpensTheItemOfTheFormThatItsKeyNames) {
  SetCode("Form2.ppmCopy.OnClick", "two");
  project_.Tables.JumpKey = "Form2.ppmCopy";
  codigo_.Open();
  EXPECT_EQ(editor_.Text(), "two");
  EXPECT_EQ(codigo_.Target().Form, 2);
}

TEST_F(FormCodigoJumps, AJumpToAWholeKeyOpensItsEventAlsoWithoutTheObject) {
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

TEST_F(FormCodigoJumps, AnItemThatIsNamedLikeAnEventIsAnItem) {
  SetCode("Form1.OnShow.OnClick", "item");
  project_.Tables.JumpKey = "Form1.OnShow";
  codigo_.Open();
  EXPECT_EQ(editor_.Text(), "item");
}

TEST_F(FormCodigoJumps, TextOfAJumpedItemThatIsDeletedLeavesNoEntry) {
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

TEST_F(FormCodigoJumps, AJumpOnAKindWithoutEventsIsForgotten) {
  project_.Builder.Form(1).Add(Kind::WinSock, "Sock");
  Select(Kind::WinSock, 1);
  project_.Tables.JumpKey = "OnKeyUp";
  codigo_.Open();
  EXPECT_EQ(project_.Tables.JumpKey, "");
}

}  // namespace
}  // namespace tarnwick::test
