#include "editor/code_marks.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"
#include "fakes/project_builder.h"

namespace tarnwick::test {
namespace {

using editor::CodeMark;
using Marks = std::vector<CodeMark>;

class CodeMarksTest : public testing::Test {
 protected:
  CodeMarksTest() {
    builder_.AddForm("Main");
    builder_.AddForm("Other");
    builder_.Tables.ProgramFolder = "C:\\Tarnwick";
    builder_.Tables.ProjectFile = "C:\\Work\\p.tnp";
  }
  void Declare(int form, std::string_view text) { builder_.Tables.Form(form)->DeclarePbl = text; }
  /// What a check finds, made again while it asks for files.
  template <class Make>
  Marks Run(Make make) {
    for (;;) {
      editor::CodeCheck::Found found = make();
      if (found.Unread.empty()) return found.Marks;
      marks_.Read(found.Unread);
    }
  }
  Marks MarksOfEvent(std::string_view code, std::string_view key = "Form1.OnShow") {
    return Run([&] { return marks_.EventCheck(key).Run(code); });
  }
  /// "LINE: TEXT" of each mark of an event's code, lines counted from 0.
  std::vector<std::string> OfEvent(std::string_view code, std::string_view key = "Form1.OnShow") {
    return Written(MarksOfEvent(code, key));
  }
  std::vector<std::string> OfDeclarations(int form, std::string_view text) {
    return Written(Run([&] { return marks_.DeclarationsCheck(form).Run(text); }));
  }
  static std::vector<std::string> Written(const Marks& marks) {
    std::vector<std::string> texts;
    for (const CodeMark& mark : marks) {
      texts.push_back(std::to_string(mark.Line) + ": " + mark.Text);
    }
    return texts;
  }

