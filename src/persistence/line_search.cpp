#include "persistence/line_search.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

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

constexpr std::size_t kBlock = 64;

/// The brackets among the bytes of a block, a bit each. What the bytes are is added to `seen`.
std::uint64_t BracketsIn(const char* block, Bytes& seen) {
  std::uint64_t brackets = 0;
  for (std::size_t at = 0; at < kBlock; at += sizeof(Bytes)) {
    const Bytes bytes = BytesAt(block + at);
    brackets |= std::uint64_t{TopBits(AreBrackets(bytes))} << at;
    seen |= bytes;
  }
  return brackets;
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

class LineSearch {
 public:
  LineSearch(std::string_view line, RecordValues& values)
      : begin_(line.data()), end_(begin_ + line.size()), values_(values) {}

  void Run() {
    std::array<char, kBlock> last;
    for (const char* at = begin_; at < end_; at += kBlock) {
      const char* block = at;
      if (const auto size = static_cast<std::size_t>(end_ - at); size < kBlock) {
        last = {};
        std::memcpy(last.data(), at, size);
        block = last.data();
      }
      for (std::uint64_t left = BracketsIn(block, values_.Seen); left != 0; left &= left - 1) {
        Note(at + std::countr_zero(left));
      }
    }
  }

 private:
  static constexpr std::uint64_t BitOf(std::size_t tag) {
    static_assert(kTagCount <= 64);
    return std::uint64_t{1} << tag;
  }

  void Note(const char* at) {
    if (*at == '<') {
      NoteStart(at);
    } else {
      NoteEnd(at);
    }
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
        values_.OfTag[tag] = {starts_[tag], static_cast<std::size_t>(at - starts_[tag])};
      }
    }
  }

  const char* begin_;
  const char* end_;
  RecordValues& values_;
  // A bit for each tag whose start or end was met, and where its value starts.
  std::uint64_t started_ = 0;
  std::uint64_t ended_ = 0;
  std::array<const char*, kTagCount> starts_{};
};

}  // namespace

void SearchLine(std::string_view line, RecordValues& values) {
  values.KindWord = {};
  TakeHead(line, '[', ']', values.KindWord);
  values.ObjectKind = KindOfFileWord(values.KindWord);
  TakeHead(line, '(', ')', values.Number);
  TakeHead(line, '{', '}', values.Name);
  LineSearch(line, values).Run();
}

}  // namespace tarnwick
