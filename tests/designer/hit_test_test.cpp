#include "designer/hit_test.h"

#include "surface_fixture.h"

namespace tarnwick {
namespace {

using HitTesting = SurfaceTest;

TEST_F(HitTesting, TheTopmostObjectTakesThePress) {
  const ControlRef below = Place("RichTextBox", 10, 10);
  form.Objeto = "Button";
  Press(300, 300);
  gestures.MouseUp();
  const ControlRef above = form.ControlSel;
  above->Left = below->Left;
  above->Top = below->Top;
  user.SelectForm();
  EXPECT_EQ(HitTest(form, below->Left + 15, below->Top + 15).Object, above);
  form.ZOrder(above, false);
  EXPECT_EQ(HitTest(form, below->Left + 15, below->Top + 15).Object, below);
  EXPECT_EQ(HitTest(form, Twips(390), Twips(10)).Object, nullptr);
}

TEST_F(HitTesting, VisibleHandlesLieOnTopOfAll) {
  const ControlRef button = Place("Button", 100, 100);
  EXPECT_EQ(HitTest(form, button->Left, button->Top).Handle, 0);
  EXPECT_EQ(
      HitTest(form, button->Left + button->Width - 1, button->Top + button->Height - 1).Handle, 4);
  user.SelectForm();
  const Hit hit = HitTest(form, button->Left, button->Top);
  EXPECT_EQ(hit.Handle, -1);
  EXPECT_EQ(hit.Object, button);
}

TEST_F(HitTesting, PaintedAreTheVisibleObjectsAndNothingElse) {
  const ControlRef button = Place("Button", 100, 100);
  const ControlRef label = Place("Label", 200, 200);
  const ControlRef hidden = Place("Button", 10, 10);
  hidden->Visible = false;
  const ControlRef title = form.Load(Kind::Menu);
  title->Visible = true;
  EXPECT_EQ(PaintOrder(form), (std::vector<ControlRef>{label, button}));
}

TEST_F(HitTesting, ThePlacingPressLooksInTheOrderOfCreation) {
  const ControlRef first = Place("Label", 100, 100);
  const ControlRef second = Place("Button", 200, 200);
  second->Left = first->Left;
  second->Top = first->Top;
  EXPECT_EQ(FirstObjectUnder(form, first->Left, first->Top), first);
  first->Visible = false;
  EXPECT_EQ(FirstObjectUnder(form, first->Left, first->Top), second);
}

}  // namespace
}  // namespace tarnwick
