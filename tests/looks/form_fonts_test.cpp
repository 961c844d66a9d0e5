// Fonts of forms: substitutes take the room of the font that they stand for.
#include "looks/form_fonts.h"

#include <QString>
#include <limits>

#include <gtest/gtest.h>

namespace tarnwick::looks {
namespace {

TEST(FormFonts, NewObjectsShowTheirWholeCaptions) {
  struct Case {
    const char* Caption;
    int Room;  ///< width of a new object without its edge or its mark
  };
  FormFonts fonts;
  const FormFont& font = fonts.At({"MS Sans Serif", 8});
  for (const Case& c :
       {Case{"Form1Btn1", 75 - 6}, Case{"Form1Label1", 65}, Case{"Form1Check1", 97 - 18}}) {
    EXPECT_LE(font.Metrics.horizontalAdvance(QString::fromLatin1(c.Caption)), c.Room) << c.Caption;
  }
}

TEST(FormFonts, AFontIsMadeOnceAndASizeThatIsNoNumberIsEightPoints) {
  FormFonts fonts;
  const FormFont& font = fonts.At({"MS Sans Serif", 8});
  EXPECT_EQ(&fonts.At({"MS Sans Serif", 8}), &font);
  EXPECT_NE(&fonts.At({"MS Sans Serif", 8, true}), &font);
  EXPECT_EQ(font.Font.pixelSize(), 11);
  EXPECT_EQ(fonts.At({"MS Sans Serif", std::numeric_limits<float>::quiet_NaN()}).Font.pixelSize(),
            11);
}

}  // namespace
}  // namespace tarnwick::looks
