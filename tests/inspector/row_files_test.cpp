// Rows that name a file: pictures, icons, pages.
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

TEST(RowFiles, IcoHandleOfAFormWritesBothIconsAndLoadsTheWindows) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\i.ico", "C:\\T\\iconapp.ico"};
  bench.Pick(nullptr);
  bench.Type("IcoHandle", "C:\\i.ico");
  EXPECT_EQ(bench.Record().ImageFile, "C:\\i.ico");
  EXPECT_EQ(bench.Record().IconFile, "C:\\i.ico");
  EXPECT_EQ(bench.Form().WindowIcon, "C:\\i.ico");
  EXPECT_EQ(bench.Text("Icon(App)"), "C:\\i.ico");
  bench.Type("IcoHandle", "(Default)");
  EXPECT_EQ(bench.Form().WindowIcon, "C:\\T\\iconapp.ico");
}

TEST(RowFiles, IconAppWritesTheProjectIconAlone) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\i.ico"};
  bench.Pick(nullptr);
  bench.Type("Icon(App)", "C:\\i.ico");
  EXPECT_EQ(bench.Record().IconFile, "C:\\i.ico");
  EXPECT_EQ(bench.Record().ImageFile, "(Default)");
  EXPECT_EQ(bench.Form().WindowIcon, "");
  EXPECT_EQ(bench.Text("IcoHandle"), "(Default)");
}

TEST(RowFiles, AFileThatIsNoPictureLeavesThePictureAndKeepsTheText) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\a.bmp"};
  const ControlRef image = bench.Make(Kind::Image);
  bench.Type("BmpHandle", "C:\\a.bmp");
  EXPECT_EQ(image->Picture, "C:\\a.bmp");
  bench.Type("BmpHandle", "C:\\a.bm");
  EXPECT_EQ(image->Picture, "C:\\a.bmp");
  EXPECT_EQ(bench.Record().Images.At(1)->ImageFile, "C:\\a.bm");
  EXPECT_EQ(bench.Text("BmpHandle"), "C:\\a.bm");
}

TEST(RowFiles, ARelativePictureIsFoundInTheProject) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\P\\pics\\a.bmp"};
  bench.Tables.ProgramFolder = "D:\\T";
  const ControlRef button = bench.Make(Kind::Button);
  bench.Type("BmpHandle", "pics\\a.bmp");
  EXPECT_EQ(bench.Record().Buttons.At(1)->ImageFile, "pics\\a.bmp");
  EXPECT_EQ(button->Picture, "C:\\P\\pics\\a.bmp");
}

TEST(RowFiles, BmpHandleNamesTheResourceInTheRecord) {
  SheetBench bench;
  bench.Make(Kind::Image);
  bench.Type("BmpHandle", "a.bmp");
  EXPECT_EQ(bench.Record().Images.At(1)->Title, "Frm1Image1_Bmp");
  bench.Make(Kind::Button);
  bench.Type("BmpHandle", "a.bmp");
  EXPECT_EQ(bench.Record().Buttons.At(1)->Title, "Frm1Btn1_Bmp");
  EXPECT_EQ(bench.Text("Caption"), "Form1Btn1");
  bench.Type("BmpHandle", "(None)");
  EXPECT_EQ(bench.Record().Buttons.At(1)->Title, "(None)");
}

TEST(RowFiles, NoneInIcoHandleRemovesTheImagesPicture) {
  SupportTables rows;
  AddKindFile(rows, "[IMAGE]\x8DIcoHandle\x99\x8E");
  SheetBench bench{rows};
  bench.Host.Pictures = {"C:\\a.ico"};
  const ControlRef image = bench.Make(Kind::Image);
  bench.Type("IcoHandle", "C:\\a.ico");
  EXPECT_EQ(bench.Record().Images.At(1)->PictureName, "C:\\a.ico");
  EXPECT_EQ(image->Picture, "C:\\a.ico");
  bench.Type("IcoHandle", "(None)");
  EXPECT_EQ(image->Picture, "");
  EXPECT_EQ(bench.Record().Images.At(1)->PictureName, "(None)");
}

// Names.

TEST(RowFiles, NoneInAnyLettersIsNone) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  button->Picture = "C:\\a.bmp";
  bench.Type("BmpHandle", "(none)");
  EXPECT_EQ(bench.Record().Buttons.At(1)->ImageFile, "(None)");
  EXPECT_EQ(button->Picture, "");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Text("BmpHandle"), "(None)");
  bench.Pick(nullptr);
  bench.Type("IcoHandle", "(DEFAULT)");
  EXPECT_EQ(bench.Record().ImageFile, "(Default)");
}

TEST(RowFiles, TheNeutralWordOfAFileRowIsThatOfItsKind) {
  SheetBench bench;
  bench.Pick(nullptr);
  for (const std::string_view text : {"(none)", "", "(Default)"}) {
    bench.Type("Icon(App)", "C:\\a.ico");
    bench.Type("Icon(App)", text);
    EXPECT_EQ(bench.Record().IconFile, "(Default)") << text;
    bench.Sheet.LeaveRow();
    EXPECT_EQ(bench.Text("Icon(App)"), "(Default)");
  }
  bench.Make(Kind::Image);
  bench.Type("BmpHandle", "(default)");
  EXPECT_EQ(bench.Record().Images.At(1)->ImageFile, "(None)");
}

TEST(RowFiles, AnEmptyFileRowReadsNone) {
  SheetBench bench;
  bench.Make(Kind::HtmlViewer);
  bench.Type("Navigate", "page.htm");
  bench.Type("Navigate", "");
  bench.Sheet.LeaveRow();
  EXPECT_EQ(bench.Text("Navigate"), "(None)");
}

TEST(RowFiles, APageIsShownByTheViewerOnTheForm) {
  SheetBench bench;
  const ControlRef viewer = bench.Make(Kind::HtmlViewer);
  bench.Type("Navigate", "C:\\a.htm");
  EXPECT_EQ(viewer->Text, "C:\\a.htm");
  EXPECT_TRUE(bench.Logged("controls 1"));
}

}  // namespace
}  // namespace tarnwick
