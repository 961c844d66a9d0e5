#include "model/vocabulary.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "text/strings.h"

namespace tarnwick {
namespace {

constexpr std::string_view kKeyDown = "OnKeyDown (Key As Word, Shift As Integer)";
constexpr std::string_view kMouseDown =
    "OnMouseDown (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)";
constexpr std::string_view kMouseMove =
    "OnMouseMove (X  As Integer, Y  As Integer, Shift  As Integer)";
constexpr std::string_view kMouseUp =
    "OnMouseUp (Btn As Integer, X  As Integer, Y  As Integer, Shift  As Integer)";

TEST(Vocabulary, EveryEventHasItsCodeSuffixAndSignature) {
  struct Row {
    std::string_view Code, Name, Signature;
  };
  const std::vector<Row> rows{
      {"10", "OnClick", "OnClick"},
      {"20", "OnClose", "OnClose (Action As Integer)"},
      {"30", "OnHint", "OnHint (Hint As String)"},
      {"40", "OnKeyDown", kKeyDown},
      {"50", "OnKeyPress", "OnKeyPress (Key As Byte)"},
      {"60", "OnKeyUp", "OnKeyUp (Key As Word, Shift As Integer)"},
      {"70", "OnMouseDown", kMouseDown},
      {"80", "OnMouseMove", kMouseMove},
      {"90", "OnMouseUp", kMouseUp},
      {"100", "OnEnter", "OnEnter"},
      {"110", "OnDblClick", "OnDblClick"},
      {"120", "OnChange", "OnChange"},
      {"130", "OnPaint", "OnPaint"},
      {"140", "OnResize", "OnResize"},
      {"150", "OnShow", "OnShow"},
      {"160", "OnTimer", "OnTimer"},
      {"170", "OnPopUp", "OnPopUp"},
  };
  ASSERT_EQ(rows.size(), kEventCount);
  for (const Row& row : rows) {
    const auto by_code = EventOfCode(row.Code);
    ASSERT_TRUE(by_code) << row.Code;
    const EventInfo& info = InfoOf(*by_code);
    EXPECT_EQ(info.Name, row.Name);
    EXPECT_EQ(info.Suffix, "." + std::string(row.Name));
    EXPECT_EQ(info.Signature, row.Signature);
    EXPECT_EQ(EventOfName(row.Name), by_code);
  }
}

TEST(Vocabulary, AnEventIsFoundByItsNameInAnyCase) {
  EXPECT_EQ(EventOfName("oNmOUSEdOWN"), Event::OnMouseDown);
  EXPECT_EQ(EventOfName("OnMouse"), std::nullopt);
  EXPECT_EQ(EventOfName(""), std::nullopt);
  EXPECT_EQ(EventOfCode("15"), std::nullopt);
}

TEST(Vocabulary, TheFurtherListsStandAsTheyAre) {
  EXPECT_EQ(kMemberEventNames,
            "OnTimer#OnClick#OnClose#OnChange#OnEnter#OnDblClick#OnHint#OnKeyDown#OnKeyPress#"
            "OnKeyUp#OnMouseDown#OnMouseMove#OnMouseUp#OnPaint#OnResize#OnShow#");
  // No OnKeyPress for forms.
  EXPECT_EQ(kShortFormEventNames,
            "OnClick#OnClose#OnHint#OnKeyDown#OnKeyUp#OnMouseDown#OnMouseMove#OnMouseUp#OnPaint#"
            "OnResize#OnShow");
  EXPECT_EQ(kShortObjectEventNames,
            "OnClick#OnKeyDown#OnKeyPress#OnKeyUp#OnMouseDown#OnMouseMove#OnMouseUp");
}

TEST(Vocabulary, ANewFormGetsThirteenEntriesAndANewObjectEleven) {
  using enum Event;
  const std::vector<Event> form(NewFormEvents().begin(), NewFormEvents().end());
  const std::vector<Event> object(NewObjectEvents().begin(), NewObjectEvents().end());
  EXPECT_EQ(form, (std::vector<Event>{OnTimer, OnClick, OnClose, OnHint, OnPaint, OnResize, OnShow,
                                      OnKeyDown, OnKeyPress, OnKeyUp, OnMouseDown, OnMouseMove,
                                      OnMouseUp}));
  EXPECT_EQ(object,
            (std::vector<Event>{OnTimer, OnClick, OnDblClick, OnKeyDown, OnKeyPress, OnKeyUp,
                                OnMouseDown, OnMouseMove, OnMouseUp, OnEnter, OnChange}));
}

}  // namespace
}  // namespace tarnwick
