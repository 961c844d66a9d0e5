#include <algorithm>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

void SetFolder(SheetBench& bench, std::string_view key, std::string_view folder) {
  bench.Fakes.Profiles.Write("C:\\T\\Tarnwick.ini", "Path", key, folder);
}

TEST(ValuePickers, APictureIsPickedFromItsFolderWhichIsRemembered) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\new\\a.bmp"};
  SetFolder(bench, "Bmp", "C:\\old");
  const ControlRef button = bench.Make(Kind::Button);
  bench.Fakes.Dialogs.OpenAnswers = {"C:\\new\\a.bmp"};
  bench.PressButton("BmpHandle");
  EXPECT_EQ(bench.Fakes.Dialogs.LastRequest.Filter, "Bmps Files|*.bmp");
  EXPECT_EQ(bench.Fakes.Dialogs.LastRequest.StartFolder, "C:\\old");
  EXPECT_EQ(bench.Text("BmpHandle"), "C:\\new\\a.bmp");
  EXPECT_EQ(bench.Record().Buttons.At(1)->ImageFile, "C:\\new\\a.bmp");
  EXPECT_EQ(bench.Record().Buttons.At(1)->Title, "Frm1Btn1_Bmp");
  EXPECT_EQ(button->Picture, "C:\\new\\a.bmp");
  EXPECT_TRUE(bench.Logged("profile write [Path] Bmp=C:\\new\\"));
}

TEST(ValuePickers, AnImageTakesIconsToo) {
  SheetBench bench;
  bench.Make(Kind::Image);
  bench.PressButton("BmpHandle");
  EXPECT_EQ(bench.Fakes.Dialogs.LastRequest.Filter, "Bmps and Icons Files|*.bmp;*.ico");
}

TEST(ValuePickers, IconsFilesAndPagesHaveTheirFiltersAndFolders) {
  SheetBench bench;
  for (const char* key : {"Icon", "All", "Html"}) SetFolder(bench, key, key);
  const FileDialogRequest& request = bench.Fakes.Dialogs.LastRequest;
  bench.Pick(nullptr);
  bench.PressButton("Icon(App)");
  EXPECT_EQ(request.Filter, "Icon Files|*.ico");
  EXPECT_EQ(request.StartFolder, "Icon");
  bench.Make(Kind::OpenDialog);
  bench.PressButton("FileName");
  EXPECT_EQ(request.Filter, "All Files|*.*");
  EXPECT_EQ(request.StartFolder, "All");
  bench.Make(Kind::HtmlViewer);
  bench.PressButton("Navigate");
  EXPECT_EQ(request.Filter, "Html Files|*.htm;*.html");
  EXPECT_EQ(request.StartFolder, "Html");
}

TEST(ValuePickers, PickedFilesReachTheirRecords) {
  SheetBench bench;
  bench.Fakes.Dialogs.OpenAnswers = {"C:\\x\\a.ico", "C:\\x\\b.txt", "C:\\x\\c.htm"};
  bench.Pick(nullptr);
  bench.PressButton("IcoHandle");
  EXPECT_EQ(bench.Record().ImageFile, "C:\\x\\a.ico");
  EXPECT_EQ(bench.Record().IconFile, "C:\\x\\a.ico");
  bench.Make(Kind::SaveDialog);
  bench.PressButton("FileName");
  EXPECT_EQ(bench.Record().SaveDialogs.At(1)->FileName, "C:\\x\\b.txt");
  bench.Make(Kind::HtmlViewer);
  bench.PressButton("Navigate");
  EXPECT_EQ(bench.Record().HtmlViewers.At(1)->Navigate, "C:\\x\\c.htm");
}

TEST(ValuePickers, TheFontIsSetOnTheControlAndItsNameShows) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  label->FontName = "Tahoma";
  label->FontSize = 9;
  label->FontUnderline = true;
  label->ForeColor = 128;
  bench.Sheet.ShowSelection();
  bench.Fakes.Dialogs.FontAnswers = {FontChoice{"Courier New", 12.5F, true, true, 255}};
  bench.PressButton("Font");
  ASSERT_TRUE(bench.Fakes.Dialogs.LastFont);
  EXPECT_EQ(bench.Fakes.Dialogs.LastFont->Name, "Tahoma");
  EXPECT_EQ(bench.Fakes.Dialogs.LastFont->Size, 9.0F);
  EXPECT_EQ(bench.Fakes.Dialogs.LastFont->Color, 128);
  EXPECT_EQ(label->FontName, "Courier New");
  EXPECT_EQ(label->FontSize, 12.5F);
  EXPECT_TRUE(label->FontBold);
  EXPECT_TRUE(label->FontItalic);
  EXPECT_TRUE(label->FontUnderline);
  EXPECT_EQ(label->ForeColor, 255);
  EXPECT_EQ(bench.Text("Font"), "Courier New");
  EXPECT_EQ(bench.Text("FontColor"), "255");
}

