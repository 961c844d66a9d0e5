// The row "Name": objects and forms under another name.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

using Rows = std::vector<std::string>;

TEST(Renaming, RenamingAnObjectLeavesItsCodeWhereItIs) {
  SheetBench bench;
  const ControlRef button = bench.Make(Kind::Button);
  bench.Tables.EventTable.Replace("Form1.Button1.OnClick", "code");
  const std::size_t keys = bench.Tables.EventTable.Size();
  EXPECT_TRUE(bench.Type("Name", "Ok"));
  EXPECT_EQ(button->Tag, "Ok");
  EXPECT_EQ(*bench.Tables.EventTable.Find("Form1.Button1.OnClick"), "code");
  EXPECT_NE(bench.Tables.EventTable.Find("Form1.Form1Btn1.OnClick"), nullptr);
  EXPECT_EQ(bench.Tables.EventTable.Size(), keys);
}

TEST(Renaming, RenamingAnObjectEditsItsRowOfTheHeadListInPlace) {
  SheetBench bench;
  bench.Make(Kind::Image);
  bench.Make(Kind::Button);
  bench.Type("Name", "Ok");
  EXPECT_EQ(bench.ComboRows(), (Rows{"Form1   (Form)", "Form1Image1   (Images)", "Ok   (Button)"}));
  EXPECT_EQ(bench.Sheet.Combo().Selected(), 2);
  EXPECT_TRUE(bench.Logged("name Form1Btn1>Ok"));
  EXPECT_TRUE(bench.Logged("bar 1"));
}

TEST(Renaming, RenamingPassesThroughTheNameOfAnother) {
  SheetBench bench;
  bench.Make(Kind::Button)->Tag = "A";
  bench.Make(Kind::Button)->Tag = "B";
  bench.Sheet.FillCombo();
  bench.Sheet.ShowSelection();
  bench.Sheet.SelectRow(0);
  for (const char* text : {"", "A", "AB"}) EXPECT_TRUE(bench.Sheet.ApplyText(text));
  EXPECT_EQ(bench.ComboRows(), (Rows{"Form1   (Form)", "A   (Button)", "AB   (Button)"}));
}

TEST(Renaming, ADuplicateOrIllegalNameGivesNoMessage) {
  SheetBench bench;
  bench.Make(Kind::Button);
  const ControlRef second = bench.Make(Kind::Button);
  EXPECT_TRUE(bench.Type("Name", "Form1Btn1"));
  EXPECT_TRUE(bench.Type("Name", "no name, really"));
  EXPECT_EQ(second->Tag, "no name, really");
  EXPECT_EQ(bench.Fakes.Log.Count("show"), 0U);
}

TEST(Renaming, RenamingAFormChangesRecordListBarAndHeadRow) {
  SheetBench bench;
  bench.Record().FileName = "C:\\P\\one.ftn";
  bench.Pick(nullptr);
  EXPECT_TRUE(bench.Type("Name", "Main"));
  EXPECT_EQ(bench.Record().Name, "Main");
  EXPECT_EQ(bench.Tables.ListaFrms.Lines()[0].Text, "Main (one.ftn)");
  EXPECT_EQ(bench.Tables.Bar(1)->Caption, "Main  Procedures");
  EXPECT_EQ(bench.ComboRows()[0], "Main   (Form)");
  EXPECT_EQ(bench.Sheet.SelName(), "Main");
  EXPECT_EQ(bench.Form().Caption, "Form1");
  EXPECT_TRUE(bench.Logged("list"));
  EXPECT_TRUE(bench.Logged("name Form1>Main"));
}

TEST(Renaming, TheMainFormFollowsARenameOnlyWhenItsWholeTextIsTheName) {
  SheetBench bench;
  bench.Pick(nullptr);
  bench.Type("Name", "Main");
  EXPECT_EQ(bench.Tables.MainFormName, "Form1 ()");
  bench.Tables.MainFormName = "Main";
  bench.Type("Name", "First");
  EXPECT_EQ(bench.Tables.MainFormName, "First");
  bench.Tables.MainFormName = "FIRST";
  bench.Type("Name", "Second");
  EXPECT_EQ(bench.Tables.MainFormName, "FIRST");
}

}  // namespace
}  // namespace tarnwick
