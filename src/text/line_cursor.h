// The lines of a text.
#pragma once

#include <cstddef>
#include <string_view>

#include "text/strings.h"

namespace tarnwick {

/// Walks over the lines of a text, without their line ends: n line ends give n + 1 lines. It needs
/// no memory of its own, however many lines there are.
///
///   for (LineCursor lines(text); lines.Next();) Use(lines.Line());
class LineCursor {
 public:
  /// `text` must outlive the lines.
  explicit LineCursor(std::string_view text) noexcept : rest_(text) {}

  /// Goes to the next line; false behind the last.
  bool Next() noexcept {
    if (done_) return false;
    const std::size_t end = rest_.find(kLineEnd);
    line_ = rest_.substr(0, end);
    done_ = end == std::string_view::npos;
    if (!done_) rest_.remove_prefix(end + kLineEnd.size());
    return true;
  }
  [[nodiscard]] std::string_view Line() const noexcept { return line_; }

 private:
  std::string_view rest_;
  std::string_view line_;
  bool done_ = false;
};

}  // namespace tarnwick
