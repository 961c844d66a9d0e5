#include "basic/syntax/parser.h"

#include <gtest/gtest.h>

#include "basic/tree_text.h"
#include "fakes/source_text.h"

namespace tarnwick::basic {
namespace {

using test::ParsedText;

/// The value of the assignment "x = text", operations in brackets.
std::string Value(const std::string& text) {
  ParsedText parsed("x = " + text);
  EXPECT_EQ(parsed.Faults(), "") << text;
  const tree::StatementList statements = parsed.Tree.Pieces[0].Statements;
  if (statements.empty()) return "nothing";
  const auto* line = statements[0]->As<tree::Assignment>();
  return line == nullptr ? "no assignment" : test::TextOf(line->Value);
}
/// Target and arguments of a call as a statement.
std::string Call(const std::string& text) {
  ParsedText parsed(text);
  EXPECT_EQ(parsed.Faults(), "") << text;
  const tree::StatementList statements = parsed.Tree.Pieces[0].Statements;
  if (statements.empty()) return "nothing";
  const auto* line = statements[0]->As<tree::CallLine>();
  if (line == nullptr) return "no call";
  std::string written = test::TextOf(line->Target);
  for (const tree::Node* argument : line->Arguments) written += " " + test::TextOf(argument);
  return written;
}
std::string Faults(std::string text) {
  return ParsedText(std::move(text)).Faults();
}

TEST(Parser, MultiplicationBindsTighterThanAddition) {
  EXPECT_EQ(Value("1 + 2 * 3"), "(1 + (2 * 3))");
  EXPECT_EQ(Value("1 * 2 + 3"), "((1 * 2) + 3)");
}
TEST(Parser, OperatorsOfOneRowGoLeftToRight) {
  EXPECT_EQ(Value("1 - 2 - 3"), "((1 - 2) - 3)");
  EXPECT_EQ(Value("8 / 4 * 2"), "((8 / 4) * 2)");
  EXPECT_EQ(Value("2 ^ 3 ^ 2"), "((2 ^ 3) ^ 2)");
}
TEST(Parser, ShiftsStandWithMultiplicationAndModBelowIt) {
  EXPECT_EQ(Value("1 SHL 2 * 3"), "((1 SHL 2) * 3)");
  EXPECT_EQ(Value("7 MOD 2 * 3"), "(7 MOD (2 * 3))");
  EXPECT_EQ(Value("7 MOD 3 + 1"), "((7 MOD 3) + 1)");
  EXPECT_EQ(Value("3 INV 7 SHR 1"), "(3 INV (7 SHR 1))");
}
TEST(Parser, PowerComesBeforeNegation) {
  EXPECT_EQ(Value("-2 ^ 2"), "(- (2 ^ 2))");
  EXPECT_EQ(Value("2 ^ -1"), "(2 ^ (- 1))");
  EXPECT_EQ(Value("-a * b"), "((- a) * b)");
}
TEST(Parser, ComparisonsStandBelowSumsAndAboveLogic) {
  EXPECT_EQ(Value("a + 1 = b AND c < d"), "(((a + 1) = b) AND (c < d))");
  EXPECT_EQ(Value("NOT a = b AND c"), "((NOT (a = b)) AND c)");
  EXPECT_EQ(Value("a XOR b OR c AND d"), "(a XOR (b OR (c AND d)))");
}
TEST(Parser, OtherWaysToWriteComparisons) {
  EXPECT_EQ(Value("a =< b"), "(a <= b)");
  EXPECT_EQ(Value("a => b"), "(a >= b)");
  EXPECT_EQ(Value("a >< b"), "(a <> b)");
}
TEST(Parser, TwoMinusSignsAreAMinusInFrontOfANegativeNumber) {
  EXPECT_EQ(Value("a--1"), "(a - (- 1))");
  EXPECT_EQ(Value("a++1"), "(a + 1)");
}
TEST(Parser, BracketsIndexesAndMembers) {
  EXPECT_EQ(Value("(1 + 2) * 3"), "((1 + 2) * 3)");
  EXPECT_EQ(Value("List.Item(n)[y]"), "List.Item(n)[y]");
  EXPECT_EQ(Value("a$[i]"), "a$[i]");
  EXPECT_EQ(Value("Font.Type.Print"), "Font.Type.Print");
  EXPECT_EQ(Value("f(a, , b)"), "f(a, _, b)");
}
TEST(Parser, NumbersOfAllBases) {
  EXPECT_EQ(Value("&H1F"), "31");
  EXPECT_EQ(Value("&H&H12"), "18");
  EXPECT_EQ(Value("&B101"), "5");
  EXPECT_EQ(Value("&O17"), "15");
  EXPECT_EQ(Value("1.5E2"), "150.000000");
  EXPECT_EQ(Value("2D1"), "20.000000");
  EXPECT_EQ(Value("7%"), "7");
  EXPECT_EQ(Value("0#"), "0.000000");
  EXPECT_EQ(Value("9223372036854775807"), "9223372036854775807");
  EXPECT_EQ(Value("9223372036854775808"), "9223372036854775808.000000");
}
TEST(Parser, CallsWithAndWithoutBrackets) {
  EXPECT_EQ(Call("Run1"), "Run1");
  EXPECT_EQ(Call("Sound 880, 200"), "Sound 880 200");
  EXPECT_EQ(Call("Sound(880, 200)"), "Sound 880 200");
  EXPECT_EQ(Call("CALL Sound(880, 200)"), "Sound 880 200");
  EXPECT_EQ(Call("Form1.Center"), "Form1.Center");
  EXPECT_EQ(Call("List1.AddItems \"a\", \"b\""), "List1.AddItems \"a\" \"b\"");
  EXPECT_EQ(Call("Digits(2).Show"), "Digits(2).Show");
}
TEST(Parser, ABracketThatDoesNotCloseTheStatementBelongsToTheFirstArgument) {
  EXPECT_EQ(Call("Show1 (a) + 1, 2"), "Show1 (a + 1) 2");
  EXPECT_EQ(Call("Show1 (a), 2"), "Show1 a 2");
  EXPECT_EQ(Call("a(1).b (2), 3"), "a(1).b 2 3");
  EXPECT_EQ(Call("Show1 -1"), "Show1 (- 1)");
}
TEST(Parser, EmptyArgumentsKeepTheirPlace) {
  EXPECT_EQ(Call("MessageBox \"Error\",,"), "MessageBox \"Error\" _ _");
  EXPECT_EQ(Call("MenuBar.AddItems  , x"), "MenuBar.AddItems _ x");
}
TEST(Parser, ArgumentsMayBeReferences) {
  EXPECT_EQ(Call("Swap1 @a, @b"), "Swap1 @a @b");
}
TEST(Parser, WordsOfTheLanguageMayBeNamesOfObjects) {
  EXPECT_EQ(Faults("Dim Form As QForm\nDim Font As QFont\nForm.Show\nInput.Text = \"a\"\nData = 3\n"
                   "x = Type.Line"),
            "");
}
TEST(Parser, AWordTouchingItsBracketIsStillTheWord) {
  EXPECT_EQ(Faults("WHILE(a<>0)\nIF(a) THEN b = 1\nWEND"), "");
}
TEST(Parser, SingleLineIfsNeedNoEnd) {
  EXPECT_EQ(Faults("IF a THEN b = 1 : c = 2 ELSE d = 3 : e = 4\nf = 5"), "");
  EXPECT_EQ(Faults("IF a THEN IF b THEN c = 1 ELSE d = 2"), "");
  EXPECT_EQ(Faults("IF a THEN b = 1 : END IF"), "");
  EXPECT_EQ(Faults("10 x = 1\nIF a THEN 10"), "");
}
TEST(Parser, BlocksOfAllKinds) {
  EXPECT_EQ(Faults("IF a THEN\nb = 1\nELSEIF c THEN\nd = 1\nELSE IF e THEN\nf = 1\nELSE\ng = 1\n"
                   "ENDIF"),
            "");
  EXPECT_EQ(Faults("FOR i = 1 TO 3 STEP 2 DO\nNEXT j"), "");
  EXPECT_EQ(Faults("DO\nLOOP UNTIL a\nDO WHILE a\nLOOP\nDO UNTIL a\nEXIT DO\nLOOP WHILE b"), "");
  EXPECT_EQ(Faults("SELECT CASE a\nCASE 1, 3 TO 5, IS > 9, < 0\nb = 1\nCASE ELSE\nb = 2\n"
                   "END SELECT"),
            "");
  EXPECT_EQ(Faults("WITH Form1\n.Caption = \"a\"\n.Show\nEND WITH"), "");
  EXPECT_EQ(Faults("CREATE f AS QFORM\nCenter\nCaption = \"a\"\nCREATE b AS QBUTTON: Top = 1: "
                   "END CREATE\nEND CREATE"),
            "");
}
TEST(Parser, ABlockThatIsNotClosedIsNamedWhereItOpens) {
  EXPECT_EQ(Faults("SUB a\nIF b THEN\nc = 1\nEND SUB"), "2:1: END IF of this block is missing\n");
  EXPECT_EQ(Faults("FOR i = 1 TO 2"), "1:1: NEXT of this block is missing\n");
  EXPECT_EQ(Faults("SUB a\nSUB b\nEND SUB"), "1:1: END SUB of this block is missing\n");
}
TEST(Parser, AClosingWordWithoutItsBlockIsAFault) {
  EXPECT_EQ(Faults("NEXT"), "1:1: This closes no block: the line that opens it is missing\n");
  EXPECT_EQ(Faults("SUB a\nWEND\nEND SUB"),
            "2:1: This closes no block: the line that opens it is missing\n");
}
TEST(Parser, GoesOnBehindAFaultyLine) {
  EXPECT_EQ(Faults("a = \nb = 1 +\nc = 1\nd = )\n"),
            "1:4: A value is missing at the end of the line\n"
            "2:8: A value is missing at the end of the line\n"
            "4:5: A value is expected in front of \")\"\n");
}
TEST(Parser, AQuoteInsideATextIsNamed) {
  EXPECT_EQ(Faults("Label1.Caption = \"Say \"hi\"\""),
            "1:24: The text in front of this ends at a quote inside it\n");
}
TEST(Parser, RoutinesAndDeclarations) {
  EXPECT_EQ(
      Faults("DECLARE FUNCTION g LIB \"kernel32\" ALIAS \"GA\" (a AS STRING, BYREF b AS LONG) "
             "AS LONG\nSUB 3DView (a AS INTEGER, BYVAL b%, c(10) AS STRING)\nEND SUB\n"
             "FUNCTION f$ (a)\nf$ = \"x\"\nEND FUNCTION\nSUBI v (...)\nEND SUBI\n"
             "FUNCTIONI w (ANY) AS INTEGER\nEND FUNCTIONI\nPUBLIC SUB p\nEND SUB"),
      "");
}
TEST(Parser, DeclaratorsOfAllForms) {
  EXPECT_EQ(Faults("DIM a AS INTEGER, b$, c(10) AS STRING, d(1 TO 3, 5), e() AS LONG\n"
                   "DIM s AS STRING*11, t AS STRING * 3\nREDIM c(20) AS STRING\n"
                   "DEFINT i = 0, j, k(1 TO 4) = {1, 2, 3, 4}\nCONST n = 1, m AS BYTE = 50\n"
                   "STATIC q AS LONG\nDIM axp$ AS STRING"),
            "");
}
TEST(Parser, TypesWithTheirMembers) {
  EXPECT_EQ(Faults("TYPE t EXTENDS QFORM\nPRIVATE:\na AS INTEGER\nb(10) AS STRING\nc.d AS LONG\n"
                   "OnGo AS EVENT(Template)\nName AS STRING PROPERTY SET SetName\nPUBLIC:\n"
                   "PROPERTY SET SetName (n AS STRING)\nThis.Name = n\nEND PROPERTY\n"
                   "WITH This\nSUB Go\n.a = 1\nEND SUB\nEND WITH\nEVENT OnClick\nEND EVENT\n"
                   "EVENT Btn.OnClick\nEND EVENT\nCONSTRUCTOR\na = 1\nEND CONSTRUCTOR\nEND TYPE"),
            "");
}
TEST(Parser, TheRestOfTheStatements) {
  EXPECT_EQ(
      Faults("PRINT \"a\"; b, c;\n? a\nPRINT #1, a\nPRINT\nINPUT \"n\", a\nINPUT \"n\"; a, b\n"
             "ON a GOTO x, y\nx: GOSUB y\ny:\nRETURN\nDATA 1, \"a,b\", c d, -3\nREAD a, b$\n"
             "RESTORE x\nRESTORE\nBIND a TO b\ni++\ni--\ni += 2\ni -= 2\nEND\nLET a = 1"),
      "");
}
TEST(Parser, DeepNestingIsAFaultAndNoCrash) {
  const auto times = [](const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
  };
  EXPECT_EQ(Faults("x = " + times("(", 90) + "1" + times(")", 90)), "");
  EXPECT_NE(Faults("x = " + times("(", 100'000)).find("nested too deeply"), std::string::npos);
  EXPECT_NE(Faults("x = " + times("-", 100'001) + "1").find("nested too deeply"),
            std::string::npos);
  EXPECT_EQ(Faults("x = 1" + times(" + 1", 900)), "");
  EXPECT_NE(Faults("x = 1" + times(" + 1", 5'000)).find("too long"), std::string::npos);
  EXPECT_NE(Faults("x = a" + times(".b", 100'000)).find("too long"), std::string::npos);
  EXPECT_NE(Faults("x = " + times("@", 100'000)).find("A value is expected"), std::string::npos);
  EXPECT_NE(Faults(times("IF a THEN\n", 5'000)).find("nested too deeply"), std::string::npos);
  EXPECT_NE(Faults(times("IF a THEN ", 5'000)).find("nested too deeply"), std::string::npos);
  EXPECT_EQ(Faults(times("PUBLIC ", 100'000)), "");
}

}  // namespace
}  // namespace tarnwick::basic
