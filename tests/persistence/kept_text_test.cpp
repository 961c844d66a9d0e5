#include "persistence/kept_text.h"

#include <string>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(KeptText, TheMarksOfAStoredTextBecomeQuestionMarks) {
  EXPECT_EQ(KeptBytes("a\x95 b\x8D c", Tag::String), "a? b? c");
  EXPECT_EQ(KeptBytes("a\x95 b\x8D c", Tag::Tip), "a\x95 b? c");
  EXPECT_EQ(KeptBytes("a\x8C b\x95", Tag::Items), "a? b\x95");
  EXPECT_EQ(KeptBytes("a\x95\x8C\x8D", Tag::Width), "a\x95\x8C\x8D");
  EXPECT_EQ(KeptBytes("a, b\xE9", Tag::String), "a, b\xE9");
  EXPECT_EQ(KeptBytes("a\x95", Tag::None), "a\x95");
}

TEST(KeptText, BracketsAloneAreKept) {
  for (const char* text :
       {"", "plain", "<", ">", "<>", "a < b > c", "<b>bold</b>", "(5)", "{x} [y]"}) {
    EXPECT_TRUE(RecordKeeps(Kind::Button, Tag::String, text)) << text;
  }
}

TEST(KeptText, ATagWordBesideABracketTearsTheRecord) {
  for (const char* text : {">String", "a>STRINGs", "Click here: Click<", "<b>Click here</b>",
                           "Color<5>Color", "tip<"}) {
    EXPECT_FALSE(RecordKeeps(Kind::Button, Tag::String, text)) << text;
  }
}

TEST(KeptText, TagsWhoseValueStandsBeforeTheTextAreNoDanger) {
  EXPECT_TRUE(RecordKeeps(Kind::Button, Tag::String, "Left<5>Left"));
  EXPECT_FALSE(RecordKeeps(Kind::OpenDialog, Tag::String, "Width<5>Width")) << "there it follows";
  EXPECT_FALSE(RecordKeeps(Kind::Label, Tag::Tip, "a>Transparent")) << "the value would be lost";
}

TEST(KeptText, ANumberInBracketsIsTakenWhereTheHeadHasNone) {
  EXPECT_FALSE(RecordKeeps(Kind::WinSock, Tag::Items, "(5)"));
  EXPECT_TRUE(RecordKeeps(Kind::ListBox, Tag::Tip, "(5)"));
}

}  // namespace
}  // namespace tarnwick
