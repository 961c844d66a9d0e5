#include "codegen/show_rewriter.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

#include "text/code_page.h"

namespace tarnwick::test {
namespace {

/// The rule as it is told: one edit of the whole text after the other.
std::string RewriteStepByStep(const std::string& text, const std::string& pattern,
                              const std::string& replacement) {
  std::string w = text;
  std::size_t p = 1;
  std::size_t c = 0;
  while (c <= text.size()) {
    if (p > w.size()) break;
    const std::size_t found = Lower(w).find(Lower(pattern), p - 1);
    if (found == std::string::npos) break;
    p = found + 1;
    const std::string t = w.substr(found + pattern.size());
    if (Lower(t.substr(0, 3)) != "hint") {
      if (t.substr(0, 1) == "1") {
        w = w.substr(0, found + pattern.size()) + t.substr(1);
      } else if (Lower(w.substr(found, pattern.size() + 5)) != ".showmodal") {
        w = w.substr(0, found) + replacement + (t.empty() ? "" : t.substr(1));
      }
    }
    ++p;
    ++c;
  }
  return w;
}

std::string RandomText(std::mt19937& random, std::string_view letters, std::size_t most) {
  std::string text(random() % (most + 1), ' ');
  for (char& c : text) c = letters[random() % letters.size()];
  return text;
}

TEST(ShowRewriter, DirectCallLosesTheByteBehindIt) {
  EXPECT_EQ(RewriteShowCalls("Form1.Show\r\nBeep\r\n", "Form1.show", "TrnspAbrFrm1"),
            "TrnspAbrFrm1\nBeep\r\n");
}

TEST(ShowRewriter, Show1BecomesTheRealShow) {
  EXPECT_EQ(RewriteShowCalls("Form1.Show1\r\nDo\r\n", "Form1.show", "TrnspAbrFrm1"),
            "Form1.Show\r\nDo\r\n");
}

TEST(ShowRewriter, ShowModalLeavesItsTail) {
  EXPECT_EQ(RewriteShowCalls("Form1.ShowModal\r\n", "Form1.show", "TrnspAbrFrm1"),
            "TrnspAbrFrm1odal\r\n");
}

TEST(ShowRewriter, ShowHintIsRewrittenToo) {
  EXPECT_EQ(RewriteShowCalls("Form1.ShowHint = 1\r\n", "Form1.show", "TrnspAbrFrm1"),
            "TrnspAbrFrm1int = 1\r\n");
}

TEST(ShowRewriter, CaseDoesNotCount) {
  EXPECT_EQ(RewriteShowCalls("FORM1.sHOW\r\n", "Form1.show", "TrnspAbrFrm1"), "TrnspAbrFrm1\n");
  EXPECT_EQ(RewriteShowCalls("\xC4.Show x", "\xE4.show", "R"), "Rx");
}

TEST(ShowRewriter, MatchAtTheVeryEnd) {
  EXPECT_EQ(RewriteShowCalls("Form1.Show", "Form1.show", "TrnspAbrFrm1"), "TrnspAbrFrm1");
  EXPECT_EQ(RewriteShowCalls("Form1.Show1", "Form1.show", "TrnspAbrFrm1"), "Form1.Show");
}

TEST(ShowRewriter, NoMatchChangesNothing) {
  EXPECT_EQ(RewriteShowCalls("", "Form1.show", "TrnspAbrFrm1"), "");
  EXPECT_EQ(RewriteShowCalls("Form2.Show\r\n", "Form1.show", "TrnspAbrFrm1"), "Form2.Show\r\n");
}

TEST(ShowRewriter, EveryCallOfALongerNameEndingAlikeIsHitToo) {
  EXPECT_EQ(RewriteShowCalls("MyForm1.Show\r\n", "Form1.show", "TrnspAbrFrm1"), "MyTrnspAbrFrm1\n");
}

TEST(ShowRewriter, ReplacementCanCompleteThePatternAnew) {
  // The replacement's end and the text behind the dropped byte make the form's name again.
  EXPECT_EQ(RewriteShowCalls("Frm1.ShowX.Show;", "Frm1.show", "TrnspAbrFrm1"),
            "TrnspAbrTrnspAbrFrm1");
}

TEST(ShowRewriter, ReplacementHoldingThePatternStopsWithTheLengthOfTheText) {
  // Each hit makes the next one; the text has two bytes, so there are three hits.
  EXPECT_EQ(RewriteShowCalls("p?", "p", "xpp"), "xxxpp");
}

TEST(ShowRewriter, NamelessFormKeepsItsModalCalls) {
  EXPECT_EQ(RewriteShowCalls("A.ShowModal B.Show C", ".show", "R"), "A.ShowModal BRC");
}

TEST(ShowRewriter, EqualsTheRuleStepByStepOnRandomTexts) {
  std::mt19937 random(20011);
  for (int round = 0; round < 60000; ++round) {
    const std::string text = RandomText(random, "ab1A", 24);
    std::string pattern = RandomText(random, "ab1", 3);
    if (pattern.empty()) pattern = "a";
    const std::string replacement = RandomText(random, "ab1c", 5);
    ASSERT_EQ(RewriteShowCalls(text, pattern, replacement),
              RewriteStepByStep(text, pattern, replacement))
        << "text " << text << " pattern " << pattern << " replacement " << replacement;
  }
}

TEST(ShowRewriter, EqualsTheRuleStepByStepOnTextsOfCalls) {
  const std::vector<std::string> words{"Frm1", ".Show", ".show", "1", "Modal",    "Hint",
                                       "\r\n", "Frm",   "F",     ".", "TrnspAbr", "m1"};
  std::mt19937 random(4711);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (std::size_t n = random() % 16; n > 0; --n) text += words[random() % words.size()];
    for (const std::string name : {"Frm1", "", "m1", "1"}) {
      ASSERT_EQ(RewriteShowCalls(text, name + ".show", "TrnspAbrFrm1"),
                RewriteStepByStep(text, name + ".show", "TrnspAbrFrm1"))
          << "text " << text << " name " << name;
    }
  }
}

TEST(ShowRewriter, SeveralFormsInTurnEqualTheRuleStepByStep) {
  const std::vector<std::string> words{"Form1", "Form2", "Frm1", ".Show",
                                       "1",     "Modal", "\r\n", "x"};
  const std::vector<std::pair<std::string, std::string>> forms{{"Form1.show", "TrnspAbrFrm1"},
                                                               {"Form2.show", "TrnspAbrFrm2"},
                                                               {"Frm1.show", "TrnspAbrFrm3"}};
  std::mt19937 random(99);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (std::size_t n = random() % 20; n > 0; --n) text += words[random() % words.size()];
    std::string quick = text;
    std::string slow = text;
    for (const auto& [pattern, replacement] : forms) {
      quick = RewriteShowCalls(quick, pattern, replacement);
      slow = RewriteStepByStep(slow, pattern, replacement);
      ASSERT_EQ(quick, slow) << "text " << text;
    }
  }
}

}  // namespace
}  // namespace tarnwick::test
