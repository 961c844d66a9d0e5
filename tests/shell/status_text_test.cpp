#include "shell/status_text.h"

#include "shell/shell_fixture.h"

namespace tarnwick {
namespace {

class StatusTextTest : public ShellTest {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(StatusTextTest, OfTheFormItTellsThePlaceAndSizeOfTheProgramsForm) {
  EXPECT_EQ(view.SelectionText, "Form1   Left 0  Top 0  Width 400  Height 333");
}

TEST_F(StatusTextTest, OfAnObjectItTellsPixels) {
  Place(0, 20, 30);
  EXPECT_EQ(view.SelectionText, "Form1Btn1   Left 20  Top 30  Width 75  Height 25");
  EXPECT_EQ(SelectionStatus(tables()), view.SelectionText);
}

TEST_F(StatusTextTest, ItFollowsTheObject) {
  Place(0, 20, 30);
  main.Commands().Run(Command::AlignToGrid);
  surface().Keys().KeyDown(keys::kRight, kCtrlBit);
  EXPECT_EQ(view.SelectionText, "Form1Btn1   Left 21  Top 30  Width 75  Height 25");
  main.Commands().Run(Command::Delete);
  EXPECT_EQ(view.SelectionText, "Form1   Left 0  Top 0  Width 400  Height 333");
}

TEST_F(StatusTextTest, APlaceBetweenPixelsIsToldAsItIs) {
  Place(0, 20, 30);
  tables().CurrentForm->ControlSel->Left = 307.5F;
  main.RefreshStatus();
  EXPECT_EQ(view.SelectionText, "Form1Btn1   Left 20.5  Top 30  Width 75  Height 25");
}

TEST(PointerText, TellsWholePixels) {
  EXPECT_EQ(PointerStatus(Twips(12), Twips(30)), "X 12  Y 30");
  EXPECT_EQ(PointerStatus(188, -15), "X 13  Y -1");
}

TEST_F(StatusTextTest, WithoutAFormThereIsNothingToTell) {
  ports.Messages.Answers = {true};
  main.Commands().Run(Command::Remove);
  EXPECT_EQ(SelectionStatus(tables()), "");
}

}  // namespace
}  // namespace tarnwick
