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

constexpr std::size_t kBlock = 64;

/// What a look at a block tells.
struct BlockBits {
  std::uint64_t Brackets = 0;  ///< the bytes that are "<" or ">", a bit each, the first one lowest
  bool AboveAscii = false;     ///< one of its bytes is
};

BlockBits LookAt(const char* block) {
  // The two brackets differ in one bit, which is set first.
  constexpr char kDifference = '<' ^ '>';
  static_assert(('<' | kDifference) == '>');
  BlockBits bits;
#ifdef __SSE2__
  // The top bits of sixteen bytes are one instruction there.
  using Bytes = char __attribute__((vector_size(16)));
  Bytes all{};
  for (std::size_t at = 0; at < kBlock; at += sizeof(Bytes)) {
    Bytes bytes;
    std::memcpy(&bytes, block + at, sizeof bytes);
    const auto found = __builtin_ia32_pmovmskb128((bytes | kDifference) == '>');
    bits.Brackets |= static_cast<std::uint64_t>(static_cast<unsigned>(found)) << at;
    all |= bytes;
  }
  bits.AboveAscii = __builtin_ia32_pmovmskb128(all) != 0;
#else
  for (std::size_t at = 0; at < kBlock; ++at) {
    const bool found = (block[at] | kDifference) == '>';
    bits.Brackets |= std::uint64_t{found} << at;
    bits.AboveAscii |= static_cast<unsigned char>(block[at]) >= 0x80;
  }
#endif
  return bits;
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
  std::string_view& Number;
  std::string_view& Name;
};

/// Passes a literal; false, and the text as it was, where another one stands.
bool Pass(std::string_view& text, std::string_view literal) {
  if (!text.starts_with(literal)) return false;
  text.remove_prefix(literal.size());
  return true;
}

/// Takes the digits at the head of a text.
std::string_view TakeDigits(std::string_view& text) {
  std::size_t size = 0;
  while (size < text.size() && text[size] >= '0' && text[size] <= '9') ++size;
  const std::string_view digits = text.substr(0, size);
  text.remove_prefix(size);
  return digits;
}

/// Takes a record that stands as the program itself writes it: all literals of the layout in their
/// order, digits for a number, and no bracket in any value. There the first brackets of the head
/// are its own, and the first start and the first end of a tag are those of its field. False, and
/// nothing taken, for any other line.
template <Kind kind>
bool TakeAsWritten(std::string_view line, std::span<const std::uint32_t> brackets, Head head,
                   Values& values) {
  static constexpr const RecordLayout& layout = LayoutOf(kind);
  // Behind the two of the head each field has a bracket at its start and one at its end.
  constexpr std::size_t kFields = layout.Fields.size() - 2;
  if (brackets.size() != 2 * kFields) return false;
  std::string_view rest = line;
  if (!Pass(rest, layout.Fields[0].Before)) return false;
  const std::string_view number = TakeDigits(rest);
  if (!Pass(rest, layout.Fields[1].Before)) return false;
  const std::string_view name = rest.substr(0, rest.find('}'));
  // Where the literal of each field begins.
  const auto name_end = static_cast<std::uint32_t>(name.data() + name.size() - line.data());
  const auto begin = [&](std::size_t field) {
    return field == 0 ? name_end : brackets[2 * field - 1];
  };
  // All places first, and then all bytes: what does not hang on the field before is quicker.
  bool as_written = line.substr(brackets.back()) == layout.End;
  ForEachField<kind>([&](auto place) {
    constexpr std::size_t size = layout.Fields[place].Lead.size();
    constexpr std::size_t field = place - 2;
    as_written &= begin(field) + size == brackets[2 * field] + 1;
    return true;
  });
  if (!as_written) return false;
  ForEachField<kind>([&](auto place) {
    constexpr std::string_view lead = layout.Fields[place].Lead;
    as_written &= SameBytes(line.data() + begin(place - 2), lead);
    return true;
  });
  if (!as_written) return false;
  head.Number = number;
  head.Name = name;
  return ForEachField<kind>([&](auto place) {
    const std::uint32_t start = brackets[2 * (place - 2)] + 1;
    values[static_cast<std::size_t>(layout.Fields[place].In)] =
        std::string_view(line.data() + start, brackets[2 * (place - 2) + 1] - start);
    return true;
  });
}

/// Takes the line of an object of any kind as above; kinds without a number are not taken so.
bool TakeAsWritten(Kind kind, std::string_view line, std::span<const std::uint32_t> brackets,
                   Head head, Values& values) {
  return WithObjectKind(kind, [&](auto constant) {
    constexpr std::span<const LayoutField> fields = LayoutOf(constant).Fields;
    if constexpr (std::get<Special>(fields[0].Value) == Special::Number) {
      return TakeAsWritten<constant>(line, brackets, head, values);
    } else {
      return false;
    }
  });
}

/// Takes the values of any line: of each tag from its first start to its first end.
class LineSearch {
 public:
  LineSearch(std::string_view line, Values& values)
      : begin_(line.data()), end_(begin_ + line.size()), values_(values) {}

  void Run(std::span<const std::uint32_t> brackets) {
    for (const std::uint32_t place : brackets) {
      const char* const at = begin_ + place;
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

std::span<const std::uint32_t> LineBytes::BracketsOf(std::string_view line) {
  std::size_t count = 0;
  const auto note = [&](std::size_t base, const char* block, std::size_t passed) {
    if (places_.size() < count + kBlock) places_.resize(2 * (count + kBlock));
    const BlockBits bits = LookAt(block);
    ascii_ = ascii_ && !bits.AboveAscii;
    for (std::uint64_t left = bits.Brackets >> passed; left != 0; left &= left - 1) {
      places_[count++] =
          static_cast<std::uint32_t>(base + static_cast<std::size_t>(std::countr_zero(left)));
    }
  };
  std::size_t base = 0;
  for (; line.size() - base >= kBlock; base += kBlock) note(base, line.data() + base, 0);
  const std::size_t rest = line.size() - base;
  if (rest > 0 && base > 0) {
    // The last block whole: its first bytes were looked at before.
    note(base, line.data() + line.size() - kBlock, kBlock - rest);
  } else if (rest > 0) {
    std::array<char, kBlock> block{};
    std::memcpy(block.data(), line.data(), rest);
    note(0, block.data(), 0);
  }
  return {places_.data(), count};
}

void TagScanner::Scan(std::string_view line) {
  const std::span<const std::uint32_t> brackets = bytes_.BracketsOf(line);
  kind_word_ = {};
  TakeHead(line, '[', ']', kind_word_);
  object_kind_ = KindOfFileWord(kind_word_);
  if (object_kind_ && TakeAsWritten(*object_kind_, line, brackets, {number_, name_}, values_))
    return;
  TakeHead(line, '(', ')', number_);
  TakeHead(line, '{', '}', name_);
  LineSearch(line, values_).Run(brackets);
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
