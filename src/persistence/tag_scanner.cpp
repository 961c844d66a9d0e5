#include "persistence/tag_scanner.h"

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <cstdint>

#include "persistence/stored_text.h"

namespace tarnwick {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

/// Every tag has at least so many letters.
constexpr std::size_t kFewestLetters = 3;

/// Tag numbers by three letters of their words, so that a bracket is compared with a word or two.
class TagsByLetters {
 public:
  enum class End : std::uint8_t { Head, Tail };

  explicit constexpr TagsByLetters(End end) {
    for (std::size_t tag = 0; tag < kTagCount; ++tag) {
      const std::string_view word = kTags[tag].Word;
      const std::size_t from = end == End::Head ? 0 : word.size() - kFewestLetters;
      List& list = lists_[SlotOf(word.substr(from, kFewestLetters))];
      list.Tags[list.Count++] = static_cast<std::uint8_t>(tag);
    }
  }

  /// Calls `use(tag number)` for each tag with these letters at that end, and for a few others;
  /// letters are equal in both cases.
  template <class Use>
  void ForEach(std::string_view letters, Use use) const {
    const List& list = lists_[SlotOf(letters)];
    for (std::size_t i = 0; i < list.Count; ++i) use(std::size_t{list.Tags[i]});
  }

 private:
  static constexpr std::size_t kSlots = 128;
  static constexpr std::size_t kMostPerSlot = 8;
  struct List {
    std::array<std::uint8_t, kMostPerSlot> Tags{};
    std::uint8_t Count = 0;
  };

  static constexpr std::size_t SlotOf(std::string_view letters) {
    // The low five bits of a letter are its number in the alphabet, in either case.
    const auto number = [&](std::size_t i) { return static_cast<unsigned char>(letters[i]) % 32U; };
    return (number(0) * 4 + number(1) * 2 + number(2)) % kSlots;
  }

  std::array<List, kSlots> lists_{};
};

constexpr TagsByLetters kByHead(TagsByLetters::End::Head);
constexpr TagsByLetters kByTail(TagsByLetters::End::Tail);

static_assert(
    [] {
      for (const TagInfo& tag : kTags) {
        if (tag.Word.size() < kFewestLetters) return false;
        if (!std::ranges::all_of(tag.Word, [](char c) { return c >= 'a' && c <= 'z'; }))
          return false;
        for (const TagInfo& other : kTags) {
          if (other.Id != tag.Id && other.Word.starts_with(tag.Word)) return false;
        }
      }
      return true;
    }(),
    "behind a bracket at most one tag stands; its word is three small letters or more");

/// True when a text begins with a tag's word.
bool StartsWithTag(std::string_view text, std::size_t tag) {
  const std::string_view word = kTags[tag].Word;
  return text.size() >= word.size() &&
         std::equal(word.begin(), word.end(), text.begin(), [](char lower, char c) {
           // This bit is all in which a small letter differs from its capital; tags are letters.
           constexpr unsigned kSmall = 0x20;
           return (static_cast<unsigned char>(c) | kSmall) == static_cast<unsigned char>(lower);
         });
}

bool EndsWithTag(std::string_view text, std::size_t tag) {
  const std::size_t size = kTags[tag].Word.size();
  return text.size() >= size && StartsWithTag(text.substr(text.size() - size), tag);
}

/// Finds the first start and the first end of every tag in a line.
class TagFinder {
 public:
  TagFinder(std::string_view line, std::array<std::string_view, kTagCount>& values)
      : line_(line), values_(values) {}

  void Run() {
    std::size_t start = line_.find('<');
    std::size_t end = line_.find('>');
    while (start != end) {  // both are kNone behind the last bracket
      if (start < end) {
        NoteStart(start);
        start = line_.find('<', start + 1);
      } else {
        NoteEnd(end);
        end = line_.find('>', end + 1);
      }
    }
  }

 private:
  void NoteStart(std::size_t bracket) {
    if (bracket < kFewestLetters) return;
    const std::string_view before = line_.substr(0, bracket);
    kByTail.ForEach(before.substr(bracket - kFewestLetters), [&](std::size_t tag) {
      if (starts_[tag] != kNotFound || !EndsWithTag(before, tag)) return;
      starts_[tag] = bracket + 1;
      open_ = tag;
      open_word_ = before.substr(bracket - kTags[tag].Word.size());
    });
  }

  void NoteEnd(std::size_t bracket) {
    const std::string_view behind = line_.substr(bracket + 1);
    if (behind.size() < kFewestLetters) return;
    // Nearly every bracket closes the tag that was opened last, in the same letters.
    if (!open_word_.empty() && behind.starts_with(open_word_)) return NoteEnd(bracket, open_);
    kByHead.ForEach(behind, [&](std::size_t tag) {
      if (StartsWithTag(behind, tag)) NoteEnd(bracket, tag);
    });
  }

  void NoteEnd(std::size_t bracket, std::size_t tag) {
    if (ended_[tag]) return;
    ended_.set(tag);
    // Only the first end counts. Ahead of the start it leaves the tag without a value.
    if (starts_[tag] == kNotFound) return;
    values_[tag] = line_.substr(starts_[tag], bracket - starts_[tag]);
  }

  static constexpr std::size_t kNotFound = 0;  // no value starts at the head of a line

  std::string_view line_;
  std::array<std::string_view, kTagCount>& values_;
  std::array<std::size_t, kTagCount> starts_{};
  std::bitset<kTagCount> ended_;
  std::size_t open_ = 0;        ///< the tag that was opened last
  std::string_view open_word_;  ///< its word in the line
};

/// Takes the text between the first opening and the first closing bracket; leaves `value` alone
/// when there is no such pair.
void TakeHead(std::string_view line, char open, char close, std::string_view& value) {
  const std::size_t start = line.find(open);
  const std::size_t end = line.find(close);
  if (start == kNone || end == kNone || end < start) return;
  value = line.substr(start + 1, end - start - 1);
}

}  // namespace

void TagScanner::Scan(std::string_view line) {
  if (line.empty()) return;
  kind_word_ = {};
  TakeHead(line, '[', ']', kind_word_);
  object_kind_ = KindOfFileWord(kind_word_);
  TakeHead(line, '(', ')', number_);
  TakeHead(line, '{', '}', name_);
  TagFinder(line, values_).Run();
}

std::string TagScanner::Value(Tag tag) const {
  return RestoredValue(Stored(tag), InfoOf(tag).How);
}

}  // namespace tarnwick
