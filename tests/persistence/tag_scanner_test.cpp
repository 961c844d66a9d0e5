#include "persistence/tag_scanner.h"

#include <array>
#include <random>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "persistence/record_layouts.h"
#include "text/code_page.h"
#include "text/strings.h"

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

TEST(TagScanner, ASingleReturnOrLineFeedIsPartOfAValue) {
  TagScanner scanner;
  const std::string line = SaveDialogRecord("Sa\rve", "Ti\ntle\r");
  scanner.Scan(line);
  EXPECT_EQ(scanner.Name(), "Sa\rve");
  EXPECT_EQ(scanner.Value(Tag::String), "Ti\ntle\r");
}

TEST(TagScanner, AnEmptyLineChangesNothing) {
  TagScanner scanner;
  const std::string line = SaveDialogRecord("Save", "Title");
  scanner.Scan(line);
  scanner.Scan("");
  EXPECT_EQ(scanner.KindWord(), "SaveDialog");
  EXPECT_EQ(scanner.Name(), "Save");
  EXPECT_EQ(scanner.Stored(Tag::String), "Title");
}

TEST(TagScanner, OneMoreBlankAnywhereInARecordChangesNoValueOfAnyKind) {
  for (const KindInfo& kind : AllKinds().first(kObjectKindCount)) {
    const RecordLayout& layout = LayoutOf(kind.Id);
    // The widened literal; with none widened the record stands as the program writes it.
    for (std::size_t widened = 0; widened <= layout.Fields.size(); ++widened) {
      std::string line;
      for (std::size_t i = 0; i < layout.Fields.size(); ++i) {
        std::string literal(layout.Fields[i].Before);
        if (i + 1 == widened) literal.insert(literal.find(' '), 1, ' ');
        // The number of an object is of digits.
        line += literal + (i == 0 ? "7" : "v") + std::to_string(i);
      }
      line += layout.End;
      TagScanner scanner;
      scanner.Scan(line);
      EXPECT_EQ(scanner.ObjectKind(), kind.Id) << line;
      const bool numbered = std::get<Special>(layout.Fields[0].Value) == Special::Number;
      EXPECT_EQ(scanner.Number(), numbered ? "70" : "") << line;
      EXPECT_EQ(scanner.Name(), numbered ? "v1" : "70") << line;
      for (std::size_t i = 0; i < layout.Fields.size(); ++i) {
        if (layout.Fields[i].In == Tag::None) continue;
        EXPECT_EQ(Trim(scanner.Stored(layout.Fields[i].In)), "v" + std::to_string(i)) << line;
      }
    }
  }
}

/// The rule in its plainest form, tag by tag.
class PlainReader {
 public:
  void Scan(std::string_view line) {
    TakeBetween(line, '(', ')', Number);
    TakeBetween(line, '{', '}', Name);
    for (std::size_t tag = 0; tag < kTagCount; ++tag) {
      const std::string word(kTags[tag].Word);
      const std::size_t start = FindFolded(line, word + "<");
      const std::size_t end = FindFolded(line, ">" + word);
      if (start == std::string_view::npos || end == std::string_view::npos) continue;
      const std::size_t first = start + word.size() + 1;
      if (end >= first) Values[tag] = line.substr(first, end - first);
    }
  }

  std::string Number;
  std::string Name;
  std::array<std::string, kTagCount> Values;

 private:
  static void TakeBetween(std::string_view line, char open, char close, std::string& value) {
    const std::size_t start = line.find(open);
    const std::size_t end = line.find(close);
    if (start == std::string_view::npos || end == std::string_view::npos || end < start) return;
    value = line.substr(start + 1, end - start - 1);
  }
};

/// Records of every kind as the program writes them, mostly, with bytes that mean something to a
/// reader strewn in, over one another, out of place and left out.
class RecordMaker {
 public:
  explicit RecordMaker(unsigned seed) : random_(seed) {}

  std::string Make() {
    const RecordLayout& layout = LayoutOf(static_cast<Kind>(Below(kObjectKindCount)));
    std::string line;
    for (const LayoutField& field : layout.Fields) {
      line += field.Before;
      line += field.In == Tag::None ? std::to_string(Below(40)) : Value();
    }
    line += layout.End;
    for (int change = Below(4); change > 0; --change) Change(line);
    return line;
  }

 private:
  int Below(std::size_t end) { return static_cast<int>(random_() % end); }
  std::string_view Piece() {
    static constexpr std::array<std::string_view, 20> kPieces{
        "<",   ">",    "(",    ")",    "{",    "}",     "[",       "]",    "Tip<", ">Tip",
        "tIP", ">top", "Top<", "\x8D", "\x95", "Left<", ">HEIGHT", "icon", " ",    "7"};
    return kPieces[static_cast<std::size_t>(Below(kPieces.size()))];
  }
  std::string Value() {
    std::string value(static_cast<std::size_t>(Below(5) == 0 ? Below(140) : Below(9)), 'v');
    if (Below(12) == 0) value.insert(static_cast<std::size_t>(Below(value.size() + 1)), Piece());
    return value;
  }
  void Change(std::string& line) {
    const auto place = static_cast<std::size_t>(Below(line.size() + 1));
    switch (Below(3)) {
      case 0:
        line.insert(place, Piece());
        return;
      case 1:
        line.erase(place, static_cast<std::size_t>(Below(3)));
        return;
      default:
        line.resize(place);
    }
  }

  std::mt19937 random_;
};

TEST(TagScanner, AnyLinesGiveWhatTheRuleGivesTagByTag) {
  for (unsigned seed = 1; seed <= 300; ++seed) {
    RecordMaker maker(seed);
    std::string text;
    for (int line = 0; line < 20; ++line) text += maker.Make() + "\r\n";
    TagScanner scanner;
    PlainReader plain;
    for (const std::string_view line : Split(text, kLineEnd)) {
      scanner.Scan(line);
      plain.Scan(line);
      ASSERT_EQ(scanner.Number(), plain.Number) << line;
      ASSERT_EQ(scanner.Name(), plain.Name) << line;
      for (std::size_t tag = 0; tag < kTagCount; ++tag) {
        ASSERT_EQ(scanner.Stored(static_cast<Tag>(tag)), plain.Values[tag]) << line;
      }
    }
  }
}

TEST(TagScanner, AStoredByteIsSeenWhereverItStandsInALine) {
  for (std::size_t before = 0; before < 150; ++before) {
    for (const std::size_t behind : {0U, 1U, 70U}) {
      TagScanner scanner;
      const std::string line =
          SaveDialogRecord("Save", std::string(before, 'a') + "\x8D" + std::string(behind, 'b'));
      scanner.Scan(line);
      EXPECT_EQ(scanner.Value(Tag::String),
                std::string(before, 'a') + "," + std::string(behind, 'b'));
    }
  }
}

TEST(TagScanner, AValueOfALineBeforeIsRestoredTheSame) {
  TagScanner scanner;
  const std::string stored = SaveDialogRecord("Save",
                                              "a\x8D"
                                              "b");
  const std::string plain = "[Time] (1) {T} Left<4>Left";
  scanner.Scan(stored);
  scanner.Scan(plain);
  EXPECT_EQ(scanner.Value(Tag::String), "a,b");
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