TEST(ValuePickers, TheFontRowIsToldWhenSizeOrStyleAloneChange) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  bench.Fakes.Dialogs.FontAnswers = {FontChoice{label->FontName, 24, true, false, 0}};
  bench.View.Texts.clear();
  bench.PressButton("Font");
  EXPECT_EQ(label->FontSize, 24);
  EXPECT_NE(std::find(bench.View.Texts.begin(), bench.View.Texts.end(), bench.RowOf("Font")),
            bench.View.Texts.end());
}

TEST(ValuePickers, AColourThatNoNumberHoldsStartsTheDialogAtTheStoredOne) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  label->BackColor = 255;
  bench.Sheet.ShowSelection();
  bench.Type("Color", "99999999999");
  bench.Sheet.PickValue();
  EXPECT_EQ(bench.Fakes.Dialogs.LastColor, 255);
}

TEST(ValuePickers, TheColourDialogStartsAtBlackInARowThatKeepsNoColour) {
  SupportTables rows;
  AddKindFile(rows,
              "[FILESTREAM]\x8D"
              "Nonsense\x9B\x8E");
  SheetBench bench{rows};
  bench.Make(Kind::FileStream);
  bench.Fakes.Dialogs.LastColor = -1;
  bench.PressButton("Nonsense");
  EXPECT_EQ(bench.Fakes.Dialogs.LastColor, 0);
}

TEST(ValuePickers, TheFontOfAButtonSetsTheColourInItsRecord) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.Fakes.Dialogs.FontAnswers = {FontChoice{"Arial", 8, false, false, 65280}};
  bench.PressButton("Font");
  EXPECT_EQ(bench.Record().Buttons.At(1)->FontColor, 65280);
  EXPECT_EQ(bench.Text("FontColor"), "65280");
}

TEST(ValuePickers, TheFontRowTakesNoTyping) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  const std::string before = label->FontName;
  EXPECT_FALSE(bench.Sheet.TakesTyping(bench.RowOf("Font")));
  EXPECT_FALSE(bench.Type("Font", "A"));
  EXPECT_EQ(label->FontName, before);
}

TEST(ValuePickers, AColourGoesIntoTheRowAsItsNumber) {
  SheetBench bench;
  const ControlRef label = bench.Make(Kind::Label);
  bench.Fakes.Dialogs.ColorAnswers = {255, -2147483633};
  bench.PressButton("Color");
  EXPECT_EQ(bench.Fakes.Dialogs.LastColor, 12632256);
  EXPECT_EQ(bench.Text("Color"), "255");
  EXPECT_EQ(label->BackColor, 255);
  bench.PressButton("Color");
  EXPECT_EQ(bench.Text("Color"), "-2147483633");
  EXPECT_EQ(label->BackColor, -2147483633);
}

TEST(ValuePickers, AFolderIsCutAt260Characters) {
  SheetBench bench;
  bench.Make(Kind::OpenDialog);
  bench.Record().OpenDialogs.At(1)->InitialDir = "C:\\here";
  bench.Sheet.ShowSelection();
  bench.Fakes.Dialogs.FolderAnswers = {"C:\\there", std::string(300, 'x')};
  bench.PressButton("InitialDir");
  EXPECT_EQ(bench.Fakes.Dialogs.LastFolder, "C:\\here");
  EXPECT_EQ(bench.Record().OpenDialogs.At(1)->InitialDir, "C:\\there");
  bench.PressButton("InitialDir");
  EXPECT_EQ(bench.Record().OpenDialogs.At(1)->InitialDir, std::string(260, 'x'));
}

TEST(ValuePickers, ItemListsOpenTheirDesigner) {
  SheetBench bench;
  bench.Make(Kind::ComboBox);
  bench.PressButton("AddItems");
  EXPECT_TRUE(bench.Logged("items"));
  bench.Make(Kind::PopUpMenu);
  bench.PressButton("AddItems");
  EXPECT_TRUE(bench.Logged("popup 1"));
}

TEST(ValuePickers, TheListOpensWithThePresentValueMarkedAndClosesAgain) {
  SheetBench bench;
  bench.Make(Kind::Button);
  bench.PressButton("Enabled");
  EXPECT_TRUE(bench.Sheet.List().IsOpen());
  EXPECT_EQ(bench.Sheet.List().Marked(), 1);
  bench.Sheet.PickValue();
  EXPECT_FALSE(bench.Sheet.List().IsOpen());
  bench.Make(Kind::WinSock);
  bench.PressButton("Family");
  EXPECT_EQ(bench.Sheet.List().Marked(), 0);
}

