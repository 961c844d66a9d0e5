#include "language/lexer.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace tarnwick::language {
namespace {

/// The tokens of a line as text: a letter for the kind, then the bytes, parted by blanks.
std::string Lexed(std::string_view line, LineState state = {}) {
  std::vector<Token> tokens;
  LexLine(line, state, tokens);
  std::string text;
  for (const Token& token : tokens) {
    if (!text.empty()) text += ' ';
    text += "NdTSDCX?"[static_cast<std::size_t>(token.Kind)];
    text += ':';
    text += token.In(line);
  }
  return text;
}
LineState StateBehind(std::string_view line, LineState state = {}) {
  std::vector<Token> tokens;
  return LexLine(line, state, tokens);
}

TEST(Lexer, NamesNumbersTextsAndSigns) {
  EXPECT_EQ(Lexed("Digits(2).Checked = 1"), "N:Digits S:( d:2 S:) S:. N:Checked S:= d:1");
  EXPECT_EQ(Lexed("a = \"x y\" + b"), "N:a S:= T:\"x y\" S:+ N:b");
}
TEST(Lexer, AnEmptyOrBlankLineHasNoTokens) {
  EXPECT_EQ(Lexed(""), "");
  EXPECT_EQ(Lexed(" \t "), "");
}
TEST(Lexer, NamesMayHoldBytesAboveAscii) {
  EXPECT_EQ(Lexed("Caf\xE9 = 1"), "N:Caf\xE9 S:= d:1");
}
TEST(Lexer, ANameMayEndInOneSuffix) {
  EXPECT_EQ(Lexed("a$ b% c! d# e& f? g?? h???"), "N:a$ N:b% N:c! N:d# N:e& N:f? N:g?? N:h???");
}
TEST(Lexer, AmpersandBehindANameIsASuffixUnlessAnOperandTouchesIt) {
  EXPECT_EQ(Lexed("a& + b"), "N:a& S:+ N:b");
  EXPECT_EQ(Lexed("a$&b$"), "N:a$ S:& N:b$");
  EXPECT_EQ(Lexed("a&\"x\""), "N:a S:& T:\"x\"");
  EXPECT_EQ(Lexed("a & b"), "N:a S:& N:b");
}
TEST(Lexer, NumbersHaveFractionExponentAndSuffix) {
  EXPECT_EQ(Lexed("1 1.5 .5 1E3 1.5E-3 2D2 0# 7%"),
            "d:1 d:1.5 d:.5 d:1E3 d:1.5E-3 d:2D2 d:0# d:7%");
}
TEST(Lexer, NumbersMayHaveARadix) {
  EXPECT_EQ(Lexed("&H1F &h0000FF &B101 &O17"), "d:&H1F d:&h0000FF d:&B101 d:&O17");
  EXPECT_EQ(Lexed("x = &H&H12"), "N:x S:= d:&H&H12");
  EXPECT_EQ(Lexed("a & Hx"), "N:a S:& N:Hx");
}
TEST(Lexer, ANumberMayTouchAWordOfTheLanguage) {
  EXPECT_EQ(Lexed("FOR i=1TO 3"), "N:FOR N:i S:= d:1 N:TO d:3");
}
TEST(Lexer, ANameMayBeginWithADigit) {
  EXPECT_EQ(Lexed("SUB 3DView"), "N:SUB N:3DView");
  EXPECT_EQ(Lexed("2Times 4"), "N:2Times d:4");
}
TEST(Lexer, ADotBehindABracketIsNoNumber) {
  EXPECT_EQ(Lexed("a(1).5"), "N:a S:( d:1 S:) S:. d:5");
}
TEST(Lexer, SignsOfTwoCharactersAreOneToken) {
  EXPECT_EQ(Lexed("<= >= <> =< => >< ++ -- += -= ## ..."),
            "S:<= S:>= S:<> S:=< S:=> S:>< S:++ S:-- S:+= S:-= S:## S:...");
}
TEST(Lexer, AnApostropheBeginsACommentAlsoInsideAWord) {
  EXPECT_EQ(Lexed("a = 1 ' one"), "N:a S:= d:1 C:' one");
  EXPECT_EQ(Lexed("don't"), "N:don C:'t");
  EXPECT_EQ(Lexed("a = \"it's\""), "N:a S:= T:\"it's\"");
}
TEST(Lexer, RemIsACommentOnlyWhereAStatementBegins) {
  EXPECT_EQ(Lexed("REM any \"thing"), "C:REM any \"thing");
  EXPECT_EQ(Lexed("a = 1 : rem x"), "N:a S:= d:1 S:: C:rem x");
  EXPECT_EQ(Lexed("IF a THEN REM x"), "N:IF N:a N:THEN C:REM x");
  EXPECT_EQ(Lexed("10 REM x"), "d:10 C:REM x");
  EXPECT_EQ(Lexed("Remark = 1"), "N:Remark S:= d:1");
  EXPECT_EQ(Lexed("a.Rem"), "N:a S:. N:Rem");
}
TEST(Lexer, ADirectiveStandsFirstOnItsLine) {
  EXPECT_EQ(Lexed("  $Include \"a.inc\""), "D:$Include T:\"a.inc\"");
  EXPECT_EQ(Lexed("a = $b"), "N:a S:= S:$ N:b");
}
TEST(Lexer, AQuestionMarkAloneIsASign) {
  EXPECT_EQ(Lexed("? a"), "S:? N:a");
  EXPECT_EQ(Lexed("PRINT#1, a"), "N:PRINT S:# d:1 S:, N:a");
}
TEST(Lexer, AnUnderscoreBehindTheLastTokenContinuesTheStatement) {
  EXPECT_EQ(Lexed("a = 1 + _"), "N:a S:= d:1 S:+ X:_");
  EXPECT_EQ(Lexed("a = 1 +_"), "N:a S:= d:1 S:+ X:_");
  EXPECT_EQ(Lexed("f 1,_  "), "N:f d:1 S:, X:_");
  EXPECT_TRUE(StateBehind("a = 1 + _").Continued);
  EXPECT_FALSE(StateBehind("a = 1", StateBehind("a = 1 + _")).Continued);
}
TEST(Lexer, ANameMayEndInAnUnderscore) {
  EXPECT_EQ(Lexed("a_"), "N:a_");
  EXPECT_FALSE(StateBehind("a_").Continued);
}
TEST(Lexer, AContinuedLineBeginsNoStatement) {
  EXPECT_EQ(Lexed("rem x", StateBehind("a = _")), "N:rem N:x");
  EXPECT_EQ(Lexed("$b", StateBehind("a = _")), "S:$ N:b");
}
TEST(Lexer, AnOpenTextEndsWithTheLine) {
  std::vector<Token> tokens;
  EXPECT_EQ(LexLine("a = \"x", {}, tokens), LineState{});
  ASSERT_EQ(tokens.size(), 3U);
  EXPECT_TRUE(tokens[2].Unclosed);
}
TEST(Lexer, AnOpenTextGoesOnBehindAnUnderscore) {
  const LineState state = StateBehind("a = \"one _");
  EXPECT_TRUE(state.OpenText);
  EXPECT_EQ(Lexed("a = \"one _"), "N:a S:= T:\"one  X:_");
  EXPECT_EQ(Lexed("two\" + b", state), "T:two\" S:+ N:b");
  EXPECT_FALSE(StateBehind("two\" + b", state).OpenText);
}
TEST(Lexer, ADoubledQuoteEndsOneTextAndBeginsAnother) {
  EXPECT_EQ(Lexed("\"a\"\"b\""), "T:\"a\" T:\"b\"");
}
TEST(Lexer, EscapesCountOnlyWhenTheyAreOn) {
  EXPECT_EQ(Lexed("\"a\\\""), "T:\"a\\\"");
  const LineState on = StateBehind("$EscapeChars ON");
  EXPECT_TRUE(on.EscapeChars);
  EXPECT_EQ(Lexed("\"a\\\"b\" c", on), "T:\"a\\\"b\" N:c");
  EXPECT_FALSE(StateBehind("$ESCAPECHARS OFF", on).EscapeChars);
}
TEST(Lexer, AnyByteIsTaken) {
  EXPECT_EQ(Lexed("\x01 a"), "?:\x01 N:a");
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  std::vector<Token> tokens;
  LexLine(all, {}, tokens);
  EXPECT_FALSE(tokens.empty());
}

}  // namespace
}  // namespace tarnwick::language
