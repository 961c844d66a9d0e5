#include "inspector/row_help.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "inspector/property_rows.h"
#include "inspector/row_help_texts.h"
#include "model/kinds.h"
#include "persistence/support_files.h"

namespace tarnwick {
namespace {

using language::SupportTables;

const SupportTables& Delivered() {
  static const SupportTables tables = [] {
    SupportTables read;
    const auto bytes = [](const char* name) {
      std::ifstream file(test::ProgramFolder() + "/" + name, std::ios::binary);
      return std::string{std::istreambuf_iterator<char>(file), {}};
    };
    AddMemberFile(read, bytes("Add001.tn"));
    AddKindFile(read, bytes("Add004.tn"));
    return read;
  }();
  return tables;
}

SupportTables With(std::string_view key, std::string_view help) {
  SupportTables tables;
  tables.MemberHelp.Add(key, std::string{help});
  return tables;
}

TEST(RowHelp, EveryDeliveredRowOfEveryKindHasSome) {
  for (const KindInfo& info : AllKinds()) {
    for (const PropertyRow& row : PropertyRowsOf(Delivered(), KindWordOf(info.Array))) {
      EXPECT_NE(RowHelp(Delivered(), KindWordOf(info.Array), row.Name), "")
          << info.Name << "." << row.Name;
    }
    EXPECT_NE(RowHelp(Delivered(), info.Array, "Name"), "");
  }
}

TEST(RowHelp, OnlyThePassagesThatNameTheKindShowAndTheLineThatNamesItGoes) {
  const SupportTables tables = With("tag",
                                    "Tag, property of Form\r\nINTEGER\r\nOne.\r\n\r\n"
                                    "Tag, property of Button, Label\r\nINTEGER\r\nTwo.");
  EXPECT_EQ(RowHelp(tables, "Form", "Tag"), "INTEGER\r\nOne.");
  EXPECT_EQ(RowHelp(tables, "Button", "TAG"), "INTEGER\r\nTwo.");
  EXPECT_EQ(RowHelp(tables, "LABEL", "tag"), "INTEGER\r\nTwo.");
}

TEST(RowHelp, AKindIsNamedByAWholeWord) {
  const SupportTables tables = With("modified",
                                    "Modified, property of RichTextBox\r\nLines.\r\n\r\n"
                                    "Modified, property of TextBox\r\nOne line.");
  EXPECT_EQ(RowHelp(tables, "TextBox", "Modified"), "One line.");
  EXPECT_EQ(RowHelp(tables, "RichTextBox", "Modified"), "Lines.");
}

TEST(RowHelp, AMemberThatNamesNoKindShowsWhole) {
  const SupportTables tables = With("tag", "Tag\r\nPlace.\r\n\r\nTag of all\r\nMore.");
  EXPECT_EQ(RowHelp(tables, "Button", "Tag"), "Place.\r\n\r\nMore.");
}

TEST(RowHelp, MembersWithAKeyOfTheirOwnAreFoundByItAndElseByTheirName) {
  SupportTables tables = With("portwinsock", "Port\r\nOf a socket.");
  tables.MemberHelp.Add("tag", "Tag\r\nFree.");
  EXPECT_EQ(RowHelp(tables, "WinSock", "Port"), "Of a socket.");
  EXPECT_EQ(RowHelp(tables, "WinSock", "Tag"), "Free.");
}

TEST(RowHelp, EveryDeliveredRowHasWordsOfTheGridsOwn) {
  for (const KindInfo& info : AllKinds()) {
    for (const PropertyRow& row : PropertyRowsOf(Delivered(), KindWordOf(info.Array))) {
      EXPECT_NE(RowHelpText(row.Name, info.Id), "") << info.Name << "." << row.Name;
    }
  }
}

TEST(RowHelp, SpeaksOfTheRowWhereTheMemberOfItsNameIsAnotherThing) {
  const SupportTables none;
  EXPECT_NE(RowHelp(none, "PopUpMnu", "Parent").find("right button"), std::string::npos);
  EXPECT_NE(RowHelp(none, "OpenDialog", "Title").find("title bar"), std::string::npos);
  EXPECT_NE(RowHelp(none, "Button", "BmpHandle").find(".bmp file"), std::string::npos);
  EXPECT_NE(RowHelp(none, "ListBox", "AddItems").find("rows"), std::string::npos);
  EXPECT_NE(RowHelp(none, "Label", "Font").find("font dialog"), std::string::npos);
  EXPECT_NE(RowHelp(none, "Form", "IcoHandle").find("title bar"), std::string::npos);
  EXPECT_NE(RowHelp(none, "Form", "Center").find("no effect"), std::string::npos);
  EXPECT_NE(RowHelp(none, "HtmlViewer", "Navigate").find("page"), std::string::npos);
  EXPECT_NE(RowHelp(none, "Form", "Left"), RowHelp(none, "Button", "Left"));
  EXPECT_NE(RowHelp(none, "Time", "Left"), RowHelp(none, "Button", "Left"));
  EXPECT_NE(RowHelp(none, "Label", "Color").find("clRed"), std::string::npos);
}

TEST(RowHelp, WhatIsNotKnownIsEmpty) {
  EXPECT_EQ(RowHelp(SupportTables{}, "Button", "Tag"), "");
  EXPECT_EQ(RowHelp(Delivered(), "Button", "no such row"), "");
  EXPECT_EQ(RowHelp(With("x", ""), "", "x"), "");
}

}  // namespace
}  // namespace tarnwick
