#include "language/colour_names.h"

#include <gtest/gtest.h>

namespace tarnwick::language {
namespace {

TEST(ColourNames, AreFoundInAnyCaseAndBack) {
  EXPECT_EQ(ColourOfName("CLRED"), 255);
  EXPECT_EQ(ColourOfName("clBtnFace"), -2147483633);
  EXPECT_EQ(ColourOfName("red"), std::nullopt);
  EXPECT_EQ(NameOfColour(255), "clRed");
  EXPECT_EQ(NameOfColour(1), "");
  for (const ColourName& colour : kColourNames) {
    EXPECT_EQ(ColourOfName(colour.Name), colour.Value);
    EXPECT_EQ(NameOfColour(colour.Value), colour.Name);
  }
}

}  // namespace
}  // namespace tarnwick::language
