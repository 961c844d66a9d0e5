#include "basic/source/preprocessor.h"

#include <gtest/gtest.h>

#include "basic/source/logical_line.h"
#include "basic/source/macro_table.h"
#include "fakes/source_text.h"

namespace tarnwick::basic {
namespace {

using test::MemorySources;
using test::ParsedText;

std::string Read(std::string text) {
  return ParsedText(std::move(text)).Tokens();
}
std::string Faults(std::string text) {
  return ParsedText(std::move(text)).Faults();
}

TEST(Preprocessor, DropsCommentsAndBlankLines) {
  EXPECT_EQ(Read("a = 1 ' one\n\n' two\nREM three\nb = 2\n"), "a = 1 | b = 2 |");
}
TEST(Preprocessor, TakesContinuedLinesTogether) {
  EXPECT_EQ(Read("a = 1 + _\n  2\nb = 3"), "a = 1 + 2 | b = 3 |");
}
TEST(Preprocessor, PutsAnIncludeInItsPlace) {
  MemorySources sources;
  sources.Files["C:\\Work\\one.inc"] = "b = 2\n";
  sources.Files["C:\\Tarnwick\\two.inc"] = "c = 3";
  ParsedText text("a = 1\n$INCLUDE \"one.inc\"\n$Include <two.inc>\nd = 4\n", sources);
  EXPECT_EQ(text.Tokens(), "a = 1 | b = 2 | c = 3 | d = 4 |");
  EXPECT_EQ(text.Stream[4].At, (SourcePlace{1, 1, 1, 1}));
}
TEST(Preprocessor, TakesTheSameFileTwice) {
  MemorySources sources;
  sources.Files["C:\\Work\\one.inc"] = "b = 2\n";
  EXPECT_EQ(ParsedText("$INCLUDE \"one.inc\"\n$INCLUDE \"one.inc\"\n", sources).Tokens(),
            "b = 2 | b = 2 |");
}
TEST(Preprocessor, AMissingIncludeIsAFaultAtItsName) {
  EXPECT_EQ(Faults("$INCLUDE \"x.inc\""), "1:10: The file x.inc was not found or is too large\n");
}
TEST(Preprocessor, AConstantOfAnIncludedFileGivesWayToADefinitionInFrontOfIt) {
  MemorySources sources;
  sources.Files["C:\\Work\\one.inc"] = "CONST a = 1\nCONST b = 2\n";
  EXPECT_EQ(ParsedText("$DEFINE a 5\n$INCLUDE \"one.inc\"\nx = a\n", sources).Tokens(),
            "CONST b = 2 | x = 5 |");
  EXPECT_EQ(Read("$DEFINE a c\nCONST a = 1"), "CONST c = 1 |") << "the program's own line";
}
TEST(Preprocessor, FilesThatIncludeThemselvesEndInAFault) {
  MemorySources sources;
  sources.Files["C:\\Work\\one.inc"] = "$INCLUDE \"one.inc\"\n";
  EXPECT_NE(ParsedText("$INCLUDE \"one.inc\"\n", sources).Faults().find("more than 64 deep"),
            std::string::npos);
}
TEST(Preprocessor, DefineReplacesANameByItsText) {
  EXPECT_EQ(Read("$DEFINE boolean integer\nDIM a AS Boolean"), "DIM a AS integer |");
  EXPECT_EQ(Read("$DEFINE gone\na gone = 1"), "a = 1 |");
}
TEST(Preprocessor, ADefinitionWithinItsOwnTextStays) {
  EXPECT_EQ(Read("$DEFINE a b\n$DEFINE b a + 1\nx = a"), "x = a + 1 |");
}
TEST(Preprocessor, TextOfAMacroHasThePlaceOfItsUse) {
  ParsedText text("$DEFINE two 1 + 1\nx = two\n");
  EXPECT_EQ(text.Stream[2].At, (SourcePlace{2, 0, 5, 3}));
  EXPECT_EQ(text.Stream[4].At, (SourcePlace{2, 0, 5, 3}));
}
TEST(Preprocessor, UndefEndsADefinition) {
  EXPECT_EQ(Read("$DEFINE a 1\nx = a\n$UNDEF a\ny = a"), "x = 1 | y = a |");
}
TEST(Preprocessor, ConditionsChooseLinesAndNest) {
  EXPECT_EQ(Read("$IFDEF a\nx\n$ELSE\ny\n$ENDIF"), "y |");
  EXPECT_EQ(Read("$DEFINE a\n$IFDEF a\nx\n$IFNDEF a\nz\n$ENDIF\n$ELSE\ny\n$ENDIF"), "x |");
  EXPECT_EQ(Read("$IFDEF a\n$IFNDEF b\nx\n$ELSE\nz\n$ENDIF\n$ENDIF\ny"), "y |");
}
TEST(Preprocessor, TrueAndFalseCountAsDefined) {
  EXPECT_EQ(Read("$IFNDEF TRUE\n$DEFINE TRUE 7\n$ENDIF\nx = True"), "x = True |");
}
TEST(Preprocessor, UnbalancedConditionsAreFaults) {
  EXPECT_EQ(Faults("$ENDIF"), "1:1: $ENDIF without $IFDEF or $IFNDEF in front of it\n");
  EXPECT_EQ(Faults("$ELSE"), "1:1: $ELSE without $IFDEF or $IFNDEF in front of it\n");
  EXPECT_EQ(Faults("$IFDEF a\n"), "1:1: The $ENDIF of this test is missing\n");
}
TEST(Preprocessor, MacrosTakeArgumentsAsTheyStand) {
  EXPECT_EQ(Read("$MACRO twice(a) a * 2\nx = twice(1 + 1)"), "x = 1 + 1 * 2 |");
  EXPECT_EQ(Read("$MACRO both(a, b) a : b\nboth(x = 1, y(1, 2))"), "x = 1 : y ( 1 , 2 ) |");
}
TEST(Preprocessor, MacrosOfOneNameDifferInTheirParameters) {
  EXPECT_EQ(Read("$MACRO m(a) one a\n$MACRO m(a, b) two a b\nm(1)\nm(1, 2)\nm"),
            "one 1 | two 1 2 | m |");
}
TEST(Preprocessor, TwoNumberSignsPaste) {
  EXPECT_EQ(Read("$MACRO make(a) a ## Button\nmake(My)"), "MyButton |");
}
TEST(Preprocessor, AMacroBehindAnIncludeHoldsInItsFileOnly) {
  MemorySources sources;
  sources.Files["C:\\Work\\one.inc"] = "$MACRO inner 2\nx = inner\ny = outer\n";
  EXPECT_EQ(ParsedText("$MACRO outer 1\n$INCLUDE \"one.inc\"\nz = inner\n", sources).Tokens(),
            "x = 2 | y = 1 | z = inner |");
}
TEST(Preprocessor, AGrowingMacroEndsInAFault) {
  std::string text = "$DEFINE a0 x x\n";
  for (int i = 1; i < 30; ++i) {
    const std::string below = " a" + std::to_string(i - 1);
    text += "$DEFINE a" + std::to_string(i) + below + below + "\n";
  }
  EXPECT_NE(Faults(text + "a29").find("too long or too deep"), std::string::npos);
}
TEST(Preprocessor, EscapesAreResolvedWhereTheyAreOn) {
  EXPECT_EQ(Read("a = \"x\\ty\""), "a = x\\ty |");
  EXPECT_EQ(Read("$ESCAPECHARS ON\na = \"\\\"\\\\\\n\\r\\t\\x41\\066\\q\""),
            "a = \"\\\n\r\tAB\\q |");
  EXPECT_EQ(Read("$ESCAPECHARS ON\n$ESCAPECHARS OFF\na = \"\\n\""), "a = \\n |");
}
TEST(Preprocessor, ATextGoesOnInTheNextLine) {
  EXPECT_EQ(Read("a = \"one _\ntwo\" + b"), "a = one two + b |");
}
TEST(Preprocessor, AStatementOfTooManyLinesIsAFault) {
  std::string text;
  for (int i = 0; i <= kMaxContinuedLines; ++i) text += "a + _\n";
  EXPECT_NE(Faults(text).find("too many lines"), std::string::npos);
}
TEST(Preprocessor, UnknownDirectivesAreFaultsOnlyWhereLinesCount) {
  EXPECT_EQ(Faults("$WRONG x"), "1:1: The directive $WRONG is not known\n");
  EXPECT_EQ(Faults("$IFDEF a\n$WRONG x\n$ENDIF"), "");
  EXPECT_EQ(Faults("$OPTIMIZE ON"), "");
}
TEST(Preprocessor, NoMoreThanFiftyErrorsAreKept) {
  std::string text;
  for (int i = 0; i < 200; ++i) text += "$WRONG\n";
  EXPECT_EQ(ParsedText(text).Found.All().size(), kMaxErrors);
}

}  // namespace
}  // namespace tarnwick::basic
