#include "model/form_list.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(FormList, ALineIsTheNameAndTheBareFile) {
  EXPECT_EQ(FormListText("Form1", ""), "Form1 ()");
  EXPECT_EQ(FormListText("Main", "C:\\a\\b\\main.ftn"), "Main (main.ftn)");
  EXPECT_EQ(FormListText("Main", "main.ftn"), "Main (main.ftn)");
}

TEST(FormList, TheNamePartEndsAtTheFirstBracket) {
  EXPECT_EQ(FormListName("Form1 ()"), "Form1");
  EXPECT_EQ(FormListName("A (b) (c.ftn)"), "A");
  EXPECT_EQ(FormListName("Bare"), "Bare");
}

TEST(FormList, LinesStandInTheOrderOfTheirNumbers) {
  FormList list;
  list.Add("A ()", 1);
  list.Add("B ()", 2);
  list.Add("C ()", 5);
  EXPECT_EQ(list.PositionOf(5), 2);
  EXPECT_EQ(list.PositionOf(3), -1);
  EXPECT_TRUE(list.Remove(2));
  EXPECT_FALSE(list.Remove(2));
  EXPECT_EQ(list.PositionOf(5), 1);
  EXPECT_EQ(list.Lines()[1].Text, "C ()");
}

TEST(FormList, ALineIsHeldInAnyCase) {
  FormList list;
  list.Add("Form1 (A.ftn)", 1);
  EXPECT_TRUE(list.Holds("FORM1 (a.FTN)"));
  EXPECT_FALSE(list.Holds("Form1 ()"));
}

TEST(FormList, AChangedLineIsHeldUnderItsNewTextOnly) {
  FormList list;
  list.Add("Form1 ()", 1);
  EXPECT_TRUE(list.SetText(1, "Form1 (a.ftn)"));
  EXPECT_FALSE(list.SetText(2, "x"));
  EXPECT_FALSE(list.Holds("Form1 ()"));
  EXPECT_TRUE(list.Holds("Form1 (a.ftn)"));
}

TEST(FormList, OfTwoEqualLinesOneStaysWhenTheOtherGoes) {
  FormList list;
  list.Add("Same ()", 1);
  list.Add("Same ()", 2);
  list.Remove(1);
  EXPECT_TRUE(list.Holds("Same ()"));
  list.Remove(2);
  EXPECT_FALSE(list.Holds("Same ()"));
  EXPECT_TRUE(list.Empty());
}

TEST(FormList, ClearingForgetsTheTextsToo) {
  FormList list;
  list.Add("Form1 ()", 1);
  list.Clear();
  EXPECT_TRUE(list.Empty());
  EXPECT_FALSE(list.Holds("Form1 ()"));
}

}  // namespace
}  // namespace tarnwick
