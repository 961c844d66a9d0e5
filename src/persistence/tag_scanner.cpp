#include "persistence/tag_scanner.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>

#include "persistence/record_layouts.h"
#include "persistence/stored_text.h"
#include "text/short_bytes.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
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

/// Sixteen bytes at a time, or what a comparison makes of each: all bits, or none.
using Bytes = char __attribute__((vector_size(16)));

Bytes BytesAt(const char* at) {
  Bytes bytes;
  std::memcpy(&bytes, at, sizeof bytes);
  return bytes;
}

/// The top bit of each byte, the first one lowest.
std::uint32_t TopBits(Bytes bytes) {
#ifdef __SSE2__
  return static_cast<std::uint32_t>(__builtin_ia32_pmovmskb128(bytes));
#else
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < sizeof bytes; ++i) {
    bits |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i]) >> 7U) << i;
  }
  return bits;
#endif
}

Bytes AreBrackets(Bytes bytes) {
  // The two differ in one bit, which is set first.
  constexpr char kDifference = '<' ^ '>';
  static_assert(('<' | kDifference) == '>');
  return (bytes | kDifference) == '>';
}

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

using Values = std::array<std::string_view, kTagCount>;

/// The head of a record.
struct Head {
  std::string_view& KindWord;
  std::optional<Kind>& ObjectKind;
  std::string_view& Number;
  std::string_view& Name;
};

/// Walks over a text whose literals are known, and which ends in a line end. Each step is false
/// where another literal stands, or the text ends too soon to take bytes many at a time.
class LiteralWalk {
 public:
  LiteralWalk(std::string_view text, Bytes& seen)
      : at_(text.data()), end_(at_ + text.size()), seen_(seen) {}

  [[nodiscard]] const char* At() const { return at_; }

  [[gnu::always_inline]] bool Pass(std::string_view literal) {
    if (!Reaches(literal.size()) || !SameBytes(at_, literal)) return false;
    at_ += literal.size();
    return true;
  }
  /// Passes digits, if there are any.
  [[gnu::always_inline]] std::string_view PassDigits() {
    const std::string_view digits = Since(at_, DigitsEnd());
    at_ += digits.size();
    return digits;
  }
  /// Passes a name or a value up to the byte that ends it. There is no bracket in it and no CR.
  [[gnu::always_inline]] bool PassUpTo(char end, std::string_view& value) {
    const char* const start = at_;
    std::uint32_t stops = 0;
    for (; stops == 0; at_ += sizeof(Bytes)) {
      if (!Reaches(sizeof(Bytes))) return false;
      const Bytes bytes = BytesAt(at_);
      seen_ |= bytes;
      stops = TopBits(AreBrackets(bytes) | (bytes == end) | (bytes == '\r'));
    }
    at_ += std::countr_zero(stops) - static_cast<int>(sizeof(Bytes));
    value = Since(start, at_);
    return *at_ == end;
  }
  /// Passes the value of a tag.
  [[gnu::always_inline]] bool PassValue(std::string_view& value) {
    // Most are a few digits, or nothing. Told one by one, they let the processor look at the next
    // literal meanwhile: in most records they are as many as in the one before.
    const char* const end = DigitsEnd();
    if (*end != '>') return PassUpTo('>', value);
    value = Since(at_, end);
    at_ = end;
    return true;
  }

 private:
  [[nodiscard]] bool Reaches(std::size_t size) const {
    return static_cast<std::size_t>(end_ - at_) >= size;
  }
  [[nodiscard]] const char* DigitsEnd() const {
    const char* at = at_;
    while (*at >= '0' && *at <= '9') ++at;
    return at;
  }
  [[nodiscard]] static std::string_view Since(const char* start, const char* end) {
    return {start, static_cast<std::size_t>(end - start)};
  }

  const char* at_;
  const char* const end_;
  Bytes& seen_;
};

