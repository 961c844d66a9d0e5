#include "persistence/tag_scanner.h"

#include <string>

#include <gtest/gtest.h>

#include "persistence/record_layouts.h"

namespace tarnwick::test {
namespace {

/// A record as the program writes it; `name` and `title` stand where a user's text does.
std::string SaveDialogRecord(const std::string& name, const std::string& title) {
  return "[SaveDialog] (1) {" + name + "} Left<4>Left   Top<5>Top   String<" + title +
         ">String   Tip<All>Tip   Width<a.txt>Width   Height<C:\\>Height";
}

TEST(TagScanner, ARecordOfTheProgramGivesTheValueOfEveryTag) {
  TagScanner scanner;
  const std::string line = SaveDialogRecord("Save", "Title");
  scanner.Scan(line);
  EXPECT_EQ(scanner.KindWord(), "SaveDialog");
  EXPECT_EQ(scanner.ObjectKind(), Kind::SaveDialog);
  EXPECT_EQ(scanner.Number(), "1");
  EXPECT_EQ(scanner.Name(), "Save");
  EXPECT_EQ(scanner.Stored(Tag::Left), "4");
  EXPECT_EQ(scanner.Stored(Tag::Top), "5");
  EXPECT_EQ(scanner.Stored(Tag::String), "Title");
  EXPECT_EQ(scanner.Stored(Tag::Tip), "All");
  EXPECT_EQ(scanner.Stored(Tag::Width), "a.txt");
  EXPECT_EQ(scanner.Stored(Tag::Height), "C:\\");
}

TEST(TagScanner, OneMoreBlankAnywhereInARecordChangesNoValueOfAnyKind) {
  for (const KindInfo& kind : AllKinds().first(kObjectKindCount)) {
    const RecordLayout& layout = LayoutOf(kind.Id);
    // The widened literal; with none widened the record stands as the program writes it.
    for (std::size_t widened = 0; widened <= layout.Fields.size(); ++widened) {
      std::string line;
      for (std::size_t i = 0; i < layout.Fields.size(); ++i) {
        std::string literal(layout.Fields[i].Lead.empty() ? layout.Fields[i].Before
                                                          : layout.Fields[i].Lead);
        if (i + 1 == widened) literal.insert(literal.find(' '), 1, ' ');
        line += literal + "v" + std::to_string(i);
      }
      line += layout.End;
      TagScanner scanner;
      scanner.Scan(line);
      EXPECT_EQ(scanner.ObjectKind(), kind.Id) << line;
      for (std::size_t i = 0; i < layout.Fields.size(); ++i) {
        if (layout.Fields[i].In == Tag::None) continue;
        EXPECT_EQ(scanner.Stored(layout.Fields[i].In), "v" + std::to_string(i)) << line;
      }
    }
  }
}

TEST(TagScanner, ATagInAnEarlierValueComesFirst) {
  TagScanner scanner;
  const std::string line = SaveDialogRecord("Save", "a Tip<b>Tip c");
  scanner.Scan(line);
  EXPECT_EQ(scanner.Stored(Tag::Tip), "b");
  EXPECT_EQ(scanner.Stored(Tag::String), "a Tip<b>Tip c");
  EXPECT_EQ(scanner.Stored(Tag::Height), "C:\\");
}

TEST(TagScanner, AnEndAheadOfTheStartLeavesTheValueOfTheLineBefore) {
  TagScanner scanner;
  const std::string before = SaveDialogRecord("Save", "old");
  const std::string line = SaveDialogRecord("x>String", "new");
  scanner.Scan(before);
  scanner.Scan(line);
  EXPECT_EQ(scanner.Stored(Tag::String), "old");
  EXPECT_EQ(scanner.Name(), "x>String");
}

TEST(TagScanner, BracketsInAValueThatAreNoTagsBelongToIt) {
  TagScanner scanner;
  const std::string line = SaveDialogRecord("Save", "if a < b and b > c");
  scanner.Scan(line);
  EXPECT_EQ(scanner.Stored(Tag::String), "if a < b and b > c");
  EXPECT_EQ(scanner.Stored(Tag::Tip), "All");
}

TEST(TagScanner, WordsInAnotherCaseOrderOrDistanceAreTheSameTags) {
  TagScanner scanner;
  const std::string line = "[savedialog](1){Save}HEIGHT<h>height Tip<t>TIP      left<7>LEFT";
  scanner.Scan(line);
  EXPECT_EQ(scanner.ObjectKind(), Kind::SaveDialog);
  EXPECT_EQ(scanner.Stored(Tag::Height), "h");
  EXPECT_EQ(scanner.Stored(Tag::Tip), "t");
  EXPECT_EQ(scanner.Stored(Tag::Left), "7");
}

TEST(TagScanner, ARecordThatBreaksOffGivesTheTagsItHas) {
  const std::string whole = SaveDialogRecord("Save", "Title");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    TagScanner scanner;
    const std::string line = whole.substr(0, size);
    scanner.Scan(line);
    EXPECT_EQ(scanner.Stored(Tag::Left), line.find(">Left") == std::string::npos ? "" : "4");
    EXPECT_EQ(scanner.Stored(Tag::String),
              line.find(">String") == std::string::npos ? "" : "Title");
    EXPECT_EQ(scanner.Stored(Tag::Height), "");
  }
}

TEST(TagScanner, TheEndOfALongerWordStartsTheShorterTagToo) {
  TagScanner scanner;
  const std::string line = "[Button] (1) {B} TabOrder<2>TabOrder Border<1>Border";
  scanner.Scan(line);
  EXPECT_EQ(scanner.Stored(Tag::TabOrder), "2");
  EXPECT_EQ(scanner.Stored(Tag::Border), "2>TabOrder Border<1");
}

TEST(TagScanner, AStoredValueComesBackRestoredAndAPlainOneAsItStands) {
  TagScanner scanner;
  const std::string line =
      "[Sub]{S} Click< a\x8D\x95"
      "b >Click String<x\x95y>String Left<\x8D>Left";
  scanner.Scan(line);
  EXPECT_EQ(scanner.Value(Tag::Click), "a,\r\nb");
  EXPECT_EQ(scanner.Value(Tag::String), "x\r\ny");
  EXPECT_EQ(scanner.Value(Tag::Left), "\x8D");
  EXPECT_EQ(scanner.Value(Tag::Tip), "");
}

}  // namespace
}  // namespace tarnwick::test
