// Pages of running programs. The machine of the tests has no printer: they go to files.
#include <QTest>

#include <QtPrintSupport/QPrinterInfo>
#include <gtest/gtest.h>

#include "run/live_program.h"
#include "text/strings.h"

namespace tarnwick {
namespace {

using test::FormWith;
using test::LiveProgram;

std::size_t CountOf(const std::string& text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

/// The drawing commands of the pages of a file.
std::string DrawnIn(const std::string& file) {
  constexpr std::string_view kBegin = "stream\n";
  std::string drawn;
  for (std::size_t at = file.find(kBegin); at != std::string::npos;
       at = file.find(kBegin, at + 1)) {
    const std::size_t from = at + kBegin.size();
    const std::size_t end = file.find("endstream", from);
    if (end == std::string::npos) break;
    if (file[from] != 'x') continue;  // not packed
    // The toolkit wants the size of the whole in front.
    QByteArray packed("\0\0\x20\0", 4);
    packed.append(file.data() + from, static_cast<qsizetype>(end - from));
    const QByteArray plain = qUncompress(packed);
    drawn.append(plain.constData(), static_cast<std::size_t>(plain.size()));
  }
  return drawn;
}

class RunPrinterTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QPrinterInfo::defaultPrinter().isNull()) << "the tests would use real paper";
  }
};

TEST_F(RunPrinterTest, PagesGoToAFileWhereThereIsNoPrinter) {
  LiveProgram live(
      "Printer.Title = \"A list\"\nPrinter.BeginDoc\nPrinter.Font.Size = 20\n"
      "Printer.TextOut(100, 200, \"Words\", &HFF, -1)\nPrinter.NewPage\n"
      "Printer.Rectangle(100, 100, 500, 400, 0)\nPrinter.Line(0, 0, 99, 99, 0)\n"
      "Printer.EndDoc\nPRINT Printer.PageWidth < Printer.PageHeight");
  live.Run();
  EXPECT_EQ(live.Printed, "-1\n");
  const std::string file = live.Folder.Read("main.pdf");
  EXPECT_TRUE(file.starts_with("%PDF")) << file.substr(0, 20);
  EXPECT_EQ(CountOf(file, "/Type /Page\n"), 2U);
  const std::string drawn = DrawnIn(file);
  EXPECT_GE(CountOf(drawn, "Tj"), 1U) << drawn;
  EXPECT_GE(CountOf(drawn, "1 0 0 scn"), 1U) << "the red of the text\n" << drawn;
  ASSERT_EQ(live.Result.Notes.size(), 1U);
  EXPECT_EQ(live.Result.Notes[0].Text,
            "There is no printer: the pages are in " + live.Folder.Path("main.pdf"));
}

TEST_F(RunPrinterTest, AFileThatIsThereStays) {
  LiveProgram live("Printer.BeginDoc\nPrinter.EndDoc\nPrinter.BeginDoc\nPrinter.EndDoc");
  live.Folder.Write("main.pdf", "mine");
  live.Run();
  EXPECT_EQ(live.Folder.Read("main.pdf"), "mine");
  EXPECT_TRUE(live.Folder.Read("main 2.pdf").starts_with("%PDF"));
  EXPECT_TRUE(live.Folder.Read("main 3.pdf").starts_with("%PDF"));
}

TEST_F(RunPrinterTest, PagesLieDownByTheirOrientation) {
  LiveProgram live(
      "Printer.Orientation = 1\nPRINT Printer.PageWidth > Printer.PageHeight\nPrinter.BeginDoc\n"
      "PRINT Printer.PageWidth > Printer.PageHeight\nPrinter.EndDoc");
  live.Run();
  EXPECT_EQ(live.Printed, "-1\n-1\n");
}

TEST_F(RunPrinterTest, TextsAreMeasuredOnPaper) {
  LiveProgram live(
      "DIM small AS INTEGER, large AS INTEGER\nPrinter.Font.Size = 10\n"
      "small = Printer.TextHeight(\"A\")\nPrinter.Font.Size = 20\nPrinter.BeginDoc\n"
      "large = Printer.TextHeight(\"A\")\nPRINT small > 60; small < 130; large > small * 1.8;\n"
      "PRINT Printer.TextWidth(\"AA\") > Printer.TextWidth(\"A\")\nPrinter.EndDoc");
  live.Run();
  // 10 points of 600 in an inch are 83, and a line is somewhat higher.
  EXPECT_EQ(live.Printed, "-1-1-1-1\n");
}

