// Texts with any characters in any field: no other record is touched by them.
#include "fakes/any_text.h"

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "codegen/program_source.h"
#include "fakes/random_project.h"

namespace tarnwick::test {
namespace {

/// A form with objects of every kind that has a number of its own, as reading its file leaves it.
/// Sockets and frames have none: they take the number that the text before them left.
std::string SettledForm(std::uint32_t seed) {
  FakeProject made;
  RandomProject(seed).Fill(made.Builder, {.Forms = 1, .ObjectsPerForm = 25});
  FakeProject read;
  read.Load(made.Saved());
  return read.Saved();
}

/// Texts that a user can type or paste into one line. What the format means something by stands
/// among them more often than chance would have it.
std::string AnyLine(std::mt19937& random) {
  static constexpr std::string_view kPieces[] = {
      "<",     ">",     "(",    ")",    "{",       "}",        "[",           "]",    "Tip<",
      ">Tip",  "left<", ">TOP", ",",    "\"",      "'",        "\x8D",        "\x8C", "\x8E",
      "\x8F",  " ",     "\t",   "\xE9", "[Form]",  "[Button]", "[Menu] (",    "(3)",  ">String",
      "Items", "\r",    "\n",   "\x01", "Click<x", ">Click",   "[DeclarePbl]"};
  std::string text;
  for (auto pieces = random() % 8; pieces > 0; --pieces) {
    if (random() % 2 == 0) {
      text += kPieces[random() % std::size(kPieces)];
    } else {
      text += static_cast<char>(random() % 256);
    }
  }
  // Fields of one line take no line end.
  return ReplaceAll(text, kLineEnd, " ");
}

TEST(AnyText, SetInAnyFieldLeavesEveryOtherRecordAsItIs) {
  std::mt19937 random(20260);
  for (std::uint32_t seed = 1; seed <= 20; ++seed) {
    const std::string before = SettledForm(seed);
    for (int round = 0; round < 20; ++round) {
      FakeProject project;
      ASSERT_TRUE(project.Load(before));
      const std::vector<TextField> fields = TextFieldsOf(project);
      const TextField& field = fields[random() % fields.size()];
      const std::string text = AnyLine(random);
      *field.Text = text;
      const std::string saved = project.Saved();
      ASSERT_EQ(LostRecord(before, saved, field.Line), "") << seed << " " << field.Line << text;
      FakeProject again;
      ASSERT_TRUE(again.Load(saved));
      ASSERT_EQ(again.Tables.FormsCount, 1) << field.Line << text;
      ASSERT_EQ(again.User().Controls().size(), project.User().Controls().size()) << text;
      if (Contains(before, "[WinSock]") && Contains(text, "(")) continue;
      ASSERT_EQ(LostRecord(before, again.Saved(), field.Line), "")
          << seed << " " << field.Line << text;
    }
  }
}

TEST(AnyText, TextsWithoutBracketsAndSeparatorsComeBackToTheByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    if (std::string_view("<>{}\r\n\x8D\x95").find(c) != std::string_view::npos) continue;
    const std::string text = std::string("a") + c + "b" + c;
    FakeProject project;
    project.Load("[Form](1) {F}\r\n\r\n[Button]   (1) {B} Left<5>Left\r\n");
    project.User().Caption = text;
    DesignControl& button = project.Control(Kind::Button);
    for (std::string* field : {&button.Tag, &button.Caption, &button.ToolTipText}) *field = text;
    FakeProject again;
    again.Load(project.Saved());
    EXPECT_EQ(again.User().Caption, text) << byte;
    EXPECT_EQ(again.Control(Kind::Button).Tag, text) << byte;
    EXPECT_EQ(again.Control(Kind::Button).Caption, text) << byte;
    EXPECT_EQ(again.Control(Kind::Button).ToolTipText, text) << byte;
  }
}

TEST(AnyText, CodeOfAnyBytesLeavesEveryOtherRecordAsItIs) {
  std::mt19937 random(7);
  const std::string before = SettledForm(3);
  for (int round = 0; round < 100; ++round) {
    FakeProject project;
    project.Load(before);
    std::string code;
    for (auto size = random() % 60; size > 0; --size) code += static_cast<char>(random() % 256);
    code += random() % 2 == 0 ? "\r\n[Button] (1) {X}\r\n[Form](9) {Y}" : ">Click <";
    project.Tables.EventTable.Replace("Form1.OnClick", code);
    const std::string saved = project.Saved();
    ASSERT_EQ(LostRecord(before, saved, "[Form]"), "") << round;
    FakeProject again;
    again.Load(saved);
    ASSERT_EQ(LostRecord(before, again.Saved(), "[Form]"), "") << round;
    GeneratorState state;
    ASSERT_FALSE(GenerateSource(again.Tables, state).empty());
  }
}

}  // namespace
}  // namespace tarnwick::test
