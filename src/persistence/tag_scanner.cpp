#include "persistence/tag_scanner.h"

#include <bit>
#include <cstdint>
#include <cstring>

#include "persistence/stored_text.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::size_t kLetters = 32;  ///< the low five bits of a letter
constexpr std::size_t kMostPerPair = 5;

/// Tags that share two letters, as a short list.
struct Candidates {
  std::array<std::uint8_t, kMostPerPair> Tags{};
  std::uint8_t Count = 0;
};
using PairIndex = std::array<Candidates, kLetters * kLetters>;

constexpr std::size_t PairOf(char near, char far) {
  return (static_cast<unsigned char>(near) % kLetters) * kLetters +
         static_cast<unsigned char>(far) % kLetters;
}

/// Tags by the two letters next to the bracket, the nearer one first: the end of the word before
/// "<", its beginning after ">".
constexpr PairIndex IndexBy(bool end) {
  PairIndex index{};
  for (std::size_t tag = 0; tag < kTagCount; ++tag) {
    const std::string_view word = kTags[tag].Word;
    const std::size_t last = word.size() - 1;
    Candidates& list = index[end ? PairOf(word[last], word[last - 1]) : PairOf(word[0], word[1])];
    list.Tags[list.Count++] = static_cast<std::uint8_t>(tag);
  }
  return index;
}

constexpr PairIndex kByEnd = IndexBy(true);
constexpr PairIndex kByStart = IndexBy(false);

/// Sixteen bytes of a line or of a word, so that a word is compared in two steps and no loop.
struct Window {
  std::uint64_t First = 0;
  std::uint64_t Second = 0;
};
constexpr std::size_t kWindow = 16;

/// The bytes from `text` on as a window, letters folded. Setting bit 5 makes no other byte a letter
/// of the tags.
Window FoldedWindow(const char* text) {
  constexpr std::uint64_t kFold = 0x2020202020202020U;
  Window window;
  std::memcpy(&window.First, text, sizeof window.First);
  std::memcpy(&window.Second, text + sizeof window.First, sizeof window.Second);
  window.First |= kFold;
  window.Second |= kFold;
  return window;
}

/// A word at the end or at the start of a window, and which bytes of the window it covers.
struct WindowWord {
  Window Bytes;
  Window Mask;

  [[nodiscard]] bool Covers(const Window& window) const {
    return (((window.First ^ Bytes.First) & Mask.First) |
            ((window.Second ^ Bytes.Second) & Mask.Second)) == 0;
  }
};

using WindowWords = std::array<WindowWord, kTagCount>;

constexpr WindowWords MakeWindowWords(bool at_end) {
  WindowWords words{};
  for (std::size_t tag = 0; tag < kTagCount; ++tag) {
    const std::string_view word = kTags[tag].Word;
    std::array<char, kWindow> bytes{};
    std::array<char, kWindow> mask{};
    const std::size_t from = at_end ? kWindow - word.size() : 0;
    for (std::size_t i = 0; i < word.size(); ++i) {
      bytes[from + i] = word[i];
      mask[from + i] = '\xFF';
    }
    words[tag] = {std::bit_cast<Window>(bytes), std::bit_cast<Window>(mask)};
  }
  return words;
}

constexpr WindowWords kEndWords = MakeWindowWords(true);
constexpr WindowWords kStartWords = MakeWindowWords(false);

/// First places of brackets and tags in one line.
class LineBounds {
 public:
  explicit LineBounds(std::string_view line) : line_(line) {
    for (std::size_t at = line.find('<'); at != kNone; at = line.find('<', at + 1)) NoteStart(at);
    for (std::size_t at = line.find('>'); at != kNone; at = line.find('>', at + 1)) NoteEnd(at);
  }

  /// True, and `value` set, when the line has both bounds of a tag in their order.
  bool Take(std::size_t tag, std::string_view& value) const {
    if (ends_[tag] < starts_[tag] || starts_[tag] == 0 || ends_[tag] == kNone) return false;
    value = std::string_view(line_.data() + starts_[tag], ends_[tag] - starts_[tag]);
    return true;
  }

  /// The same for a pair of brackets of the head.
  bool Take(char open, char close, std::string_view& value) const {
    const std::size_t start = line_.find(open);
    const std::size_t end = start == kNone ? kNone : line_.find(close);
    if (end == kNone || end < start) return false;
    value = line_.substr(start + 1, end - start - 1);
    return true;
  }

 private:
  /// The window of the bytes before a place or from it on; zeros where the line has none.
  [[nodiscard]] Window WindowAt(std::size_t from, std::size_t size, bool at_end) const {
    if (size >= kWindow) {
      return FoldedWindow(line_.data() + (at_end ? from + size - kWindow : from));
    }
    std::array<char, kWindow> bytes{};
    const std::size_t shift = at_end ? kWindow - size : 0;
    std::memcpy(bytes.data() + shift, line_.data() + from, size);
    return FoldedWindow(bytes.data());
  }

  void NoteStart(std::size_t at) {
    if (at < 2) return;
    const Candidates& list = kByEnd[PairOf(line_[at - 1], line_[at - 2])];
    if (list.Count == 0) return;
    const Window window = WindowAt(0, at, true);
    for (std::size_t i = 0; i < list.Count; ++i) {
      const std::size_t tag = list.Tags[i];
      // A value starts behind its tag, so never at 0.
      if (starts_[tag] == 0 && kEndWords[tag].Covers(window)) starts_[tag] = at + 1;
    }
  }

  void NoteEnd(std::size_t at) {
    const std::size_t behind = line_.size() - at - 1;
    if (behind < 2) return;
    const Candidates& list = kByStart[PairOf(line_[at + 1], line_[at + 2])];
    if (list.Count == 0) return;
    const Window window = WindowAt(at + 1, behind, false);
    for (std::size_t i = 0; i < list.Count; ++i) {
      const std::size_t tag = list.Tags[i];
      if (ends_[tag] == kNone && kStartWords[tag].Covers(window)) ends_[tag] = at;
    }
  }

  static constexpr std::array<std::size_t, kTagCount> kNoEnds = [] {
    std::array<std::size_t, kTagCount> ends{};
    ends.fill(kNone);
    return ends;
  }();

  std::string_view line_;
  std::array<std::size_t, kTagCount> starts_{};
  std::array<std::size_t, kTagCount> ends_ = kNoEnds;
};

}  // namespace

void TagScanner::Scan(std::string_view line) {
  const LineBounds bounds(line);
  kind_ = {};
  bounds.Take('[', ']', kind_);
  bounds.Take('(', ')', number_);
  bounds.Take('{', '}', name_);
  for (std::size_t tag = 0; tag < kTagCount; ++tag) bounds.Take(tag, values_[tag]);
}

std::string TagScanner::Value(Tag tag) const {
  std::string value(Stored(tag));
  if (value.empty()) return value;
  switch (InfoOf(tag).How) {
    case Restore::Plain:
      break;
    case Restore::Lines:
      RestoreLines(value);
      break;
    case Restore::Commas:
      RestoreCommas(value);
      break;
    case Restore::Items:
      RestoreListCommas(value);
      break;
    case Restore::Code:
      RestoreLines(value);
      value = std::string(Trim(value));
      break;
  }
  return value;
}

}  // namespace tarnwick
