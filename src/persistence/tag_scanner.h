// The tags of a record line: the per-line variables of the reader.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "model/kinds.h"
#include "persistence/record_tags.h"

namespace tarnwick {

/// Reads the lines of one form file in turn and keeps the last value of every tag: a record without
/// a tag inherits the value of an earlier line. All values start empty.
///
/// The value of a tag T runs from behind the first "T<" to the first ">T" anywhere in the line,
/// without regard to case. One pass over the line finds all tags. Values are views of the text:
/// all lines scanned must outlive the scanner.
class TagScanner {
 public:
  /// Takes the values of a line, which is passed without its line end. An empty line changes
  /// nothing.
  void Scan(std::string_view line);

  /// Value of a tag as the file stores it.
  [[nodiscard]] std::string_view Stored(Tag tag) const noexcept {
    return values_[static_cast<std::size_t>(tag)];
  }
  /// Value of a tag with its stored commas and line ends restored.
  [[nodiscard]] std::string Value(Tag tag) const;
  /// The text in the first square brackets of the line; "" when it has none.
  [[nodiscard]] std::string_view KindWord() const noexcept { return kind_word_; }
  /// The object kind of that word; null for any other.
  [[nodiscard]] std::optional<Kind> ObjectKind() const noexcept { return object_kind_; }
  /// The text in the first round brackets, of this line or the last one that had them.
  [[nodiscard]] std::string_view Number() const noexcept { return number_; }
  /// The text in the first curly brackets, likewise.
  [[nodiscard]] std::string_view Name() const noexcept { return name_; }

 private:
  std::string_view kind_word_;
  std::optional<Kind> object_kind_;
  std::string_view number_;
  std::string_view name_;
  std::array<std::string_view, kTagCount> values_;
};

}  // namespace tarnwick
