// The tags of a record line: the per-line variables of the reader.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

/// Reads the lines of one form file in turn and keeps, for every tag, the value it last had: a
/// record without a tag inherits the value of a line before. All values start empty.
///
/// The value of a tag T runs from behind the first "T<" to the first ">T" anywhere in the line,
/// without regard to case. One pass over the line serves all tags.
class TagScanner {
 public:
  /// Takes the values of a line.
  void Scan(std::string_view line);

  /// Value of a lower-case tag, restored from its stored form: "string", "keydown", ...; "" for a
  /// word that is no tag.
  [[nodiscard]] const std::string& Value(std::string_view tag) const noexcept;
  /// The word in the first square brackets; "" when the line has none.
  [[nodiscard]] std::string_view Kind() const noexcept { return kind_; }
  /// What stood in the first round brackets, of this line or the last one that had them.
  [[nodiscard]] const std::string& Number() const noexcept { return number_; }
  /// What stood in the first curly brackets, likewise.
  [[nodiscard]] const std::string& Name() const noexcept { return name_; }

 private:
  static constexpr std::size_t kTagCount = 47;

  void TakeHead(std::string_view line);
  void FindBounds();
  void TakeValues(std::string_view line);

  std::array<std::string, kTagCount> values_;
  std::array<std::size_t, kTagCount> starts_{};
  std::array<std::size_t, kTagCount> ends_{};
  std::string lower_;
  std::string kind_;
  std::string number_;
  std::string name_;
};

}  // namespace tarnwick
