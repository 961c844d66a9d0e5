// The rows of the grid: names, marks and shown values, and the filter over them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "inspector/property_rows.h"
#include "inspector/row_bindings.h"

namespace tarnwick {

/// Row 0 is "Name", row i the kind's row i - 1. Rows keep their numbers whatever the filter shows.
class GridRows {
 public:
  struct Cell {
    PropertyRow Row;
    std::string Text;
    const RowBinding* Binding = nullptr;  ///< null for "Name" and for rows unknown to the kind
  };

  /// Height of a row, twips.
  static constexpr int kRowHeight = 315;

  /// Puts the row "Name" and the rows given, all without a value, and lets the filter choose. With
  /// a target, rows that have no effect on it are left out.
  void Build(std::span<const PropertyRow> rows, const RowTarget* target);
  /// The cell of a row; null for a row that is not there.
  [[nodiscard]] const Cell* At(int row) const noexcept;
  /// True when the text is another now.
  bool SetText(int row, std::string text);
  [[nodiscard]] int Count() const noexcept { return static_cast<int>(cells_.size()); }
  /// The row of a name in any case; -1 for none.
  [[nodiscard]] int RowOf(std::string_view name) const noexcept;

  /// Shows only rows whose name holds the text, in any case; "" shows all. Row 0 always shows.
  void SetFilter(std::string_view text);
  [[nodiscard]] const std::string& Filter() const noexcept { return filter_; }
  /// The numbers of the shown rows from the top.
  [[nodiscard]] const std::vector<int>& Shown() const noexcept { return shown_; }
  /// Top of a row, twips; -1 for a row that is not shown.
  [[nodiscard]] int TopOf(int row) const noexcept;

 private:
  void ChooseShown();

  std::vector<Cell> cells_;
  std::string filter_;
  std::vector<int> shown_;
};

}  // namespace tarnwick
