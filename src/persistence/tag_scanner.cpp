#include "persistence/tag_scanner.h"

#include <bit>
#include <cstdint>
#include <cstring>

#include "persistence/record_layouts.h"
#include "persistence/stored_text.h"
#include "text/short_bytes.h"
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

/// The words as they stand at the end or at the start of a window.
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

/// Marks each of the eight bytes from `text` on that is "<" or ">" by its top bit. The two differ
/// in one bit, which is set first.
constexpr std::size_t kStep = sizeof(std::uint64_t);
std::uint64_t BracketMarks(const char* text) {
  constexpr std::uint64_t kEachByte = 0x0101010101010101U;
  constexpr std::uint64_t kLowBits = 0x7F * kEachByte;
  constexpr auto kDifference = static_cast<std::uint64_t>('<' ^ '>');
  static_assert(('<' | kDifference) == '>');
  std::uint64_t bytes = 0;
  std::memcpy(&bytes, text, kStep);
  const std::uint64_t others = (bytes | kDifference * kEachByte) ^ ('>' * kEachByte);
  return ~(((others & kLowBits) + kLowBits) | others | kLowBits);
}

/// The place in memory of the first marked byte.
std::size_t FirstMark(std::uint64_t marks) {
  const int before = std::endian::native == std::endian::little ? std::countr_zero(marks)
                                                                : std::countl_zero(marks);
  return static_cast<std::size_t>(before) / 8;
}

/// The first "<" or ">" from a place on; the end where there is none.
const char* FindBracket(const char* at, const char* end) {
  for (; end - at >= static_cast<std::ptrdiff_t>(kStep); at += kStep) {
    const std::uint64_t marks = BracketMarks(at);
    if (marks != 0) return at + FirstMark(marks);
  }
  while (at != end && *at != '<' && *at != '>') ++at;
  return at;
}

/// The window of the `size` bytes before a place; zeros where the line has none.
Window WindowBefore(const char* place, std::size_t size) {
  if (size >= kWindow) return FoldedWindow(place - kWindow);
  std::array<char, kWindow> bytes{};
  std::memcpy(bytes.data() + kWindow - size, place - size, size);
  return FoldedWindow(bytes.data());
}

/// The window of the `size` bytes from a place on, likewise.
Window WindowFrom(const char* place, std::size_t size) {
  if (size >= kWindow) return FoldedWindow(place);
  std::array<char, kWindow> bytes{};
  std::memcpy(bytes.data(), place, size);
  return FoldedWindow(bytes.data());
}

/// Takes what stands between the first two brackets of a pair in the head; false when there is no
/// such pair.
bool TakeHead(std::string_view line, char open, char close, std::string_view& value) {
  const std::size_t start = line.find(open);
  const std::size_t end = start == kNone ? kNone : line.find(close);
  if (end == kNone || end < start) return false;
  value = line.substr(start + 1, end - start - 1);
  return true;
}

using Values = std::array<std::string_view, kTagCount>;

/// Takes the values of a record that stands as the program itself writes it, from the end of its
/// name on: all literals of the layout in their order, and no bracket in any value. There the
/// first start and the first end of a tag are those of its field. False, and nothing taken, for
/// any other line.
bool TakeAsWritten(std::string_view line, std::size_t head_size, const RecordLayout& layout,
                   Values& values) {
  std::array<const char*, kTagCount> closes;
  std::size_t count = 0;
  const char* const end = line.data() + line.size();
  const char* at = line.data() + head_size;
  if (FindBracket(line.data(), at) != at) return false;
  for (const LayoutField& field : layout.Fields) {
    if (field.In == Tag::None) continue;
    const std::string_view lead = field.Lead;
    if (static_cast<std::size_t>(end - at) < lead.size() || !SameBytes(at, lead)) return false;
    at = FindBracket(at + lead.size(), end);
    closes[count++] = at;
  }
  if (std::string_view(at, static_cast<std::size_t>(end - at)) != layout.End) return false;
  count = 0;
  at = line.data() + head_size;
  for (const LayoutField& field : layout.Fields) {
    if (field.In == Tag::None) continue;
    const char* const value = at + field.Lead.size();
    at = closes[count++];
    values[static_cast<std::size_t>(field.In)] = {value, static_cast<std::size_t>(at - value)};
  }
  return true;
}

