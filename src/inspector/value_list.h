// The drop-down list of a row.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick {

/// The values that the selected row offers, and whether they are shown.
class ValueList {
 public:
  void Fill(std::vector<std::string> values) { values_ = std::move(values); }
  [[nodiscard]] const std::vector<std::string>& Values() const noexcept { return values_; }
  /// Index of a text among the values, blanks at the ends and case aside; -1 for none.
  [[nodiscard]] int IndexOf(std::string_view text) const noexcept;

  /// True when a text, blanks at its ends and case aside, begins a value.
  [[nodiscard]] bool Begins(std::string_view text) const noexcept;

  [[nodiscard]] bool IsOpen() const noexcept { return is_open_; }
  /// Index of the row's present value while the list is open; -1 for none.
  [[nodiscard]] int Marked() const noexcept { return marked_; }
  void Open(std::string_view present) {
    marked_ = IndexOf(present);
    is_open_ = true;
  }
  /// False when it was closed already.
  bool Close() noexcept {
    marked_ = -1;
    return std::exchange(is_open_, false);
  }

 private:
  std::vector<std::string> values_;
  int marked_ = -1;
  bool is_open_ = false;
};

}  // namespace tarnwick