  ProjectBuilder builder_;
  FakePorts ports_;
  editor::CodeMarks marks_{builder_.Tables, ports_.Files};
};

using Texts = std::vector<std::string>;

TEST_F(CodeMarksTest, CodeWithoutMistakesHasNoMarks) {
  EXPECT_EQ(OfEvent(""), Texts{});
  EXPECT_EQ(OfEvent("\r\n\r\n"), Texts{});
  EXPECT_EQ(OfEvent("Dim a As Integer\r\nIf a = 1 Then\r\n  Beep\r\nEnd If"), Texts{});
}

TEST_F(CodeMarksTest, NamesOfOtherFormsAndUnknownOnesAreNoMistakes) {
  EXPECT_EQ(OfEvent("Other.Show\r\nOtherLabel.Caption = Nowhere(1)"), Texts{});
}

TEST_F(CodeMarksTest, ATextWithoutItsClosingQuoteIsANoteAtTheText) {
  const Marks marks = MarksOfEvent("a = 1\r\nb = \"open");
  ASSERT_EQ(marks.size(), 1U);
  EXPECT_EQ(marks[0].What, CodeMark::Sort::Note);
  EXPECT_EQ(marks[0].Line, 1);
  EXPECT_EQ(marks[0].Column, 4);
  EXPECT_EQ(marks[0].Length, 5);
  EXPECT_EQ(marks[0].Text,
            "The closing quote is missing: the text ends with the line. Write the quote");
}

TEST_F(CodeMarksTest, ABlockWithoutItsEndIsMarkedWhereItOpens) {
  struct Case {
    std::string_view Code;
    std::string_view End;
  };
  for (const auto& [code, end] : {Case{"If a Then\r\n  b = 1", "END IF"},
                                  {"For i = 1 To 2\r\n  b = 1", "NEXT"},
                                  {"While a\r\n  b = 1", "WEND"},
                                  {"Do\r\n  b = 1", "LOOP"},
                                  {"Select Case a\r\nCase 1\r\n  b = 1", "END SELECT"},
                                  {"With a\r\n  .b = 1", "END WITH"},
                                  {"Create a As QForm\r\n  b = 1", "END CREATE"}}) {
    const Marks marks = MarksOfEvent("x = 1\r\n" + std::string(code));
    ASSERT_FALSE(marks.empty()) << code;
    EXPECT_EQ(marks[0].What, CodeMark::Sort::Error) << code;
    EXPECT_TRUE(marks[0].Line == 1 || marks[0].Line == 2) << code << marks[0].Line;
    EXPECT_EQ(marks[0].Text, std::string(end) + " of this block is missing") << code;
  }
}

TEST_F(CodeMarksTest, ARoutineOrTypeOfTheDeclarationsWithoutItsEndIsMarkedWhereItOpens) {
  EXPECT_EQ(OfDeclarations(1, "Dim a As Integer\r\nSub Go\r\n  a = 1"),
            Texts{"1: END SUB of this block is missing"});
  EXPECT_EQ(OfDeclarations(1, "Function F As Integer\r\n  F = 1"),
            Texts{"0: END FUNCTION of this block is missing"});
  EXPECT_EQ(OfDeclarations(1, "Type T\r\n  a As Integer"),
            Texts{"0: END TYPE of this type is missing"});
}

TEST_F(CodeMarksTest, WhatClosesNothingIsMarkedOnItsLine) {
  EXPECT_EQ(OfEvent("a = 1\r\nWend"),
            Texts{"1: This closes no block: the line that opens it is missing"});
}

TEST_F(CodeMarksTest, AStatementThatCannotBeReadIsMarkedAtTheTokenThatDoesNotFit) {
  const Marks marks = MarksOfEvent("For i = 1 2");
  ASSERT_FALSE(marks.empty());
  EXPECT_EQ(marks[0].Line, 0);
  EXPECT_EQ(marks[0].Column, 10);
  EXPECT_EQ(marks[0].Length, 1);
  EXPECT_EQ(marks[0].Text, "TO is expected in front of \"2\"");
}

TEST_F(CodeMarksTest, WhatTheProgramAcceptsInGeneratedTextIsNoMistake) {
  EXPECT_EQ(OfEvent("Ok.Caption ="), Texts{});
  EXPECT_EQ(OfEvent("a =").size(), 1U);
}

TEST_F(CodeMarksTest, CodeMayEndItsSubAndBeginOthers) {
  EXPECT_EQ(OfEvent("Helper 1\r\nEnd Sub\r\nSub Helper (a As Integer)\r\n  Beep"), Texts{});
}

TEST_F(CodeMarksTest, AnEndSubAtTheEndLeavesTheGeneratedOneOverAndTheLastLineIsMarked) {
  EXPECT_EQ(OfEvent("Beep\r\nEnd Sub"),
            Texts{"1: This closes no block: the line that opens it is missing"});
}

TEST_F(CodeMarksTest, AMacroOfAnyFormsDeclarationsCountsInAnEvent) {
  EXPECT_FALSE(OfEvent("If a Begin\r\n  Beep\r\nEnd If").empty());
  Declare(2, "$DEFINE Begin Then");
  EXPECT_EQ(OfEvent("If a Begin\r\n  Beep\r\nEnd If"), Texts{});
}

TEST_F(CodeMarksTest, InDeclarationsTheFormsInFrontCountAlone) {
  Declare(1, "$DEFINE Begin Then");
  const char* const text = "Sub Go\r\nIf a Begin\r\n  Beep\r\nEnd If\r\nEnd Sub";
  EXPECT_EQ(OfDeclarations(2, text), Texts{});
  EXPECT_FALSE(OfDeclarations(1, text).empty());
}

TEST_F(CodeMarksTest, AMistakeOfTheDeclarationsIsNotMarkedInAnEvent) {
  Declare(1, "Sub Go\r\n  If a Then\r\nx = \"open");
  EXPECT_EQ(OfEvent("Beep"), Texts{});
  EXPECT_EQ(OfEvent("Wend").size(), 1U);
}

TEST_F(CodeMarksTest, ManyMistakesOfTheDeclarationsLeaveRoomForThoseOfTheEvent) {
  std::string declarations;
  for (int line = 0; line < 60; ++line) declarations += "Wend\r\n";
  Declare(1, declarations);
  EXPECT_EQ(OfEvent("Wend").size(), 1U);
}

TEST_F(CodeMarksTest, ManyMistakesOfAnIncludedFileLeaveRoomForThoseOfTheEvent) {
  Declare(1, "$INCLUDE \"own.inc\"");
  std::string text(100, '\n');
  for (int line = 0; line < 60; ++line) text += "Wend\r\n";
  ports_.Files.Put("C:\\Work\\own.inc", text);
  EXPECT_EQ(OfEvent("Wend").size(), 1U);
}

TEST_F(CodeMarksTest, ARemovedFormDeclaresNothing) {
  Declare(2, "$DEFINE Begin Then");
  builder_.Form(2).Remove();
  EXPECT_FALSE(OfEvent("If a Begin\r\n  Beep\r\nEnd If").empty());
}

TEST_F(CodeMarksTest, TheMacrosOfAnIncludedFileCount) {
  Declare(1, "$INCLUDE \"own.inc\"");
  ports_.Files.Put("C:\\Work\\own.inc",
                   "$DEFINE Begin Then\r\nIf this were code it would not end Then");
  EXPECT_EQ(OfEvent("If a Begin\r\n  Beep\r\nEnd If"), Texts{});
}

TEST_F(CodeMarksTest, WithoutAnIncludedFileOnlyWhatDependsOnNoMacroIsMarked) {
  Declare(1, "$INCLUDE \"own.inc\"");
  EXPECT_EQ(OfEvent("If a Begin\r\n  Beep\r\nEnd If"), Texts{});
  EXPECT_EQ(OfEvent("If a Begin\r\n  b = \"open").size(), 1U);
  EXPECT_EQ(OfDeclarations(1, "\r\n$INCLUDE \"own.inc\""),
            Texts{"1: The file own.inc was not found or is too large"});
}

TEST_F(CodeMarksTest, AnIncludedFileIsReadOnceUntilItIsForgotten) {
  Declare(1, "$INCLUDE \"own.inc\"");
  EXPECT_EQ(OfEvent("If a Begin\r\nEnd If"), Texts{});
  ports_.Files.Put("C:\\Tarnwick\\own.inc", "");
  EXPECT_EQ(OfEvent("If a Begin\r\nEnd If"), Texts{});
  marks_.ForgetFiles();
  EXPECT_FALSE(OfEvent("If a Begin\r\nEnd If").empty());
}

constexpr const char* kBeginsBlock = "If a Begin\r\n  Beep\r\nEnd If";

TEST_F(CodeMarksTest, AMacroOfAnotherEventMakesNoFalseMarkWhereverThatEventStands) {
  ASSERT_FALSE(OfEvent(kBeginsBlock).empty());
  for (const char* const key : {"Form1.OnClick", "Form1.Button1.OnClick", "Form2.OnShow"}) {
    builder_.Tables.EventTable.Replace(key, "Beep\r\n  $DEFINE Begin Then ' of this program\r\n");
    EXPECT_EQ(OfEvent(kBeginsBlock), Texts{}) << key;
    builder_.Tables.EventTable.Replace(key, "");
  }
}

TEST_F(CodeMarksTest, WhatAnotherEventsMacroWouldBreakIsNotMarkedEither) {
  builder_.Tables.EventTable.Replace("Form2.OnShow", "$DEFINE Beep Then");
  EXPECT_EQ(OfEvent("Beep"), Texts{});
  EXPECT_EQ(OfEvent("Beep\r\nWend"),
            Texts{"1: This closes no block: the line that opens it is missing"});
}

TEST_F(CodeMarksTest, WhatAnotherEventDefinesCountsThoughAThirdTakesItBack) {
  builder_.Tables.EventTable.Replace("Form1.OnClick", "$DEFINE Begin Then");
  builder_.Tables.EventTable.Replace("Form2.OnShow", "$UNDEF Begin");
  EXPECT_EQ(OfEvent(kBeginsBlock), Texts{});
}

TEST_F(CodeMarksTest, WhatIsDefinedUnderAConditionOfAnotherEventCounts) {
  builder_.Tables.EventTable.Replace(
      "Form1.OnClick", "$IFDEF Nowhere\r\n$DEFINE Begin Then\r\n$ELSE\r\nBeep\r\n$ENDIF");
  EXPECT_EQ(OfEvent(kBeginsBlock), Texts{});
}

TEST_F(CodeMarksTest, AMacroWithParametersOfAnotherEventCounts) {
  ASSERT_FALSE(OfEvent("For i = Range(1, 2)\r\nNext").empty());
  builder_.Tables.EventTable.Replace("Form1.OnClick", "$MACRO Range(a, b) a To b");
  EXPECT_EQ(OfEvent("For i = Range(1, 2)\r\nNext"), Texts{});
}

TEST_F(CodeMarksTest, AKeywordThatAnotherEventMadeANameMayBeOne) {
  ASSERT_FALSE(OfEvent("Wend").empty());
  builder_.Tables.EventTable.Replace("Form1.OnClick", "$UNDEF Wend");
  EXPECT_EQ(OfEvent("Wend"), Texts{});
}

TEST_F(CodeMarksTest, EscapesThatAnotherEventTurnsOnCount) {
  ASSERT_FALSE(OfEvent("a = \"x\\\"y\"").empty());
  builder_.Tables.EventTable.Replace("Form1.OnClick", "$EscapeChars ON");
  EXPECT_EQ(OfEvent("a = \"x\\\"y\""), Texts{});
}

TEST_F(CodeMarksTest, TheStoredTextOfTheEventItselfDoesNotCount) {
  builder_.Tables.EventTable.Replace("Form1.OnShow", "$DEFINE Begin Then");
  EXPECT_FALSE(OfEvent(kBeginsBlock, "form1.onshow").empty());
  EXPECT_EQ(OfEvent("$DEFINE Begin Then\r\n" + std::string(kBeginsBlock)), Texts{});
}

TEST_F(CodeMarksTest, ADollarSignWithinALineOfAnotherEventDefinesNothing) {
  builder_.Tables.EventTable.Replace("Form1.OnClick", "a$ = \"\" ' $DEFINE Begin Then");
  EXPECT_FALSE(OfEvent(kBeginsBlock).empty());
}

TEST_F(CodeMarksTest, EventsMakeNoMacrosForTheDeclarationsInFrontOfThem) {
  builder_.Tables.EventTable.Replace("Form1.OnClick", "$DEFINE Begin Then");
  EXPECT_FALSE(OfDeclarations(1, "Sub Go\r\nIf a Begin\r\n  Beep\r\nEnd If\r\nEnd Sub").empty());
}

TEST_F(CodeMarksTest, TheProgramsOwnIncludeFileCountsAndIsNotMissedWhereItIsNotThere) {
  ports_.Files.Put("C:\\Tarnwick\\Tarnwick1.lib", "$DEFINE Begin Then");
  EXPECT_EQ(OfEvent(kBeginsBlock), Texts{});
  EXPECT_EQ(OfDeclarations(1, "Sub Go\r\nIf a Begin\r\n  Beep\r\nEnd If\r\nEnd Sub"), Texts{});
}

TEST_F(CodeMarksTest, NamesOfConstantsVariablesAndRoutinesOfTheDeclarationsAreNoMistakes) {
  Declare(1, "Const Most = 5\r\nDim Total(1 To Most) As Integer\r\nDeclare Sub Go (a As Integer)");
  Declare(2, "Type TPoint\r\n  X As Integer\r\nEnd Type\r\nDim P As TPoint");
  EXPECT_EQ(OfEvent("Dim Own(Most) As TPoint\r\nTotal(1) = Most\r\nGo 1\r\nGo(2)\r\nP.X = 3"),
            Texts{});
  EXPECT_EQ(OfDeclarations(2, "Total(2) = Most\r\nDim Q As TPoint"), Texts{});
}

TEST_F(CodeMarksTest, AMistakeOfAnotherEventIsNotMarkedHere) {
  builder_.Tables.EventTable.Replace("Form1.OnClick", "$IFDEF Begin\r\n$DEFINE\r\nWend\r\na = \"b");
  EXPECT_EQ(OfEvent("Beep"), Texts{});
  EXPECT_EQ(OfEvent("Wend").size(), 1U);
}

TEST_F(CodeMarksTest, ACheckHoldsCopiesOfAllThatItReads) {
  Declare(1, "$DEFINE Begin Then");
  const editor::CodeCheck check = marks_.EventCheck("Form1.OnShow");
  Declare(1, "");
  marks_.ForgetFiles();
  EXPECT_TRUE(check.Run(kBeginsBlock).Marks.empty());
}

TEST_F(CodeMarksTest, ACheckNamesTheFilesThatItDoesNotKnow) {
  Declare(1, "$INCLUDE \"own.inc\"");
  const std::vector<std::string> unread = marks_.EventCheck("").Run("Beep").Unread;
  EXPECT_EQ(std::count(unread.begin(), unread.end(), "C:\\Work\\own.inc"), 1);
  marks_.Read(unread);
  EXPECT_TRUE(marks_.EventCheck("").Run("Beep").Unread.empty());
}

TEST_F(CodeMarksTest, LineEndsOfAnySortCountOnce) {
  EXPECT_EQ(OfEvent("a = 1\n\rb = 1\r\nWend").front().substr(0, 2), "3:");
}

TEST_F(CodeMarksTest, ALongTextIsCheckedWhole) {
  std::string code;
  for (int line = 0; line < 50'000; ++line) code += "x = x + 1 ' line\r\n";
  EXPECT_EQ(OfEvent(code), Texts{});
  EXPECT_EQ(OfEvent(code + "Wend").front().substr(0, 6), "50000:");
}

}  // namespace
}  // namespace tarnwick::test
