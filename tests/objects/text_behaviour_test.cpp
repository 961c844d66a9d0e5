#include <gtest/gtest.h>

#include "fakes/object_program.h"
#include "objects/rich_text.h"

namespace tarnwick::objects {
namespace {

using test::ObjectProgram;
using test::PrintedBy;

TEST(TextBoxes, TextFromCodeRaisesOnChangeOnceWhenItChanges) {
  EXPECT_EQ(PrintedBy("DIM T AS QEDIT\nSUB Changed\nPRINT T.Text\nEND SUB\nT.OnChange = Changed\n"
                      "T.Text = \"a\"\nT.Text = \"a\"\nT.Text = \"b\"\nPRINT T.Modified"),
            "a\nb\n0\n");
}

TEST(TextBoxes, WhatTheUserTypesIsModified) {
  ObjectProgram program(
      "DIM F AS QFORM, T AS QEDIT\nT.Parent = F\nF.ShowModal\n"
      "PRINT T.Text; T.Modified");
  program.Then([&] { program.World->UserSet(program.Id("T"), Word::Text, Value::Text("x")); });
  EXPECT_EQ(program.Run(), "x1\n");
}

TEST(TextBoxes, CharCaseChangesTheLetters) {
  EXPECT_EQ(PrintedBy("DIM T AS QEDIT\nT.CharCase = 1\nT.Text = \"aB\"\nPRINT T.Text"), "AB\n");
}

TEST(TextBoxes, TheSelectionIsReadReplacedAndCopied) {
  EXPECT_EQ(PrintedBy("DIM T AS QEDIT\nT.Text = \"one two\"\nT.SelStart = 4 : T.SelLength = 3\n"
                      "PRINT T.SelText;\nT.CopyToClipboard\nT.SelText = \"three\"\n"
                      "PRINT T.Text; T.SelStart;\nT.SelectAll\nT.PasteFromClipboard\nPRINT T.Text"),
            "twoone three9two\n");
}

TEST(TextBoxes, LinesCountFromZeroAndEndInCrLf) {
  EXPECT_EQ(PrintedBy("DIM R AS QRICHEDIT\nR.AddStrings \"a\", \"b\"\nR.InsertLine(1, \"x\")\n"
                      "PRINT R.LineCount; R.Line(1); LEN(R.Text);\nR.DeleteLine(0)\n"
                      "R.Line(0) = \"long\"\nPRINT R.Line(0); R.Line(1); R.LineCount"),
            "3x9longb2\n");
  EXPECT_EQ(PrintedBy("DIM R AS QRICHEDIT\nPRINT R.Line(0)"),
            "error: R has no line 0: it has 0, counted from 0");
}

TEST(TextBoxes, PositionsCountBothBytesOfALineEnd) {
  EXPECT_EQ(PrintedBy("DIM R AS QRICHEDIT\nR.Text = \"ab\" + CHR$(13) + CHR$(10) + \"cd\"\n"
                      "R.SelStart = 4 : R.SelLength = 1\nPRINT R.SelText; R.WhereX; R.WhereY"),
            "c01\n");
}

TEST(TextBoxes, PlainTextIsSavedAsItIs) {
  ObjectProgram program(
      "DIM R AS QRICHEDIT\nR.PlainText = 1\nR.Text = \"a{b}\"\n"
      "R.SaveToFile(\"r.txt\")\nR.Clear\nR.LoadFromFile(\"r.txt\")\nPRINT R.Text");
  EXPECT_EQ(program.Run(), "a{b}\n");
}

TEST(TextBoxes, RichTextGivesItsTextBack) {
  ObjectProgram program(
      "DIM R AS QRICHEDIT\nR.Text = \"a{b}\" + CHR$(13) + CHR$(10) + \"c\"\n"
      "R.SaveToFile(\"r.rtf\")\nR.Clear\nR.LoadFromFile(\"r.rtf\")\n"
      "PRINT R.LineCount; R.Line(0)");
  EXPECT_EQ(program.Run(), "2a{b}\n");
}

TEST(RichText, WhatWasWrittenIsReadAgain) {
  const std::string text =
      "a\\b{c}\td\r\n\xE9\xFF"
      "1\r\n";
  EXPECT_TRUE(IsRichText(RichTextOf(text)));
  EXPECT_EQ(PlainTextOf(RichTextOf(text)), text);
}

TEST(RichText, GroupsWithoutTextAreLeftOut) {
  EXPECT_EQ(
      PlainTextOf("{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\*\\generator x;}\\b bold\\b0  text\\par}"),
      "bold text\r\n");
}

TEST(RichText, DamagedTextIsHarmless) {
  for (const char* const text :
       {"{\\rtf", "{\\rtf1\\'", "{\\rtf1\\'4", "}}}\\", "{\\rtf1{\\*", "\\u"}) {
    EXPECT_LE(PlainTextOf(text).size(), 8U) << text;
  }
}

}  // namespace
}  // namespace tarnwick::objects
