#include "inspector/objects_examiner.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "sheet_bench.h"

namespace tarnwick {
namespace {

using language::MemberSort;
using Rows = std::vector<std::string>;

SupportTables Tables() {
  SupportTables tables;
  tables.ListaObjetos = {"Form", "Font", "WinSock", "Menu"};
  tables.MemberLists.Add("form", {{"Caption", MemberSort::Property}, {"Show", MemberSort::Method}});
  tables.MemberLists.Add("font", {{"Color", MemberSort::Property}, {"Name", MemberSort::Property}});
  tables.MemberLists.Add("winsock", {{"Close", MemberSort::Method}});
  tables.MemberHelp.Add("form%", "The window");
  tables.MemberHelp.Add("font%", "The font");
  tables.MemberHelp.Add("caption", "Its text");
  tables.MemberHelp.Add("color", "A colour");
  tables.MemberHelp.Add("colorfont", "The font's colour");
  tables.MemberHelp.Add("closewinsock", "Ends the connection");
  return tables;
}

TEST(ObjectsExaminer, OpeningListsTheKindsAndSelectsTheFirst) {
  const SupportTables tables = Tables();
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  window.Open();
  EXPECT_EQ(window.Lista(), (Rows{"Form", "Font", "WinSock", "Menu"}));
  EXPECT_EQ(window.KindRow(), 0);
  EXPECT_EQ(window.ListaPro(), (Rows{"Caption", "Show"}));
  EXPECT_EQ(window.Editor(), "The window");
}

TEST(ObjectsExaminer, WithoutKindsNothingIsSelected) {
  const SupportTables tables;
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  window.Open();
  window.SelectMember(0);
  EXPECT_TRUE(window.Lista().empty());
  EXPECT_EQ(window.KindRow(), -1);
  EXPECT_EQ(window.MemberRow(), -1);
  EXPECT_EQ(window.Editor(), "");
}

TEST(ObjectsExaminer, AWantedRowIsSelectedOnce) {
  const SupportTables tables = Tables();
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  window.WantedRow = 2;
  window.Open();
  EXPECT_EQ(window.KindRow(), 2);
  EXPECT_EQ(window.WantedRow, 0);
  window.Open();
  EXPECT_EQ(window.KindRow(), 0);
}

TEST(ObjectsExaminer, FontHasItsOwnDescriptionUnderTheSameKey) {
  const SupportTables tables = Tables();
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  window.Open();
  window.SelectKind(1);
  EXPECT_EQ(window.Editor(), "The font");
}

TEST(ObjectsExaminer, AMemberShowsItsDescription) {
  const SupportTables tables = Tables();
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  window.Open();
  window.SelectMember(0);
  EXPECT_EQ(window.Editor(), "Its text");
  EXPECT_EQ(window.MemberRow(), 0);
}

TEST(ObjectsExaminer, AMemberOfOneNameInSeveralKindsHasItsOwn) {
  const SupportTables tables = Tables();
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  window.Open();
  window.SelectKind(1);
  window.SelectMember(0);
  EXPECT_EQ(window.Editor(), "The font's colour");
  window.SelectKind(2);
  window.SelectMember(0);
  EXPECT_EQ(window.Editor(), "Ends the connection");
}

TEST(ObjectsExaminer, AKeyWithoutHelpLeavesTheDescription) {
  const SupportTables tables = Tables();
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  window.Open();
  window.SelectMember(1);
  EXPECT_EQ(window.Editor(), "The window");
  window.SelectKind(3);
  EXPECT_EQ(window.Editor(), "The window");
  EXPECT_TRUE(window.ListaPro().empty());
}

TEST(ObjectsExaminer, FindSelectsTheFirstKindThatBeginsWithTheText) {
  const SupportTables tables = Tables();
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  window.Open();
  window.Find("FO");
  EXPECT_EQ(window.KindRow(), 0);
  window.Find("fon");
  EXPECT_EQ(window.KindRow(), 1);
  EXPECT_EQ(window.ListaPro(), (Rows{"Color", "Name"}));
  window.Find("sock");
  EXPECT_EQ(window.KindRow(), 1);
  window.Find("fontx");
  EXPECT_EQ(window.KindRow(), 1);
  window.Find("");
  EXPECT_EQ(window.KindRow(), 0);
}

TEST(ObjectsExaminer, OpeningSelectsTheKindOfTheSelectionAndMarksTheMemberOfTheRow) {
  SupportTables tables = Tables();
  tables.ListaObjetos = {"Form", "Button", "Label"};
  tables.MemberLists.Add("button", {{"Cancel", MemberSort::Property},
                                    {"Caption", MemberSort::Property},
                                    {"Font", MemberSort::Property}});
  tables.MemberHelp.Add("button%", "The button");
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  bench.Make(Kind::Button);
  window.Open();
  EXPECT_EQ(window.KindRow(), 1);
  EXPECT_EQ(window.MemberRow(), -1);
  EXPECT_EQ(window.Editor(), "The button");
  bench.Sheet.SelectRow(bench.RowOf("Caption"));
  window.Open();
  EXPECT_EQ(window.MemberRow(), 1);
  EXPECT_EQ(window.Editor(), "Its text");
  bench.Sheet.SelectRow(bench.RowOf("FontColor"));
  window.Open();
  EXPECT_EQ(window.MemberRow(), 2);
  bench.Sheet.SelectRow(bench.RowOf("Name"));
  window.Open();
  EXPECT_EQ(window.KindRow(), 1);
  EXPECT_EQ(window.MemberRow(), -1);
  window.WantedRow = 2;
  window.Open();
  EXPECT_EQ(window.KindRow(), 2);
  EXPECT_EQ(window.MemberRow(), -1);
  bench.Make(Kind::HtmlViewer);
  window.Open();
  EXPECT_EQ(window.KindRow(), 0);
}

TEST(ObjectsExaminer, WithoutTablesTheWindowIsEmpty) {
  const SupportTables tables;
  SheetBench bench;
  FormViewObjects window{tables, bench.Sheet};
  window.Open();
  window.SelectKind(0);
  window.SelectMember(0);
  window.Find("x");
  EXPECT_TRUE(window.Lista().empty());
  EXPECT_EQ(window.KindRow(), -1);
  EXPECT_EQ(window.Editor(), "");
}

}  // namespace
}  // namespace tarnwick
