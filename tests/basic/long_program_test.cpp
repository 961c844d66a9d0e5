// Programs that are long enough to be checked in several pieces.
#include <string>

#include <gtest/gtest.h>

#include "basic/checked_text.h"
#include "basic/run_source.h"

namespace tarnwick::basic {
namespace {

/// Lines that fill more than two pieces of the tree.
constexpr int kFillerLines = 4000;

/// Lines without effect on what is printed.
std::string Filler() {
  std::string text;
  for (int i = 0; i < kFillerLines; ++i) text += "filler = filler + 1\n";
  return text;
}

std::string Output(const std::string& text) {
  ProgramWorld world;
  const LineResult result = RunSource(text, world, {});
  return result.Error.empty() ? result.Output : result.Error;
}

TEST(LongProgram, TheFillerTakesSeveralPieces) {
  const test::ParsedText parsed(Filler());
  std::size_t statements = 0;
  std::size_t full = 0;
  for (const tree::Piece& piece : parsed.Tree.Pieces) {
    statements += piece.Statements.size();
    full += piece.Memory.Bytes() >= tree::kPieceBytes ? 1 : 0;
  }
  EXPECT_EQ(statements, static_cast<std::size_t>(kFillerLines));
  EXPECT_GE(full, 2U);
}

TEST(LongProgram, ARoutineIsCalledFarInFrontOfIt) {
  EXPECT_EQ(Output("PRINT Twice(4)\nSay \"far\"\nEND\n" + Filler() +
                   "FUNCTION Twice(n AS INTEGER) AS INTEGER\nTwice = n * 2\nEND FUNCTION\n" +
                   Filler() + "SUB Say(s AS STRING)\nPRINT s\nEND SUB\n"),
            "8\nfar\n");
}

TEST(LongProgram, ARoutineIsCalledFarBehindIt) {
  EXPECT_EQ(Output("SUB Add(n AS INTEGER)\nSHARED sum\nsum = sum + n\nEND SUB\n" + Filler() +
                   "Add 3\n" + Filler() + "Add 4\nPRINT sum; filler\n"),
            "78000\n");
}

TEST(LongProgram, JumpsAndDataReachOverAllOfIt) {
  EXPECT_EQ(
      Output("READ a\nRESTORE late\nREAD b\nPRINT a; b\nGOTO finish\n" + Filler() + "DATA 5\n" +
             Filler() + "late:\nDATA 6\n" + Filler() + "finish:\nPRINT filler\nGOSUB part\nEND\n" +
             Filler() + "part:\nPRINT \"part\"\nRETURN\n"),
      "56\n0\npart\n");
}

TEST(LongProgram, TypesAndConstantsHoldWhereverTheyStand) {
  EXPECT_EQ(
      Output("DIM p AS TPoint\np.X = kStart\n" + Filler() + "PRINT p.X; p.Sum(2)\n" + Filler() +
             "TYPE TPoint\nX AS INTEGER\nFUNCTION Sum(n AS INTEGER) AS INTEGER\n"
             "Result = This.X + n\nEND FUNCTION\nEND TYPE\n" +
             Filler() + "CONST kStart = 40\n"),
      "4042\n");
}

TEST(LongProgram, ABlockLongerThanAPieceStaysOne) {
  EXPECT_EQ(Output("FOR i = 1 TO 2\n" + Filler() + "NEXT i\nPRINT filler\nIF filler > 0 THEN\n" +
                   Filler() + "ELSE\n" + Filler() + "PRINT \"no\"\nEND IF\nPRINT filler\n"),
            "8000\n12000\n");
}

TEST(LongProgram, StatementsOfOneLineMayBelongToTwoPieces) {
  std::string line = "a = 1";
  for (int i = 0; i < kFillerLines; ++i) line += ": a = a + 1";
  EXPECT_EQ(Output(line + "\nPRINT a\n"), "4001\n");
}

TEST(LongProgram, MessagesOfAllPiecesStandInTheOrderOfTheLines) {
  const std::string text =
      "DIM s AS STRING\ns = 5\nnowhere 1\n" + Filler() + "s = 6\nCALL Missing\n" + Filler() +
      "SUB Twice\nEND SUB\nSUB twice\ns = 7\nEND SUB\nNEXT\n" + Filler() + "PRINT lost(1)\n";
  const auto line = [](int fillers, int more) {
    return std::to_string(fillers * kFillerLines + more);
  };
  EXPECT_EQ(test::CheckedText(text).Messages(),
            line(0, 2) + ":5: note: A number is stored as text [Write STR$( ) around it]\n" +
                line(0, 3) + ":1: error: There is no SUB \"nowhere\"\n" + line(1, 4) +
                ":5: note: A number is stored as text [Write STR$( ) around it]\n" + line(1, 5) +
                ":6: error: There is no SUB \"Missing\"\n" + line(2, 8) +
                ":5: error: \"twice\" is declared twice [The other one is in line " + line(2, 6) +
                "]\n" + line(2, 9) +
                ":5: note: A number is stored as text [Write STR$( ) around it]\n" + line(2, 11) +
                ":1: error: This closes no block: the line that opens it is missing\n" +
                line(3, 12) + ":7: error: \"lost\" is neither an array nor a function\n");
}

TEST(LongProgram, NamesPutTogetherOfSeveralTokensLiveAsLongAsTheCheck) {
  const std::string text =
      "Dim Font As QFont\nDim pm(1) As QPopupMenu\nDeclare Sub pm(1)_OnPopUp\n" + Filler() +
      "Sub pm(1)_OnPopUp\nEnd Sub\n" + Filler() + "pm(1).OnPopup = pm(1)_OnPopUp\n" + Filler() +
      "pm(0).OnPopup = PM(1)_ONPOPUP\n";
  const test::CheckedText checked(text);
  ASSERT_TRUE(checked.Result.Checked) << checked.Messages();
  EXPECT_EQ(checked.Result.Checked->Procedures[1].Name, "pm(1)_OnPopUp");
}

}  // namespace
}  // namespace tarnwick::basic
