#include <gtest/gtest.h>

#include "fakes/object_program.h"

namespace tarnwick::objects {
namespace {

using test::ObjectProgram;
using test::PrintedBy;

TEST(Printers, ADocumentCountsItsPages) {
  EXPECT_EQ(PrintedBy("PRINT Printer.Printing; Printer.PageNumber;\nPrinter.BeginDoc\n"
                      "PRINT Printer.Printing; Printer.PageNumber;\nPrinter.NewPage\n"
                      "Printer.TextOut(10, 10, \"words\", 0, -1)\nPRINT Printer.PageNumber;\n"
                      "Printer.EndDoc\nPRINT Printer.Printing"),
            "001120\n");
}

TEST(Printers, PagesHaveASizeBeforeTheyArePrinted) {
  EXPECT_EQ(PrintedBy("PRINT Printer.PageWidth > 1000; Printer.PageHeight > 1000"), "-1-1\n");
}

TEST(Printers, NothingIsDrawnOutsideOfADocument) {
  EXPECT_EQ(PrintedBy("Printer.Line(0, 0, 9, 9, 0)"),
            "error: Printer.Line: no document is being printed; BeginDoc begins one");
  EXPECT_EQ(PrintedBy("Printer.BeginDoc\nPrinter.EndDoc\nPrinter.NewPage"),
            "error: Printer.NewPage: no document is being printed; BeginDoc begins one");
}

TEST(Printers, ADocumentIsBegunAndEndedOnce) {
  EXPECT_EQ(PrintedBy("Printer.EndDoc\nPrinter.BeginDoc\nPrinter.BeginDoc"),
            "error: Printer.BeginDoc: a document is being printed already; EndDoc ends it");
}

TEST(Printers, WithoutWindowsNothingIsPrintedAndANoteTellsSo) {
  ObjectProgram program(
      "Printer.Title = \"List\"\nPrinter.BeginDoc\nPrinter.EndDoc\nDIM R AS QRICHEDIT\n"
      "R.Print(\"Text\")\nPRINT Printer.Title");
  EXPECT_EQ(program.Run(), "List\n");
  ASSERT_EQ(program.Result.Notes.size(), 2U);
  EXPECT_EQ(program.Result.Notes[0].Text, "Nothing is printed in a run without windows");
  EXPECT_EQ(program.Result.Notes[1].Text, "R is not shown in a window: nothing was printed");
}

TEST(Printers, FontsAreTheirOwn) {
  EXPECT_EQ(PrintedBy("Printer.Font.Size = 24\nDIM F AS QFONT\nF.Size = 9\nF.Bold = 1\n"
                      "PRINT Printer.Font.Size;\nPrinter.Font = F\nF.Size = 30\n"
                      "PRINT Printer.Font.Size; Printer.Font.Bold"),
            "2491\n");
}

}  // namespace
}  // namespace tarnwick::objects
