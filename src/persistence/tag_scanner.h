// The tags of a record line: the per-line variables of the reader.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/kinds.h"
#include "persistence/record_values.h"
#include "text/strings.h"

namespace tarnwick {

/// Reads the lines of one form file in turn and keeps, for every tag, the value it last had: a
/// record without a tag inherits the value of a line before. All values start empty.
///
/// The value of a tag T runs from behind the first "T<" to the first ">T" anywhere in the line,
/// without regard to case. One pass over the line serves all tags, and values are kept as places
/// in the text: the text of all lines scanned must live as long as the scanner.
class TagScanner {
 public:
  /// Takes the values of the line that a text begins with and answers it: what stands before the
  /// first CR LF, or all of the text. An empty line changes nothing.
  std::string_view Scan(std::string_view text);

  /// Value of a tag as it is stored.
  [[nodiscard]] std::string_view Stored(Tag tag) const noexcept {
    return values_.OfTag[static_cast<std::size_t>(tag)];
  }
  /// Value of a tag, restored from its stored form. Valid until the next call.
  [[nodiscard]] std::string_view Value(Tag tag) {
    const std::string_view stored = Stored(tag);
    const Restore how = InfoOf(tag).How;
    if (stored.empty() || how == Restore::Plain) return stored;
    // The bytes that stand for others are none of ASCII.
    if (ascii_) return how == Restore::Code ? Trim(stored) : stored;
    return Restored(stored, how);
  }
  /// The word in the first square brackets; "" when the line has none.
  [[nodiscard]] std::string_view KindWord() const noexcept { return values_.KindWord; }
  /// The object kind of that word; nothing for any other.
  [[nodiscard]] std::optional<Kind> ObjectKind() const noexcept { return values_.ObjectKind; }
  /// What stood in the first round brackets, of this line or the last one that had them.
  [[nodiscard]] std::string_view Number() const noexcept { return values_.Number; }
  /// What stood in the first curly brackets, likewise.
  [[nodiscard]] std::string_view Name() const noexcept { return values_.Name; }

 private:
  [[nodiscard]] std::string_view Restored(std::string_view stored, Restore how);

  RecordValues values_;
  bool ascii_ = true;     ///< no line had a byte above ASCII so far
  std::string restored_;  ///< the value asked for last, where it is stored in another form
};

}  // namespace tarnwick
