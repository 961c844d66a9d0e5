#include "persistence/written_record.h"

#include <array>
#include <bit>
#include <cstdint>
#include <span>
#include <variant>

#include "persistence/record_layouts.h"
#include "text/short_bytes.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

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

template <Kind kind>
std::optional<std::size_t> Take(std::string_view text, RecordValues& values) {
  static constexpr const RecordLayout& layout = LayoutOf(kind);
  std::array<std::string_view, layout.Fields.size()> found;
  LiteralWalk walk(text, values.Seen);
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
  values.Number = found[0];
  values.Name = found[1];
  ForEachField<kind>([&](auto place) {
    values.OfTag[static_cast<std::size_t>(layout.Fields[place].In)] = found[place];
    return true;
  });
  return size;
}

}  // namespace

std::optional<std::size_t> TakeWrittenRecord(std::string_view text, RecordValues& values) {
  constexpr std::size_t kMost = 32;  // bytes of a kind's word with its brackets
  if (!text.starts_with('[') || !text.ends_with(kLineEnd)) return {};
  const std::size_t close = text.substr(0, kMost).find(']');
  if (close == std::string_view::npos) return {};
  const std::string_view word = text.substr(1, close - 1);
  const std::optional<Kind> kind = KindOfFileWord(word);
  if (!kind) return {};
  const auto size = WithObjectKind(*kind, [&](auto constant) -> std::optional<std::size_t> {
    constexpr std::span<const LayoutField> fields = LayoutOf(constant).Fields;
    if constexpr (std::get<Special>(fields[0].Value) == Special::Number) {
      return Take<constant>(text, values);
    } else {
      return {};
    }
  });
  if (size) {
    values.KindWord = word;
    values.ObjectKind = kind;
  }
  return size;
}

}  // namespace tarnwick
