#include <gtest/gtest.h>

#include "fakes/object_program.h"

namespace tarnwick::objects {
namespace {

using test::ObjectProgram;
using test::PrintedBy;

TEST(Streams, AFileIsWrittenAndReadLineByLine) {
  EXPECT_EQ(
      PrintedBy("DIM F AS QFILESTREAM\nPRINT F.Open(\"n.txt\", 65535);\nF.WriteLine(\"one\")\n"
                "F.WriteLine(\"two\")\nF.Close\nF.Open(\"n.txt\", 0)\nPRINT F.LineCount;\n"
                "WHILE NOT F.EOF\nPRINT F.ReadLine;\nWEND\nPRINT F.Position; F.Size"),
      "-12onetwo1010\n");
}

TEST(Streams, ALastLineWithoutAnEndCounts) {
  EXPECT_EQ(
      PrintedBy("DIM M AS QMEMORYSTREAM\nM.WriteStr(\"a\" + CHR$(10) + CHR$(10) + \"b\", 4)\n"
                "PRINT M.LineCount;\nM.Position = 0\nPRINT M.ReadLine; M.ReadLine; M.ReadLine;\n"
                "PRINT M.EOF"),
      "3ab-1\n");
}

TEST(Streams, AMissingFileGivesZeroAndANote) {
  ObjectProgram program("DIM F AS QFILESTREAM\nPRINT F.Open(\"gone.txt\", 0)\nPRINT F.ReadLine");
  EXPECT_EQ(program.Run(), "0\nerror: F is not open");
  ASSERT_EQ(program.Result.Notes.size(), 1U);
  EXPECT_EQ(program.Result.Notes[0].Text, "F: the file gone.txt cannot be opened");
}

TEST(Streams, SeekCountsFromTheBeginningFromHereAndFromTheEnd) {
  EXPECT_EQ(PrintedBy("DIM M AS QMEMORYSTREAM\nM.WriteStr(\"abcdef\", 6)\nM.Seek(2, 0)\n"
                      "PRINT M.ReadStr(1);\nM.Seek(1, 1)\nPRINT M.ReadStr(1);\nM.Seek(-1, 2)\n"
                      "PRINT M.ReadStr(9);\nM.Seek(-5, 0)\nPRINT M.Position"),
            "cef0\n");
}

TEST(Streams, NumbersAreStoredInTheirWidth) {
  EXPECT_EQ(PrintedBy("DIM M AS QMEMORYSTREAM\nM.WriteNum(-2, 2)\nM.WriteNum(1.5, 7)\n"
                      "PRINT M.Size;\nM.Position = 0\nPRINT M.ReadNum(2); M.ReadNum(7)"),
            "10-21.5\n");
}

TEST(Streams, VariablesAreStoredInTheirOwnWidth) {
  EXPECT_EQ(
      PrintedBy("DIM M AS QMEMORYSTREAM\nDIM b AS BYTE, w AS WORD, d AS DOUBLE, s AS STRING\n"
                "b = 200 : w = 60000 : d = 2.5 : s = \"xyz\"\nM.Write(b) : M.Write(w)\n"
                "M.Write(d) : M.Write(s)\nPRINT M.Size;\nb = 0 : w = 0 : d = 0 : s = \"...\"\n"
                "M.Position = 0\nM.Read(b) : M.Read(w) : M.Read(d) : M.Read(s)\n"
                "PRINT b; w; d; s"),
      "14200600002.5xyz\n");
}

TEST(Streams, RecordsAndArraysAreStoredWhole) {
  EXPECT_EQ(
      PrintedBy("TYPE P\nx AS SHORT\ns AS STRING * 4\nt AS STRING\na(2) AS BYTE\nEND TYPE\n"
                "DIM M AS QMEMORYSTREAM, q AS P, r AS P\nq.x = -3 : q.s = \"ab\" : q.t = \"long\"\n"
                "q.a(2) = 9\nM.WriteUDT(q)\nPRINT M.Size;\nM.Position = 0\nM.ReadUDT(r)\n"
                "PRINT r.x; r.s; r.t; r.a(2)"),
      "17-3ab  long9\n");
  EXPECT_EQ(PrintedBy("DIM M AS QMEMORYSTREAM\nDIM a(3) AS INTEGER, b(3) AS INTEGER\na(2) = 7\n"
                      "M.SaveArray(a, 4)\nPRINT M.Size;\nM.Position = 0\nM.LoadArray(b, 4)\n"
                      "PRINT b(2)"),
            "167\n");
}

TEST(Streams, OneIsCopiedIntoAnother) {
  EXPECT_EQ(PrintedBy("DIM A AS QMEMORYSTREAM, B AS QMEMORYSTREAM\nA.WriteStr(\"abcdef\", 6)\n"
                      "B.CopyFrom(A, 0)\nA.Position = 1\nB.CopyFrom(A, 2)\nB.Position = 0\n"
                      "PRINT B.ReadStr(20)\nB.Close\nPRINT B.Size"),
            "abcdefbc\n0\n");
}

TEST(Streams, AResourceIsCopiedOut) {
  ObjectProgram program(
      "$RESOURCE Logo AS \"a.txt\"\nDIM M AS QMEMORYSTREAM\n"
      "M.ExtractRes(RESOURCE(0))\nM.Position = 0\nPRINT M.ReadStr(99)");
  program.Files.Add("a.txt", "alpha");
  EXPECT_EQ(program.Run(), "alpha\n");
}

TEST(Dialogs, ExecuteGivesTheFilesOrZero) {
  ObjectProgram program("DIM D AS QOPENDIALOG\nPRINT D.Execute;\n");
  EXPECT_EQ(program.Run(), "0");
  ObjectProgram picked(
      "DIM D AS QOPENDIALOG\nPRINT D.Execute; D.FileName; D.Files(1)\n"
      "PRINT D.Files(2)");
  picked.Widgets.Picked = {{"C:\\a.txt", "C:\\b.txt"}, 0};
  EXPECT_EQ(picked.Run(), "1C:\\a.txtC:\\b.txt\nerror: D has no file 2: it has 2, counted from 0");
}

}  // namespace
}  // namespace tarnwick::objects
