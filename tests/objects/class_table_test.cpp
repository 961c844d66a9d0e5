#include "objects/class_table.h"

#include <fstream>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "fakes/build_paths.h"
#include "text/code_page.h"
#include "text/strings.h"

namespace tarnwick::objects {
namespace {

std::string Lines(const std::string& name) {
  std::ifstream file(test::SourceFolder() + "/support/objects/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(ClassTable, FindsClassesAndMembersWithoutRegardToCase) {
  const ClassTable table;
  const auto form = table.FindClass("qForm");
  ASSERT_TRUE(form.has_value());
  EXPECT_EQ(table.ClassName(*form), "QFORM");
  ASSERT_NE(table.FindMember(*form, "cAPTION"), nullptr);
  EXPECT_EQ(table.FindMember(*form, "cAPTION")->Name, "Caption");
  EXPECT_EQ(table.FindMember(*form, "Captoin"), nullptr);
  EXPECT_EQ(table.FindMember(*form, ""), nullptr);
  EXPECT_FALSE(table.FindClass("QNOTHING").has_value());
}

TEST(ClassTable, BuiltInObjectsAreNoClassesToDeclare) {
  const ClassTable table;
  EXPECT_TRUE(table.FindBuiltInObject("application").has_value());
  EXPECT_FALSE(table.FindClass("Application").has_value());
  EXPECT_FALSE(table.FindBuiltInObject("QFORM").has_value());
}

TEST(ClassTable, EveryMemberIsFoundByItsNameAndByItsWord) {
  std::uint16_t number = 0;
  for (const ClassInfo& row : ClassRows()) {
    ++number;
    EXPECT_EQ(&InfoOf(static_cast<basic::ClassId>(number)), &row);
    std::set<std::uint16_t> slots;
    std::size_t properties = 0;
    for (std::size_t i = 0; i < row.Members.size(); ++i) {
      const MemberInfo& member = row.Members[i];
      EXPECT_EQ(row.Find(Upper(member.Facts.Name)), &member) << row.Name;
      EXPECT_EQ(row.Find(member.Name), &member) << row.Name;
      EXPECT_EQ(static_cast<std::size_t>(member.Facts.Id), i);
      const bool property = member.Facts.Kind == basic::MemberKind::Property ||
                            member.Facts.Kind == basic::MemberKind::ArrayProperty;
      if (!property) continue;
      ++properties;
      slots.insert(member.Slot);
      EXPECT_LT(member.Slot, row.PropertyCount);
      EXPECT_NE(member.Facts.Value, basic::kNoType) << row.Name << '.' << member.Facts.Name;
    }
    EXPECT_EQ(slots.size(), properties) << row.Name;
    EXPECT_EQ(row.PropertyCount, properties) << row.Name;
  }
}

TEST(ClassTable, WhatIsNotFullySupportedSaysSomethingWhereItIsLeftOut) {
  for (const ClassInfo& row : ClassRows()) {
    for (const MemberInfo& member : row.Members) {
      if (member.Facts.Level != basic::SupportLevel::None) continue;
      EXPECT_NE(member.Facts.Note, "") << row.Name << '.' << member.Facts.Name;
    }
  }
}

/// The lists of the program and the runner read the same rows.
TEST(ClassTable, HasEveryMemberThatTheMemberListsShow) {
  std::map<std::string, std::string> classes;
  const std::string kinds = Lines("kinds.txt");
  std::string kind;
  for (const std::string_view line : Split(kinds, "\n")) {
    if (line.starts_with('[')) kind = line.substr(1, line.size() - 2);
    if (line.starts_with("class: ")) classes[kind] = line.substr(7);
  }
  const std::string members = Lines("members.tsv");
  int seen = 0;
  for (const std::string_view line : Split(members, "\n")) {
    const std::vector<std::string_view> cells = Split(line, "\t");
    if (cells.size() < 5 || cells[0] == "kind") continue;
    const ClassTable table;
    auto id = table.FindClass(classes[std::string(cells[0])]);
    if (!id) id = table.FindBuiltInObject(classes[std::string(cells[0])]);
    ASSERT_TRUE(id.has_value()) << cells[0];
    EXPECT_NE(table.FindMember(*id, cells[1]), nullptr) << cells[0] << '.' << cells[1];
    ++seen;
  }
  EXPECT_GT(seen, 600);
}

TEST(ClassTable, DefaultsAreThoseOfANewObject) {
  const ClassInfo& button = InfoOf(ObjectClass::QButton);
  EXPECT_EQ(button.Find(Word::Width)->DefaultNumber, 75);
  EXPECT_EQ(button.Find(Word::Enabled)->DefaultNumber, 1);
  EXPECT_TRUE(button.Find(Word::Enabled)->Truth);
  EXPECT_EQ(InfoOf(ObjectClass::QFont).Find(Word::Name)->DefaultText, "MS Sans Serif");
  EXPECT_EQ(InfoOf(ObjectClass::QForm).Find(Word::BorderStyle)->DefaultNumber, 2);
  EXPECT_EQ(InfoOf(ObjectClass::QListBox).Find(Word::ItemIndex)->DefaultNumber, -1);
}

TEST(ClassTable, SignaturesTellParametersAndResults) {
  const MemberInfo& open = *InfoOf(ObjectClass::QFileStream).Find(Word::Open);
  EXPECT_EQ(open.Facts.Parameters.size(), 2U);
  EXPECT_EQ(open.Facts.Required, 1);
  EXPECT_EQ(basic::KindOf(open.Facts.Value), basic::ValueKind::Whole);
  const MemberInfo& add = *InfoOf(ObjectClass::QListBox).Find(Word::AddItems);
  EXPECT_TRUE(add.Facts.Repeats);
  EXPECT_EQ(basic::KindOf(add.Facts.Parameters[0].Kind), basic::ValueKind::Text);
  EXPECT_TRUE(InfoOf(ObjectClass::QFileStream).Find(Word::Read)->Facts.Parameters[0].Reference);
  const MemberInfo& pixel = *InfoOf(ObjectClass::QImage).Find(Word::Pixel);
  EXPECT_EQ(pixel.Facts.Kind, basic::MemberKind::ArrayProperty);
  EXPECT_EQ(pixel.Facts.Parameters.size(), 2U);
}

}  // namespace
}  // namespace tarnwick::objects
