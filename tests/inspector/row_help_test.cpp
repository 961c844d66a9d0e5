#include "inspector/row_help.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "inspector/property_rows.h"
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
  const SupportTables tables = With("caption",
                                    "Caption, property of Form\r\nSTRING\r\nTitle.\r\n\r\n"
                                    "Caption, property of Button, Label\r\nSTRING\r\nText.");
  EXPECT_EQ(RowHelp(tables, "Form", "Caption"), "STRING\r\nTitle.");
  EXPECT_EQ(RowHelp(tables, "Button", "CAPTION"), "STRING\r\nText.");
  EXPECT_EQ(RowHelp(tables, "LABEL", "caption"), "STRING\r\nText.");
}

TEST(RowHelp, AKindIsNamedByAWholeWord) {
  const SupportTables tables = With("text",
                                    "Text, property of RichTextBox\r\nLines.\r\n\r\n"
                                    "Text, property of TextBox\r\nOne line.");
  EXPECT_EQ(RowHelp(tables, "TextBox", "Text"), "One line.");
  EXPECT_EQ(RowHelp(tables, "RichTextBox", "Text"), "Lines.");
}

TEST(RowHelp, AMemberThatNamesNoKindShowsWhole) {
  const SupportTables tables = With("left", "Left\r\nPlace.\r\n\r\nLeft of all\r\nMore.");
  EXPECT_EQ(RowHelp(tables, "Button", "Left"), "Place.\r\n\r\nMore.");
}

TEST(RowHelp, MembersWithAKeyOfTheirOwnAreFoundByItAndElseByTheirName) {
  SupportTables tables = With("portwinsock", "Port\r\nOf a socket.");
  tables.MemberHelp.Add("left", "Left\r\nPlace.");
  EXPECT_EQ(RowHelp(tables, "WinSock", "Port"), "Of a socket.");
  EXPECT_EQ(RowHelp(tables, "WinSock", "Left"), "Place.");
}

TEST(RowHelp, WhatIsNotKnownIsEmpty) {
  EXPECT_EQ(RowHelp(SupportTables{}, "Button", "Caption"), "");
  EXPECT_EQ(RowHelp(Delivered(), "Button", "no such row"), "");
  EXPECT_EQ(RowHelp(With("x", ""), "", "x"), "");
}

}  // namespace
}  // namespace tarnwick