/// Takes a record that stands as the program itself writes it: all literals of the layout in their
/// order, digits for a number, and no bracket in any value. There the first brackets of the head
/// are its own, and the first start and the first end of a tag are those of its field. Answers the
/// size of the line; nothing, and nothing taken, for any other line. The text ends in a line end.
template <Kind kind>
std::optional<std::size_t> TakeAsWritten(std::string_view text, Head head, Values& values,
                                         Bytes& seen) {
  static constexpr const RecordLayout& layout = LayoutOf(kind);
  std::array<std::string_view, layout.Fields.size()> found;
  LiteralWalk walk(text, seen);
  if (!walk.Pass(layout.Fields[0].Before)) return std::nullopt;
  found[0] = walk.PassDigits();
  const bool as_written =
      walk.Pass(layout.Fields[1].Before) && walk.PassUpTo('}', found[1]) &&
      ForEachField<kind>([&](auto place) {
        return walk.Pass(layout.Fields[place].Lead) && walk.PassValue(found[place]);
      }) &&
      walk.Pass(layout.End);
  const auto size = static_cast<std::size_t>(walk.At() - text.data());
  if (!as_written || !walk.Pass(kLineEnd)) return std::nullopt;
  head.Number = found[0];
  head.Name = found[1];
  ForEachField<kind>([&](auto place) {
    values[static_cast<std::size_t>(layout.Fields[place].In)] = found[place];
    return true;
  });
  return size;
}

/// Takes the line of an object of any kind as above. Kinds without a number are not taken so, nor
/// is any line of a text that ends in none.
std::optional<std::size_t> TakeAsWritten(std::string_view text, Head head, Values& values,
                                         Bytes& seen) {
  constexpr std::size_t kMost = 32;  // bytes of a kind's word with its brackets
  std::string_view word;
  if (!text.ends_with(kLineEnd) || !TakeHead(text.substr(0, kMost), '[', ']', word)) return {};
  const std::optional<Kind> kind = KindOfFileWord(word);
  if (!kind) return {};
  const auto size = WithObjectKind(*kind, [&](auto constant) -> std::optional<std::size_t> {
    constexpr std::span<const LayoutField> fields = LayoutOf(constant).Fields;
    if constexpr (std::get<Special>(fields[0].Value) == Special::Number) {
      return TakeAsWritten<constant>(text, head, values, seen);
    } else {
      return {};
    }
  });
  if (size) {
    head.KindWord = word;
    head.ObjectKind = kind;
  }
  return size;
}

/// Takes the values of any line: of each tag from its first start to its first end.
class LineSearch {
 public:
  LineSearch(std::string_view line, Values& values)
      : begin_(line.data()), end_(begin_ + line.size()), values_(values) {}

  /// What the bytes of the line are is added to `seen`.
  void Run(Bytes& seen) {
    std::array<char, kBlock> last;
    for (const char* at = begin_; at < end_; at += kBlock) {
      const char* block = at;
      if (const auto size = static_cast<std::size_t>(end_ - at); size < kBlock) {
        last = {};
        std::memcpy(last.data(), at, size);
        block = last.data();
      }
      for (std::uint64_t left = BracketsIn(block, seen); left != 0; left &= left - 1) {
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

std::string_view TagScanner::Scan(std::string_view text) {
  if (text.starts_with(kLineEnd)) return {};
  Bytes seen{};
  const std::optional<std::size_t> as_written =
      TakeAsWritten(text, {kind_word_, object_kind_, number_, name_}, values_, seen);
  const std::string_view line = text.substr(0, as_written ? *as_written : text.find(kLineEnd));
  if (!as_written && !line.empty()) {
    kind_word_ = {};
    TakeHead(line, '[', ']', kind_word_);
    object_kind_ = KindOfFileWord(kind_word_);
    TakeHead(line, '(', ')', number_);
    TakeHead(line, '{', '}', name_);
    LineSearch(line, values_).Run(seen);
  }
  ascii_ = ascii_ && TopBits(seen) == 0;
  return line;
}

std::string_view TagScanner::Restored(std::string_view stored, Restore how) {
  switch (how) {
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
