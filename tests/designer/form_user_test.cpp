// A design window as a whole, and as other windows use it.
#include "surface_fixture.h"

namespace tarnwick {
namespace {

using FormUserTest = SurfaceTest;
using Entries = std::vector<std::string>;

TEST_F(FormUserTest, SelectingTheFormNotifiesTheViewsAndTheSheet) {
  Place("Button", 10, 10);
  ports.Log.Clear();
  user.SelectForm();
  EXPECT_EQ(Log(), (Entries{"commands", "selection", "properties Form Form1"}));
  EXPECT_EQ(form.NameObjet, "Form");
  EXPECT_FALSE(HandleVisible(0));
}

TEST_F(FormUserTest, SelectingByAnotherWindowIsAsAPress) {
  const ControlRef frame = Place("TransparentFrame", 10, 10);
  const ControlRef button = Place("Button", 200, 10);
  ports.Log.Clear();
  user.SelectObject(frame);
  EXPECT_EQ(form.ControlSel, frame);
  EXPECT_EQ(form.NameObjet, "TransparentFrame");
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, frame->Left - 52 + 8);
  EXPECT_EQ(Log(), (Entries{"commands", "selection", "properties TransparentFrame Form1TrnspFrm"}));
  commands.DeletObject(keys::kX, kCtrlBit);
  user.SelectObject(frame);
  EXPECT_EQ(form.ControlSel, nullptr) << "a deleted object cannot be selected";
}

TEST_F(FormUserTest, LoadingPaintsTheGridWithAYieldAfterEachDotAndSizesTheHandles) {
  form.Element(Kind::Handle, 3)->Width = 1;
  user.Form_Load();
  EXPECT_EQ(ports.Screen.Yields, 103 * 77);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(form.Element(Kind::Handle, i)->Width, 7 * 15);
    EXPECT_EQ(form.Element(Kind::Handle, i)->Height, 7 * 15);
  }
  EXPECT_EQ(user.Frame().Style().hwnd, 1);
}

TEST_F(FormUserTest, SizedHandlesArePaintedAtTheirSize) {
  ports.Log.Clear();
  user.PintaPuntitos();
  EXPECT_EQ(ports.Log.Count("paint"), 1U);
}

TEST_F(FormUserTest, AMenuItemIsSelectedByItsNameAndItsCodeOpened) {
  const ControlRef item = form.Load(Kind::MenuItem);
  item->Tag = "Form1mnuSave";
  item->Visible = true;
  Place("Button", 10, 10);
  user.MenuItemPress(item);
  EXPECT_EQ(form.NameObjet, "Form1mnuSave");
  EXPECT_EQ(form.IndexObjet, 1);
  EXPECT_EQ(Log().back(), "code");
  EXPECT_FALSE(HandleVisible(0));
  commands.CutObject(keys::kDelete);
  EXPECT_EQ(form.Element(Kind::MenuItem, 1), item) << "only the menu designer takes items off";
}

TEST_F(FormUserTest, HandlesFollowAnObjectThatWasEditedElsewhere) {
  const ControlRef button = Place("Button", 10, 10);
  button->Left = Twips(90);
  user.Selection().ControlsMoved();
  EXPECT_EQ(form.Element(Kind::Handle, 0)->Left, Twips(90) - 52 + 8);
  EXPECT_TRUE(HandleVisible(0));
  form.Unload(button);
  user.Selection().ControlsMoved();
  EXPECT_FALSE(HandleVisible(0)) << "nothing to sit on";
}

}  // namespace
}  // namespace tarnwick