TEST_F(RunPrinterTest, PicturesAreStretchedOverThePage) {
  LiveProgram live(
      "DIM B AS QBITMAP, R AS QRECT, S AS QRECT\nB.Width = 10: B.Height = 10\n"
      "B.FillRect(0, 0, 10, 10, &HFF)\nR.Right = 600: R.Bottom = 600\nS.Right = 5: S.Bottom = 5\n"
      "Printer.BeginDoc\nPrinter.StretchDraw(R, B)\nPrinter.CopyRect(R, B, S)\n"
      "Printer.Draw(0, 0, B)\nPrinter.Circle(0, 0, 99, 99, 0, -1)\nPrinter.PSet(1, 1, 0)\n"
      "Printer.FillRect(0, 0, 9, 9, 0)\nPrinter.RoundRect(0, 0, 99, 99, 9, 9, 0)\n"
      "Printer.EndDoc");
  live.Run();
  EXPECT_EQ(live.Result.Text, "");
  EXPECT_GE(CountOf(DrawnIn(live.Folder.Read("main.pdf")), " Do"), 3U) << "pictures";
}

TEST_F(RunPrinterTest, ADocumentThatIsNotEndedIsPrintedWithTheProgram) {
  TemporaryFolder kept;
  kept.Write("main.bas", "Printer.BeginDoc\nPrinter.TextOut(9, 9, \"a\", 0, -1)");
  {
    LiveProgram live("", kept.Native("main.bas"));
    live.ExeName = kept.Path("main.exe");
    live.Run();
  }
  EXPECT_EQ(CountOf(kept.Read("main.pdf"), "/Type /Page\n"), 1U);
}

TEST_F(RunPrinterTest, LinesArePrintedWhereTheyAreSentOut) {
  LiveProgram live("LPRINT \"Total\"; 12\nLPRINT \"a\", \"b\"\nLFLUSH\nPRINT \"on\"");
  live.Run();
  EXPECT_EQ(live.Printed, "on\n");
  const std::string file = live.Folder.Read("main.pdf");
  EXPECT_EQ(CountOf(file, "/Type /Page\n"), 1U);
  EXPECT_GE(CountOf(DrawnIn(file), "Tj"), 2U);
  ASSERT_EQ(live.Result.Notes.size(), 1U);
  EXPECT_EQ(live.Result.Notes[0].Text,
            "There is no printer: the pages are in " + live.Folder.Path("main.pdf"));
}

TEST_F(RunPrinterTest, LinesGoOnFurtherPages) {
  LiveProgram live(
      "FOR i = 1 TO 150: LPRINT i: NEXT\nLPRINT CHR$(12); \"last\"; CHR$(12)\nLFLUSH\nLFLUSH");
  live.Run();
  const std::string file = live.Folder.Read("main.pdf");
  // Some sixty lines to the page, and a form feed begins one.
  EXPECT_EQ(CountOf(file, "/Type /Page\n"), 4U);
  EXPECT_GE(CountOf(DrawnIn(file), "Tj"), 151U);
  EXPECT_EQ(live.Folder.Read("main 2.pdf"), "") << "nothing was left for a second file";
}

TEST_F(RunPrinterTest, LinesThatWereNotSentOutArePrintedAtTheEnd) {
  for (const char* const text : {"LPRINT \"a\"", "LPRINT \"a\": END", "LPRINT \"a\": x = 1 \\ y"}) {
    LiveProgram live(text);
    live.Run();
    EXPECT_EQ(CountOf(live.Folder.Read("main.pdf"), "/Type /Page\n"), 1U) << text;
    EXPECT_EQ(live.Result.Notes.size(), 1U) << text;
  }
}

TEST_F(RunPrinterTest, ARichTextIsPrinted) {
  LiveProgram live(
      FormWith("DIM R AS QRICHEDIT: R.Parent = F\nFOR k = 1 TO 200: R.Text = R.Text + \"line\" + "
               "CHR$(13) + CHR$(10): NEXT",
               "DIM Go AS QBUTTON\nSUB Pages\nR.Print(\"Lines\")\nEND SUB\nGo.OnClick = Pages"));
  live.Then([&] { live.World->Click(live.Object("Go").Id); });
  live.Run();
  const std::string file = live.Folder.Read("main.pdf");
  EXPECT_GE(CountOf(file, "/Type /Page\n"), 2U);
  EXPECT_LE(CountOf(file, "/Type /Page\n"), 6U) << "letters have the size of the screen's";
  EXPECT_GE(CountOf(DrawnIn(file), "Tj"), 100U);
}

}  // namespace
}  // namespace tarnwick
