// Rows that hold a colour.
#include <string>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

TEST(RowColours, ColorOfAFormPaintsTheWindowAnew) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Type("Color", "255");
  EXPECT_EQ(bench.Form().BackColor, 255);
  EXPECT_TRUE(bench.Logged("recolor"));
}

TEST(RowColours, FontColorOfAButtonGoesToItsRecord) {
  SheetBench bench;
  bench.Make(Kind::Button);
  EXPECT_TRUE(bench.Type("FontColor", "65280"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->FontColor, 65280);
  const ControlRef label = bench.Make(Kind::Label);
  EXPECT_TRUE(bench.Type("FontColor", "16711680"));
  EXPECT_EQ(label->ForeColor, 16711680);
}

TEST(RowColours, AColourIsTypedAsANameANumberOrInHexadecimal) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  const struct {
    const char* Typed;
    std::int32_t Colour;
  } cases[] = {{"255", 255},
               {"clRed", 255},
               {"CLBLUE", 16711680},
               {"clScrollBar", -2147483647 - 1},
               {"clBtnFace", -2147483633},
               {"&HFF", 255},
               {"&h00ff00", 65280},
               {"&H80000005", -2147483643},
               {"$FF", 255},
               {"$FF0000", 255},
               {"$0000ff", 16711680},
               {" clWhite ", 16777215},
               {"-2147483633", -2147483633}};
  for (const auto& c : cases) {
    label->BackColor = 1;
    bench.Sheet.ShowSelection();
    EXPECT_TRUE(bench.Type("Color", c.Typed)) << c.Typed;
    EXPECT_EQ(label->BackColor, c.Colour) << c.Typed;
    bench.Sheet.LeaveRow();
    EXPECT_EQ(bench.Text("Color"), std::to_string(c.Colour)) << c.Typed;
  }
}

TEST(RowColours, AHalfTypedColourChangesNothing) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  for (const char* text : {"c", "clRe", "&", "&H", "$", "&HXY", "$GG", "red"}) {
    EXPECT_FALSE(bench.Type("Color", text)) << text;
    EXPECT_EQ(label->BackColor, 12632256) << text;
  }
  EXPECT_FALSE(bench.Type("Color", "&H123456789"));
  EXPECT_EQ(label->BackColor, 12632256);
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Text("Color"), "12632256");
}

TEST(RowColours, EveryColourRowTakesNames) {
  SheetBench bench;
  bench.Pick(nullptr);
  EXPECT_TRUE(bench.Type("Color", "clBlue"));
  EXPECT_EQ(bench.Form().BackColor, 16711680);
  bench.Make(Kind::Button);
  EXPECT_TRUE(bench.Type("FontColor", "clRed"));
  EXPECT_EQ(bench.Record().Buttons.At(1)->FontColor, 255);
  bench.Make(Kind::TransparentFrame);
  EXPECT_TRUE(bench.Type("TranspColor", "clGreen"));
  EXPECT_EQ(bench.Record().TfTranspColor, 65280);
}

}  // namespace
}  // namespace tarnwick