TEST(ValuePickers, CancelledPickersChangeNothing) {
  for (const KindInfo& info : AllKinds()) {
    const bool is_form = info.Id == Kind::Form;
    if (!is_form && static_cast<std::size_t>(info.Id) >= kObjectKindCount) continue;
    SheetBench bench;
    bench.MakeOrForm(info.Id);
    std::vector<std::string> before;
    for (int i = 0; i < bench.Sheet.RowCount(); ++i) before.push_back(bench.Sheet.Text(i));
    bench.Fakes.Log.Clear();
    for (int i = 0; i < bench.Sheet.RowCount(); ++i) {
      bench.Sheet.SelectRow(i);
      bench.Sheet.PickValue();
      bench.Sheet.CloseList();
      EXPECT_EQ(bench.Sheet.Text(i), before[static_cast<std::size_t>(i)]) << info.Name << i;
    }
    EXPECT_EQ(bench.Fakes.Log.Count("profile write"), 0U) << info.Name;
    EXPECT_EQ(bench.Fakes.Log.Count("controls"), 0U) << info.Name;
    EXPECT_EQ(bench.Fakes.Log.Count("form"), 0U) << info.Name;
    bench.Sheet.ShowSelection();
    for (int i = 0; i < bench.Sheet.RowCount(); ++i) {
      EXPECT_EQ(bench.Sheet.Text(i), before[static_cast<std::size_t>(i)]) << info.Name << i;
    }
  }
}

TEST(ValuePickers, ResetWritesTheNeutralTextOfTheRow) {
  SheetBench bench;
  bench.Host.Pictures = {"C:\\T\\iconapp.ico"};
  bench.Pick(nullptr);
  bench.Record().IconFile = "a";
  bench.Record().ImageFile = "b";
  bench.Sheet.ShowSelection();
  bench.Sheet.SelectRow(bench.RowOf("Icon(App)"));
  bench.Sheet.ResetValue();
  EXPECT_EQ(bench.Record().IconFile, "(Default)");
  EXPECT_EQ(bench.Record().ImageFile, "b");
  bench.Sheet.SelectRow(bench.RowOf("IcoHandle"));
  bench.Sheet.ResetValue();
  EXPECT_EQ(bench.Record().ImageFile, "(Default)");
  EXPECT_EQ(bench.Form().WindowIcon, "C:\\T\\iconapp.ico");
  bench.Make(Kind::HtmlViewer);
  bench.Type("Navigate", "page.htm");
  bench.Sheet.ResetValue();
  EXPECT_EQ(bench.Record().HtmlViewers.At(1)->Navigate, "(None)");
}

TEST(ValuePickers, ResetRemovesThePictureOfTheControl) {
  SupportTables rows;
  AddKindFile(rows, "[IMAGE]\x8DIcoHandle\x99\x8E");
  SheetBench bench{rows};
  const ControlRef image = bench.Make(Kind::Image);
  image->Picture = "C:\\a.bmp";
  bench.Sheet.SelectRow(1);
  bench.Sheet.ResetValue();
  EXPECT_EQ(bench.Text("IcoHandle"), "(None)");
  EXPECT_EQ(image->Picture, "");
}

TEST(ValuePickers, TheViewsHearOfThePictureThatAResetTookAway) {
  struct PictureReader final : ProjectObserver {
    void ControlsChanged(int /*form*/) override { Picture = Control->Picture; }
    ControlRef Control;
    std::string Picture;
  };
  SupportTables rows;
  AddKindFile(rows, "[IMAGE]\x8DIcoHandle\x99\x8E");
  SheetBench bench{rows};
  PictureReader view;
  view.Control = bench.Make(Kind::Image);
  view.Control->Picture = "C:\\a.bmp";
  view.Picture = view.Control->Picture;
  PropertySheet sheet{bench.Tables, rows, bench.Given, view, bench.Host, bench.Steps};
  sheet.ShowSelection();
  sheet.SelectRow(1);
  sheet.ResetValue();
  EXPECT_EQ(view.Picture, "");
}

TEST(ValuePickers, ResetOfARowWithoutANeutralTextDoesNothing) {
  SheetBench bench;
  bench.Make(Kind::OpenDialog);
  bench.Type("FileName", "a.txt");
  bench.Sheet.ResetValue();
  EXPECT_EQ(bench.Record().OpenDialogs.At(1)->FileName, "a.txt");
}

}  // namespace
}  // namespace tarnwick
