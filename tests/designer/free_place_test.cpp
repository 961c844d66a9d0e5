#include "designer/free_place.h"

#include <gtest/gtest.h>

#include "model/units.h"

namespace tarnwick {
namespace {

constexpr float kPixel = kTwipsPerPixel;

/// A form of 400 by 300 pixels.
class FreePlace : public testing::Test {
 protected:
  FreePlace() {
    form.Width = 400 * kPixel;
    form.Height = 300 * kPixel;
  }
  void Put(float left, float top, float width, float height) {
    const ControlRef control = form.Load(Kind::Button);
    control->Visible = true;
    control->Left = left * kPixel;
    control->Top = top * kPixel;
    control->Width = width * kPixel;
    control->Height = height * kPixel;
  }
  FormPlace Find(float width, float height) {
    const FormPlace place = FreePlaceFor(form, width * kPixel, height * kPixel);
    return {place.X / kPixel, place.Y / kPixel};
  }

  DesignForm form;
};

TEST_F(FreePlace, AnEmptyFormHasItsFirstPlaceOneStepFromTheCorner) {
  EXPECT_EQ(Find(75, 25).X, 10);
  EXPECT_EQ(Find(75, 25).Y, 10);
}

TEST_F(FreePlace, TheNextObjectStandsBesideTheFirst) {
  Put(10, 10, 75, 25);
  EXPECT_EQ(Find(75, 25).X, 90);
  EXPECT_EQ(Find(75, 25).Y, 10);
}

TEST_F(FreePlace, AFullRowLeadsToTheNextOne) {
  Put(10, 10, 370, 25);
  EXPECT_EQ(Find(75, 25).X, 10);
  EXPECT_EQ(Find(75, 25).Y, 40);
}

TEST_F(FreePlace, AFullFormAndOneThatIsTooSmallGiveTheFirstPlace) {
  Put(0, 0, 400, 300);
  EXPECT_EQ(Find(75, 25).X, 10);
  EXPECT_EQ(Find(75, 25).Y, 10);
  EXPECT_EQ(Find(500, 25).X, 10);
}

}  // namespace
}  // namespace tarnwick
