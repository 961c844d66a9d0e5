#include "basic/check/checker.h"

#include <gtest/gtest.h>

#include "basic/checked_text.h"
#include "basic/semantics.h"

namespace tarnwick::basic {
namespace {

using test::CheckedText;

std::string Check1(std::string text) {
  return CheckedText(std::move(text)).Messages();
}
/// The statements of the top level of a program without faults.
struct Program1 : CheckedText {
  explicit Program1(std::string text) : CheckedText(std::move(text)) { EXPECT_EQ(Messages(), ""); }
  template <class T>
  const T& Line(std::size_t index) const {
    return *Result.Checked->Procedures[0].Body[index]->As<T>();
  }
  const Program& Whole() const { return *Result.Checked; }
};

TEST(Checker, AnUndeclaredNameIsANumberOfTheProgram) {
  const Program1 program("x = 1\na$ = \"b\"\nSUB s\ny% = 2\nEND SUB");
  ASSERT_EQ(program.Whole().Globals.size(), 3U);
  EXPECT_EQ(program.Whole().Globals[0].Kind, kRealType);
  EXPECT_EQ(program.Whole().Globals[1].Kind, kTextType);
  EXPECT_EQ(program.Whole().Globals[2].Kind.Kind, Storage::Short);
}
TEST(Checker, TypecheckHoldsFromItsLineOn) {
  EXPECT_EQ(Check1("x = 1\n$TYPECHECK ON\nx = 2\nLable1 = 3\n$TYPECHECK OFF\ny = 4"),
            "4:1: error: \"Lable1\" is not declared\n");
}
TEST(Checker, ProposesTheNearestName) {
  EXPECT_EQ(Check1("DIM Label1 AS QLABEL\nLable1.Caption = \"a\""),
            "2:1: error: \"Lable1\" is not declared [Did you mean Label1?]\n");
  EXPECT_EQ(Check1("DIM b AS QBUTTON\nb.Captoin = \"a\""),
            "2:1: error: QBUTTON has no member \"Captoin\" [Did you mean Caption?]\n");
  EXPECT_EQ(Check1("DIM a AS STRNG"),
            "1:10: error: There is no type \"STRNG\" [Did you mean STRING?]\n");
  EXPECT_EQ(Check1("SUB Paint1\nEND SUB\nPiant1"),
            "3:1: error: There is no SUB \"Piant1\" [Did you mean Paint1?]\n");
}
TEST(Checker, SuffixesMakeDifferentNames) {
  const Program1 program("DIM a AS INTEGER\nDIM a$ AS STRING\na = 1\na$ = \"x\"");
  EXPECT_EQ(program.Whole().Globals.size(), 2U);
}
TEST(Checker, FoldsConstants) {
  const Program1 program(
      "CONST n = 2 + 3 * 4\nDIM a AS INTEGER\na = n + 1\nb$ = \"x\" + \"y\"\n"
      "c = -2 ^ 2\nd = NOT 0\ne = 1 = 1\nf = 5 / 2");
  EXPECT_EQ(program.Line<Assign>(0).Value->As<WholeConstant>()->Value, 15);
  EXPECT_EQ(program.Line<Assign>(1).Value->As<TextConstant>()->Value, "xy");
  EXPECT_EQ(program.Line<Assign>(3).Value->As<RealConstant>()->Value, -1);
  EXPECT_EQ(program.Line<Assign>(4).Value->As<RealConstant>()->Value, kComparisonTrue);
  EXPECT_EQ(program.Line<Assign>(5).Value->As<RealConstant>()->Value, 2.5);
}
TEST(Checker, AConstantThatOnlyRunsCanTellIsAVariable) {
  const Program1 program("CONST nl = CHR$(13) + CHR$(10)\nPRINT nl");
  EXPECT_EQ(program.Whole().Globals.size(), 1U);
  EXPECT_TRUE(program.Line<Assign>(0).Value->Is<BinaryOperation>());
}
TEST(Checker, WholeNumbersStayWholeUntilAFractionComes) {
  const Program1 program("DIM i AS INTEGER, d AS DOUBLE\nd = i + 1\nd = i / 2\nd = i * 1.5");
  const auto kind_of_operand = [&program](std::size_t line) {
    const Expression* value = program.Line<Assign>(line).Value;
    if (const auto* conversion = value->As<Conversion>()) value = conversion->Operand;
    return value->Gives();
  };
  EXPECT_EQ(kind_of_operand(0), ValueKind::Whole);
  EXPECT_EQ(kind_of_operand(1), ValueKind::Real);
  EXPECT_EQ(kind_of_operand(2), ValueKind::Real);
}
TEST(Checker, TextsAndNumbersDoNotMix) {
  EXPECT_EQ(Check1("a = 1 + \"x\""),
            "1:5: error: A text and a number cannot be combined "
            "[Use STR$ for the number or VAL for the text]\n");
  EXPECT_EQ(Check1("a$ = \"x\" & 1"), "");
  EXPECT_EQ(Check1("IF \"a\" = 1 THEN b = 1"),
            "1:4: error: A text is compared with a number "
            "[Use STR$ for the number or VAL for the text]\n");
  EXPECT_EQ(Check1("a$ = \"jello\" - \"l\""), "");
}
TEST(Checker, StoringTheOtherKindConvertsWithANote) {
  EXPECT_EQ(Check1("a$ = 5"), "1:6: note: A number is stored as text [Write STR$( ) around it]\n");
  EXPECT_EQ(Check1("a = \"5\""),
            "1:5: note: A text is stored as a number [Write VAL( ) around it]\n");
  EXPECT_EQ(Check1("DIM f AS QFORM\nf.ShowHint = STR$(1)\nf.Caption = 5"), "");
}
TEST(Checker, AComparisonWithTrueIsNoted) {
  EXPECT_NE(Check1("a = 1\nIF (a = 1) = TRUE THEN b = 1").find("never equals TRUE"),
            std::string::npos);
  EXPECT_EQ(Check1("DIM c AS QCHECKBOX\nIF c.Checked = TRUE THEN b = 1"), "");
}
TEST(Checker, TheNumberOfArgumentsMustFit) {
  EXPECT_EQ(Check1("SUB s (a, b)\nEND SUB\ns 1"), "3:1: error: \"s\" takes 2 argument(s), not 1\n");
  EXPECT_EQ(Check1("SUB s (a, b)\nEND SUB\ns 1, 2,\ns ,2"), "");
  EXPECT_EQ(Check1("a$ = LEFT$(\"x\")"), "1:6: error: LEFT$ takes 2 argument(s), not 1\n");
  EXPECT_EQ(Check1("MESSAGEBOX \"Error\",,"), "");
}
TEST(Checker, ProceduresAreKnownFromTheStart) {
  EXPECT_EQ(Check1("s 1\nx = f(2)\nSUB s (a)\nEND SUB\nFUNCTION f (a)\nf = a * 2\nEND FUNCTION"),
            "");
}
TEST(Checker, AReferenceNeedsAVariableOfTheSameType) {
  const Program1 program(
      "DIM i AS INTEGER, d AS DOUBLE\nSUB s (BYREF n AS INTEGER)\nEND SUB\n"
      "s i\ns d\ns 5");
  const auto how = [&program](std::size_t line) {
    return program.Line<Evaluate>(line).Call->As<ProcedureCall>()->Arguments[0].How;
  };
  EXPECT_EQ(how(0), PassBy::Reference);
  EXPECT_EQ(how(1), PassBy::Value);
  EXPECT_EQ(how(2), PassBy::Value);
}
TEST(Checker, AnAtSignAtACallMakesTheParameterAReference) {
  const Program1 program("DIM i AS INTEGER\nSUB s (n AS INTEGER)\nEND SUB\ns @i");
  EXPECT_TRUE(program.Whole().Procedures[1].Locals[0].ByReference);
  EXPECT_EQ(program.Line<Evaluate>(0).Call->As<ProcedureCall>()->Arguments[0].How,
            PassBy::Reference);
}
TEST(Checker, AFunctionSetsItsValueByNameOrResult) {
  EXPECT_EQ(Check1("FUNCTION f (n) AS INTEGER\nIF n = 0 THEN\nf = 1\nELSE\nResult = n * f(n - 1)\n"
                   "END IF\nEND FUNCTION"),
            "");
  EXPECT_EQ(Check1("FUNCTION f$ ()\nDIM Result AS INTEGER\nResult = 1\nf$ = \"a\"\nEND FUNCTION"),
            "");
}
TEST(Checker, LoopsAndExits) {
  EXPECT_EQ(Check1("FOR i = 1 TO 3\nDO\nEXIT FOR\nLOOP\nNEXT"), "");
  EXPECT_EQ(Check1("EXIT DO"), "1:1: error: There is no loop of this kind to leave here\n");
  EXPECT_EQ(Check1("EXIT SUB"), "1:1: error: There is no SUB or FUNCTION to leave here\n");
  EXPECT_EQ(Check1("FOR a$ = 1 TO 2\nNEXT"),
            "1:5: error: The variable of FOR must be a plain variable that holds a number\n");
  const Program1 program("FOR i = 1 TO 3\nWHILE i\nDO\nEXIT FOR\nLOOP\nWEND\nNEXT");
  const auto& loop = *program.Line<ForLoop>(0).Body[0]->As<Loop>();
  const auto& inner = *loop.Body[0]->As<Loop>();
  EXPECT_EQ(inner.Body[0]->As<ExitLoop>()->Levels, 2U);
}
TEST(Checker, LabelsBelongToTheirProcedure) {
  EXPECT_EQ(Check1("x: GOTO x\nGOSUB y\ny: RETURN"), "");
  EXPECT_EQ(
      Check1("here:\nSUB s\nGOTO ther\nthere:\nEND SUB"),
      "3:6: error: There is no label \"ther\" in this part of the program [Did you mean there?]\n");
}
TEST(Checker, ANameAndAColonIsACallWhereTheNameIsASub) {
  const Program1 program("SUB s\nEND SUB\ns: x = 1");
  EXPECT_TRUE(program.Whole().Procedures[0].Body[0]->Is<Evaluate>());
}
TEST(Checker, ArraysNeedTheirIndexes) {
  EXPECT_EQ(Check1("DIM a(3, 4) AS INTEGER\na(1, 2) = 3\nx = UBOUND(a, 2) + LBOUND(a)"), "");
  EXPECT_EQ(Check1("DIM a(3) AS INTEGER\na(1, 2) = 3"),
            "2:1: error: The array has 1 dimension(s), not 2\n");
  EXPECT_EQ(Check1("DIM a(3) AS INTEGER\na = 3"),
            "2:1: error: An element of the array must be named in brackets\n");
  EXPECT_EQ(Check1("b = 1\nc = b(1)"), "2:5: error: This is not an array\n");
  EXPECT_EQ(Check1("c = b(1)"), "1:5: error: \"b\" is neither an array nor a function\n");
}
TEST(Checker, Records) {
  EXPECT_EQ(
      Check1("TYPE p\nx AS INTEGER\nn.m AS STRING\nl(3) AS p2\nEND TYPE\nDIM a AS p\na.x = 1\n"
             "a.n.m = \"q\"\nTYPE p2\ny AS LONG\nEND TYPE"),
      "4:1: error: A type must not hold itself or a type that is declared behind it\n");
  EXPECT_EQ(Check1("TYPE p\nx AS INTEGER\nn.m AS STRING\nEND TYPE\nDIM a(3) AS p\na(1).x = 1\n"
                   "DIM b AS p\nb.n.m = \"q\"\nb = a(2)\nSWAP a(1), a(2)\nx = SIZEOF(p)"),
            "");
  EXPECT_EQ(Check1("TYPE p\nxy AS INTEGER\nEND TYPE\nDIM a AS p\na.xz = 1"),
            "5:1: error: p has no member \"xz\"\n");
}
TEST(Checker, PropertiesMethodsAndEvents) {
  EXPECT_EQ(
      Check1("DIM f AS QFORM\nDIM l AS QLISTBOX\nDIM d(3) AS QRADIOBUTTON\nf.Center\n"
             "f.Caption = \"a\"\nl.AddItems \"a\", \"b\"\nl.Item(0) = \"c\"\nx$ = l.Item(0)[1]\n"
             "d(2).Checked = 1\nf.OnClick = go\nf.OnClick = 0\nd(1).Parent = f\n"
             "Application.Title = \"t\"\ny = Screen.Width\nSUB go\nEND SUB"),
      "");
  EXPECT_EQ(Check1("DIM f AS QFORM\nf.OnClick = gone"), "2:13: error: There is no SUB \"gone\"\n");
  EXPECT_EQ(Check1("DIM f AS QFORM\nx = f.OnClick"),
            "2:5: error: QFORM.OnClick is an event and has no value\n");
  EXPECT_EQ(Check1("DIM f AS QFORM\nf.Handle = 1"),
            "2:1: error: QFORM.Handle can be read, not set\n");
  EXPECT_EQ(Check1("DIM f AS QFORM\nf.WndProc = w\nSUB w\nEND SUB"),
            "2:1: note: QFORM.WndProc is not supported by the runner: the line is passed over\n");
}
TEST(Checker, FontsCopyTheirValues) {
  const Program1 program("DIM a AS QFONT, b AS QFONT\na = b");
  EXPECT_NO_THROW(program.Line<CopyObject>(2));
}
TEST(Checker, WithAndCreate) {
  EXPECT_EQ(
      Check1("CREATE f AS QFORM\nCaption = \"a\": Center\nCREATE b AS QBUTTON\nTop = f.Width\n"
             "OnClick = go\nEND CREATE\nCREATE m AS QMAINMENU\nCREATE i AS QMENUITEM\n"
             "Caption = \"x\"\nEND CREATE\nEND CREATE\nDelBorderIcons = 2\nEND CREATE\n"
             "WITH b\n.Left = 3\n.Show\nEND WITH\nSUB go\nEND SUB"),
      "16:1: error: QBUTTON has no member \"Show\"\n");
  EXPECT_EQ(Check1(".Left = 1"), "1:1: error: A leading dot needs WITH or CREATE around it\n");
}
TEST(Checker, TypesThatExtendAClass) {
  EXPECT_EQ(Check1("TYPE t EXTENDS QFORM\nCount AS INTEGER\nBtn AS QBUTTON\nOnGo AS EVENT(tmpl)\n"
                   "Path AS STRING PROPERTY SET SetPath\nPROPERTY SET SetPath (p AS STRING)\n"
                   "This.Path = p\nEND PROPERTY\nSUB Add (n AS INTEGER)\nCount = Count + n\n"
                   "t.Caption = STR$(This.Count)\nSUPER.Center\nCALLFUNC t.OnGo, 1\nEND SUB\n"
                   "FUNCTION Twice AS INTEGER\nResult = Count * 2\nEND FUNCTION\n"
                   "EVENT OnClick\nAdd 1\nEND EVENT\nEVENT Btn.OnClick\nAdd 2\nEND EVENT\n"
                   "CONSTRUCTOR\nCaption = \"x\"\nCount = 3\nEND CONSTRUCTOR\nEND TYPE\n"
                   "SUB tmpl (n AS INTEGER)\nEND SUB\nDIM a AS t\na.Add 4\nx = a.Twice\n"
                   "a.Path = \"p\"\na.Show\na.OnGo = tmpl\nCREATE c AS t\nCount = 3\nEND CREATE"),
            "");
}
TEST(Checker, ATypeWithEventsHasAConstructorThatHooksThem) {
  const Program1 program("TYPE t EXTENDS QFORM\nEVENT OnClick\nEND EVENT\nEND TYPE\nDIM a AS t");
  const ProcedureId constructor = program.Whole().Records[0].Constructor;
  ASSERT_NE(constructor, kNoProcedure);
  const Block body = program.Whole().At(constructor).Body;
  ASSERT_EQ(body.size(), 1U);
  EXPECT_NE(body[0]->As<HookEvent>()->Bound, nullptr);
}
TEST(Checker, AddressesOfRoutines) {
  EXPECT_EQ(
      Check1("BIND v TO s\nCALLFUNC v, 1\nCALLFUNC(v, 1)\nw = CODEPTR(s)\nSUB s (a)\nEND SUB"), "");
  EXPECT_EQ(Check1("BIND v TO gone"), "1:11: error: There is no SUB or FUNCTION \"gone\"\n");
}
TEST(Checker, IifTakesNumbersOrTexts) {
  EXPECT_EQ(Check1("a$ = IIF(1 > 2, \"x\", IIF(1, \"y\", \"z\"))\nb = IIF(a$ = \"\", 1, 2.5)"), "");
  EXPECT_EQ(Check1("a = IIF(1, \"x\", 2)"),
            "1:5: error: Both values of IIF must be texts, or both numbers\n");
}
TEST(Checker, WordsThatAreLeftOutSaySo) {
  EXPECT_NE(Check1("x = INP(1)").find("INP is not supported by the runner"), std::string::npos);
  EXPECT_NE(Check1("x = INPUTHANDLE").find("INPUTHANDLE is not supported by the runner"),
            std::string::npos);
}
TEST(Checker, TheRestOfTheStatements) {
  EXPECT_EQ(
      Check1(
          "DEFINT i = 1, a(1 TO 3) = {1, 2, 3}\nDIM s AS STRING * 5\nREDIM a(1 TO 9) AS INTEGER\n"
          "INC i\nDEC(i, 2)\ni++\ni += 3\nSWAP a(1), a(2)\nINITARRAY(a, 1, 2)\n"
          "QUICKSORT(a(1), a(3), DESCEND)\nDATA 1, x\nREAD i, s\nRESTORE\nINPUT \"n\", i\n"
          "PRINT #1, i; s\nON i GOTO p, q\np:\nq:\nSELECT CASE i\nCASE 1 TO 3, IS > 5.5\n"
          "CASE ELSE\nEND SELECT\nx = VARPTR(i) + SIZEOF(a)\nf$ = FILEREC.Filename\n"
          "n = FILEREC.Size\n$RESOURCE pic AS \"a.bmp\"\nDIM g AS QIMAGE\ng.BmpHandle = pic\n"
          "DECLARE FUNCTION Gp LIB \"kernel32\" ALIAS \"GpA\" (a AS STRING, b AS LONG) AS LONG\n"
          "k = Gp(\"a\", 1)\nSUBI v (...)\nPRINT PARAMSTR$(1); PARAMVAL(1); PARAMVALCOUNT\n"
          "END SUBI\nv 1, \"a\", 2.5\nSUB t\nSTATIC c AS INTEGER\nc = c + 1\nEND SUB\nEND"),
      "");
}
TEST(Checker, TheSameNameTwiceIsAFault) {
  EXPECT_EQ(Check1("DIM a AS INTEGER\nDIM a AS STRING"),
            "2:5: error: \"a\" is declared twice [The other one is in line 1]\n");
  EXPECT_EQ(Check1("SUB a\nEND SUB\nSUB a\nEND SUB"),
            "3:5: error: \"a\" is declared twice [The other one is in line 1]\n");
}
TEST(Checker, TheProgramsOwnConstantsHoldAgainstThoseOfIncludedFiles) {
  const auto messages = [](const std::string& text, const std::string& included) {
    test::MemorySources sources;
    sources.Files["main"] = text;
    sources.Files["a.inc"] = included;
    return CheckedText::MessagesOf(CheckProgram("main", sources, test::Classes(), {}));
  };
  const std::string constant = "CONST mbYes = 1\n";
  EXPECT_EQ(messages("$INCLUDE \"a.inc\"\nCONST mbYes = 4\n", constant), "");
  EXPECT_EQ(messages("CONST mbYes = 4\n$INCLUDE \"a.inc\"\n", constant), "");
  EXPECT_EQ(messages("$INCLUDE \"a.inc\"\nCONST mbYes = RND\n", constant), "");
  EXPECT_EQ(messages("$INCLUDE \"a.inc\"\n$INCLUDE \"a.inc\"\n", constant), "");
  EXPECT_NE(messages("CONST mbYes = 4\nCONST mbYes = 4\n", ""), "") << "in one file";
  EXPECT_NE(messages("$INCLUDE \"a.inc\"\nCONST mbYes = 4\n", "SUB mbYes\nEND SUB\n"), "");
}
TEST(Checker, LongChainsAndDeepBlocksAreNoDanger) {
  std::string chain = "x = 1";
  for (int i = 0; i < 900; ++i) chain += " + y";
  EXPECT_EQ(Check1(chain), "");
  std::string dots = "DIM f AS QFORM\nx = f";
  for (int i = 0; i < 900; ++i) dots += ".Font";
  EXPECT_NE(Check1(dots), "");
}

}  // namespace
}  // namespace tarnwick::basic
