#include "fakes/golden_text.h"

#include <string>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

TEST(GoldenText, EqualTextsHaveNoDiff) {
  EXPECT_EQ(UnifiedDiff("a\r\nb\r\n", "a\r\nb\r\n"), "");
}

TEST(GoldenText, ADiffShowsTheLinesAroundAndTheBytesThatDoNotPrint) {
  const std::string diff = UnifiedDiff("one\r\ntwo\r\n", "one\r\nt\x95o\r\n");
  EXPECT_NE(diff.find(" one\\x0D\n-two\\x0D\n+t\\x95o\\x0D\n"), std::string::npos) << diff;
}

TEST(GoldenText, ALineEndThatIsMissingShows) {
  EXPECT_NE(UnifiedDiff("a\r\n", "a\n").find("-a\\x0D\n+a\n"), std::string::npos);
}

TEST(GoldenText, AResultThatDiffersFailsWithItsNameAndTheDiff) {
  EXPECT_NONFATAL_FAILURE(ExpectSameText("x.com", "b\n", "a\n"), "x.com is not as expected");
  EXPECT_NONFATAL_FAILURE(ExpectSameText("x.com", "b\n", "a\n"), "-a\n+b\n");
}

}  // namespace
}  // namespace tarnwick::test
