#include "persistence/tag_scanner.h"

#include <bitset>
#include <cstddef>
#include <cstdint>

#include "persistence/stored_text.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

/// Tag numbers by a letter of their words, so that a bracket is compared with a few words only.
class TagsByLetter {
 public:
  enum class Letter : std::uint8_t { First, Last };

  explicit constexpr TagsByLetter(Letter which) {
    for (std::size_t tag = 0; tag < kTagCount; ++tag) {
      const std::string_view word = kTags[tag].Word;
      List& list = lists_[SlotOf(which == Letter::First ? word.front() : word.back())];
      list.Tags[list.Count++] = static_cast<std::uint8_t>(tag);
    }
  }

  /// Calls `use(tag number)` for each tag with that letter; letters are equal in both cases.
  template <class Use>
  void ForEach(char letter, Use use) const {
    const List& list = lists_[SlotOf(letter)];
    for (std::size_t i = 0; i < list.Count; ++i) use(std::size_t{list.Tags[i]});
  }

 private:
  static constexpr std::size_t kSlots = 32;
  static constexpr std::size_t kMostPerLetter = 12;
  struct List {
    std::array<std::uint8_t, kMostPerLetter> Tags{};
    std::size_t Count = 0;
  };

  /// The low five bits of a letter are its number in the alphabet.
  static constexpr std::size_t SlotOf(char letter) {
    return static_cast<unsigned char>(letter) % kSlots;
  }

  std::array<List, kSlots> lists_{};
};

constexpr TagsByLetter kByFirst(TagsByLetter::Letter::First);
constexpr TagsByLetter kByLast(TagsByLetter::Letter::Last);

bool EndsWithFolded(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && EqualsFolded(text.substr(text.size() - end.size()), end);
}

/// Finds the first start and the first end of every tag in a line.
class TagFinder {
 public:
  TagFinder(std::string_view line, std::array<std::string_view, kTagCount>& values)
      : line_(line), values_(values) {}

  void Run() {
    for (std::size_t at = 0; at < line_.size(); ++at) {
      if (line_[at] == '<') NoteStart(at);
      if (line_[at] == '>') NoteEnd(at);
    }
  }

 private:
  void NoteStart(std::size_t bracket) {
    if (bracket == 0) return;
    const std::string_view before = line_.substr(0, bracket);
    kByLast.ForEach(before.back(), [&](std::size_t tag) {
      if (starts_[tag] != kNotFound || !EndsWithFolded(before, kTags[tag].Word)) return;
      starts_[tag] = bracket + 1;
    });
  }

  void NoteEnd(std::size_t bracket) {
    const std::string_view behind = line_.substr(bracket + 1);
    if (behind.empty()) return;
    kByFirst.ForEach(behind.front(), [&](std::size_t tag) {
      if (ended_[tag] || !StartsWithFolded(behind, kTags[tag].Word)) return;
      ended_.set(tag);
      // Only the first end counts. Ahead of the start it leaves the tag without a value.
      if (starts_[tag] == kNotFound) return;
      values_[tag] = line_.substr(starts_[tag], bracket - starts_[tag]);
    });
  }

  static constexpr std::size_t kNotFound = 0;  // no value starts at the head of a line

  std::string_view line_;
  std::array<std::string_view, kTagCount>& values_;
  std::array<std::size_t, kTagCount> starts_{};
  std::bitset<kTagCount> ended_;
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
