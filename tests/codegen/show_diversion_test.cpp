#include "codegen/show_diversion.h"

#include <random>
#include <string_view>

#include <gtest/gtest.h>

#include "codegen/show_rewriter.h"

namespace tarnwick::test {
namespace {

std::string FormByForm(std::string text, const std::vector<ShowDiversion>& forms) {
  for (const ShowDiversion& form : forms) {
    text = RewriteShowCalls(text, form.Name + ".show", form.Replacement);
  }
  return text;
}

std::string RandomWords(std::mt19937& random, const std::vector<std::string>& words,
                        std::size_t most) {
  std::string text;
  for (std::size_t n = random() % (most + 1); n > 0; --n) text += words[random() % words.size()];
  return text;
}

TEST(ShowDiversion, NoFormChangesNothing) {
  EXPECT_EQ(DivertShowCalls("Form1.Show\r\n", {}), "Form1.Show\r\n");
}

TEST(ShowDiversion, EachFormHasItsOwnSub) {
  EXPECT_EQ(DivertShowCalls("A.Show\r\nB.Show\r\nC.Show1\r\nD.Show\r\n",
                            {{"A", "R1"}, {"B", "R2"}, {"C", "R3"}}),
            "R1\nR2\nC.Show\r\nD.Show\r\n");
}

TEST(ShowDiversion, SecondFormOfANameMeetsWhatTheFirstLeft) {
  EXPECT_EQ(DivertShowCalls("A.Show1;", {{"A", "R1"}, {"A", "R2"}}), "R2");
}

TEST(ShowDiversion, EqualsFormByFormOnRandomCalls) {
  const std::vector<std::string> words{"Form1", "Form2",        "Frm1", ".Show", ".show",
                                       "1",     "w1",           "w",    "Modal", "\r\n",
                                       "x",     "TrnspAbrFrm1", "m1",   "o"};
  const std::vector<std::string> names{"Form1", "Form2", "Frm1", "1",    "w1",     "m1", "how",
                                       "show",  "w",     ".S",   "Frm2", "a.show", "r"};
  std::mt19937 random(1903);
  for (int round = 0; round < 60000; ++round) {
    std::vector<ShowDiversion> forms(2 + random() % 4);
    for (std::size_t f = 0; f < forms.size(); ++f) {
      forms[f] = {names[random() % names.size()], "TrnspAbrFrm" + std::to_string(f + 1)};
    }
    const std::string text = RandomWords(random, words, 24);
    ASSERT_EQ(DivertShowCalls(text, forms), FormByForm(text, forms))
        << "text " << text << " names " << forms[0].Name << " " << forms[1].Name;
  }
}

TEST(ShowDiversion, EqualsFormByFormOnDenseCalls) {
  const std::vector<std::string> words{".show", ".show", ".show", "1", "w", "a", "h", "R"};
  const std::vector<std::string> names{"w", "ow", "show", "a", "R", "wR", "R1", "1", "w1", "1a"};
  std::mt19937 random(77);
  for (int round = 0; round < 60000; ++round) {
    std::vector<ShowDiversion> forms(2 + random() % 5);
    for (ShowDiversion& form : forms) {
      form = {names[random() % names.size()], random() % 2 == 0 ? "R1" : "aRw"};
    }
    const std::string text = RandomWords(random, words, 16);
    ASSERT_EQ(DivertShowCalls(text, forms), FormByForm(text, forms)) << "text " << text;
  }
}

TEST(ShowDiversion, NamelessFormIsServedFormByForm) {
  const std::vector<ShowDiversion> forms{{"", "R1"}, {"A", "R2"}};
  EXPECT_EQ(DivertShowCalls("A.ShowModal A.Show B", forms),
            FormByForm("A.ShowModal A.Show B", forms));
}

}  // namespace
}  // namespace tarnwick::test
