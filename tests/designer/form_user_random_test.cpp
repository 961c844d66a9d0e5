// What holds after any sequence of presses, moves, keys and commands.
#include <algorithm>
#include <array>
#include <random>

#include "designer/hit_test.h"
#include "designer/object_kinds.h"
#include "designer/selection.h"
#include "surface_fixture.h"

namespace tarnwick {
namespace {

class FormUserRandom : public SurfaceTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  int Number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }
  ControlRef AnyObject() {
    const std::vector<ControlRef> order = PaintOrder(form);
    return order.empty() ? nullptr
                         : order[static_cast<std::size_t>(Number(static_cast<int>(order.size())))];
  }
  /// Presses whatever the mouse finds, as a view does.
  void PressAnywhere() {
    const int x = Number(420) - 10;
    const int y = Number(350) - 10;
    const int button = Number(5) == 0 ? kRightButton : kLeftButton;
    const Hit hit = HitTest(form, Twips(x), Twips(y));
    Point(x, y);
    if (hit.Handle >= 0) {
      gestures.HandleMouseDown(hit.Handle, button);
    } else if (hit.Object) {
      gestures.ObjectMouseDown(hit.Object, button, 0, Twips(x) - hit.Object->Left,
                               Twips(y) - hit.Object->Top);
    } else {
      gestures.Form_MouseDown(button, 0, Twips(x), Twips(y));
    }
  }
  void Step() {
    static constexpr std::array kKeys{keys::kTab,  keys::kLeft,   keys::kUp, keys::kRight,
                                      keys::kDown, keys::kDelete, keys::kX,  keys::kC,
                                      keys::kV,    keys::kReturn};
    switch (Number(12)) {
      case 0:
      case 1: {
        // Every object kind and the frame.
        const int chosen = Number(static_cast<int>(kObjectKindCount) + 1);
        const Kind kind = chosen == 0 ? Kind::Frame : static_cast<Kind>(chosen - 1);
        if (form.Controls().size() < 120) form.Objeto = InfoOf(kind).Name;
        return PressAnywhere();
      }
      case 2:
      case 3:
        return PressAnywhere();
      case 4:
      case 5:
        return MoveTo(Number(2000) - 800, Number(2000) - 800);
      case 6:
      case 7:
        return gestures.MouseUp();
      case 8:
      case 9:
        user.Keys().KeyDown(kKeys[static_cast<std::size_t>(Number(10))], Number(4));
        return;
      case 10:
        if (Number(3) == 0) return commands.ToggleLock();
        if (Number(2) == 0) return commands.aligngrid();
        return Number(2) == 0 ? commands.BringToFront() : commands.SendToBack();
      default:
        if (Number(4) == 0) return user.SelectForm();
        return user.SelectObject(AnyObject());
    }
  }
  void CheckSelection() {
    if (form.ControlSel) {
      ASSERT_EQ(form.Element(form.ControlSel->Id, form.ControlSel->Index), form.ControlSel);
      ASSERT_EQ(form.NameObjet, NameObjetOf(*form.ControlSel));
      ASSERT_EQ(form.IndexObjet, form.ControlSel->Index);
    } else {
      ASSERT_EQ(form.NameObjet, "Form");
      ASSERT_EQ(form.IndexObjet, 0);
    }
  }
  void CheckGesture() {
    const bool running = gestures.Mode() != DragMode::None;
    ASSERT_EQ(ports.Gestures.Captured, running);
    ASSERT_EQ(ports.Gestures.Confined, running);
    if (running) {
      ASSERT_TRUE(form.m_bDesignMode);
      ASSERT_NE(form.ControlSel, nullptr);
    }
    for (int i = 1; i < 8; ++i) ASSERT_EQ(HandleVisible(i), HandleVisible(0));
    if (HandleVisible(0) && !running) {
      ASSERT_NE(form.ControlSel, nullptr);
      ASSERT_EQ(form.Element(Kind::Handle, 0)->Left,
                static_cast<float>(WholeUnits(form.ControlSel->Left)) - 52 + 8);
    }
  }
  void CheckControls() {
    for (const ControlRef& control : form.Controls()) {
      ASSERT_GE(control->Width, 0);
      ASSERT_GE(control->Height, 0);
      if (!IsObject(*control)) continue;
      ASSERT_FALSE(control->Tag.empty());
      const RecordArray<ObjectRec>* records = record.Objects(control->Id);
      if (records != nullptr) {
        ASSERT_GE(records->UBound(), control->Index);
      }
    }
    ASSERT_EQ(std::count_if(form.DrawOrder().begin(), form.DrawOrder().end(),
                            [](const ControlRef& c) { return IsObject(*c); }),
              std::count_if(form.Controls().begin(), form.Controls().end(),
                            [](const ControlRef& c) { return IsObject(*c); }));
  }

  std::mt19937 random_{GetParam()};
};

TEST_P(FormUserRandom, SelectionGestureAndControlsStayInStep) {
  for (int step = 0; step < 1500; ++step) {
    Step();
    CheckSelection();
    CheckGesture();
    CheckControls();
    if (HasFatalFailure()) FAIL() << "seed " << GetParam() << " step " << step;
  }
  EXPECT_EQ(ports.Log.Count("band") % 2, gestures.Mode() == DragMode::None ? 0U : 1U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, FormUserRandom, ::testing::Range(0U, 20U));

}  // namespace
}  // namespace tarnwick