/// Takes the values of any line: of each tag from its first start to its first end.
class LineSearch {
 public:
  LineSearch(std::string_view line, Values& values)
      : begin_(line.data()), end_(begin_ + line.size()), values_(values) {}

  void Run() {
    for (const char* at = FindBracket(begin_, end_); at != end_; at = FindBracket(at + 1, end_)) {
      if (*at == '<') {
        NoteStart(at);
      } else {
        NoteEnd(at);
      }
    }
  }

 private:
  static constexpr std::uint64_t BitOf(std::size_t tag) {
    static_assert(kTagCount <= 64);
    return std::uint64_t{1} << tag;
  }

  void NoteStart(const char* at) {
    if (at - begin_ < 2) return;
    const Candidates& list = kByEnd[PairOf(at[-1], at[-2])];
    if (list.Count == 0) return;
    const Window window = WindowBefore(at, static_cast<std::size_t>(at - begin_));
    for (std::size_t i = 0; i < list.Count; ++i) {
      const std::size_t tag = list.Tags[i];
      if (!kEndWords[tag].Covers(window) || (started_ & BitOf(tag)) != 0) continue;
      started_ |= BitOf(tag);
      starts_[tag] = at + 1;
    }
  }

  void NoteEnd(const char* at) {
    if (end_ - at < 3) return;
    const Candidates& list = kByStart[PairOf(at[1], at[2])];
    if (list.Count == 0) return;
    const Window window = WindowFrom(at + 1, static_cast<std::size_t>(end_ - at - 1));
    for (std::size_t i = 0; i < list.Count; ++i) {
      const std::size_t tag = list.Tags[i];
      if (!kStartWords[tag].Covers(window)) continue;
      // Whatever comes behind the first end has none; that may be the start.
      const bool first = (ended_ & BitOf(tag)) == 0;
      ended_ |= BitOf(tag);
      if (first && (started_ & BitOf(tag)) != 0) {
        values_[tag] = {starts_[tag], static_cast<std::size_t>(at - starts_[tag])};
      }
    }
  }

  const char* begin_;
  const char* end_;
  Values& values_;
  // A bit for each tag whose start or end was met, and where its value starts.
  std::uint64_t started_ = 0;
  std::uint64_t ended_ = 0;
  std::array<const char*, kTagCount> starts_{};
};

}  // namespace

void TagScanner::Scan(std::string_view line) {
  kind_word_ = {};
  TakeHead(line, '[', ']', kind_word_);
  TakeHead(line, '(', ')', number_);
  const bool named = TakeHead(line, '{', '}', name_);
  object_kind_ = KindOfFileWord(kind_word_);
  if (named && object_kind_) {
    const auto head_size = static_cast<std::size_t>(name_.data() - line.data()) + name_.size();
    if (TakeAsWritten(line, head_size, LayoutOf(*object_kind_), values_)) return;
  }
  LineSearch(line, values_).Run();
}

std::string_view TagScanner::Restored(Tag tag) {
  const std::string_view stored = Stored(tag);
  switch (InfoOf(tag).How) {
    case Restore::Plain:
      return stored;
    case Restore::Lines:
      return RestoredLines(stored, restored_);
    case Restore::Commas:
      return RestoredCommas(stored, restored_);
    case Restore::Items:
      return RestoredListCommas(stored, restored_);
    case Restore::Code:
      return Trim(RestoredLines(stored, restored_));
  }
  return stored;
}

}  // namespace tarnwick
