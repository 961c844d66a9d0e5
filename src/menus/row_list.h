// The row list of both menu designers: `ListMenu`, its two text boxes and what the buttons do.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "menus/menu_design.h"
#include "menus/menu_rows.h"

namespace tarnwick::menus {

/// The text boxes, `Texto(0)` and `Texto(1)`.
struct RowTexts {
  std::string Caption;
  std::string Name;
  friend bool operator==(const RowTexts&, const RowTexts&) = default;
};

/// Rows in the grammar of menu rows, one of them selected. A view shows rows, selection and texts
/// after each call, and forwards what the user does:
///
///   RowList list(MenuBarDesign(), "Form1", rows);
///   list.SetTexts({"&File", "mnuFile"});   // at each keystroke
///   list.Enter();                          // the row is filled, the next one selected
///
/// Every operation is total: where it has nothing to work on, it does nothing.
class RowList {
 public:
  /// Opens with the rows and two empty ones behind them; row 0 is selected. `form_name` stands in
  /// the names of the example.
  RowList(const MenuDesign& design, std::string form_name, Rows rows);

  [[nodiscard]] const Rows& ListMenu() const noexcept { return rows_; }
  /// The selected row; -1 for an empty list.
  [[nodiscard]] int Selected() const noexcept { return selected_; }
  [[nodiscard]] const RowTexts& Texts() const noexcept { return texts_; }
  /// The text boxes were edited.
  void SetTexts(RowTexts texts) { texts_ = std::move(texts); }
  /// The rows as they would be with the typed texts in the selected one.
  [[nodiscard]] Rows RowsWithTexts() const;
  /// True while the text boxes say something else than the selected row.
  [[nodiscard]] bool HasPendingText() const;
  /// How deep the selected row is, or will be once it is filled.
  [[nodiscard]] int Depth() const;
  /// True when some row has text: there is a menu.
  [[nodiscard]] bool HasText() const;

  /// Selects a row and shows it in the text boxes.
  void Select(int row);
  /// Enter in a text box, and "Add": the texts replace the selected row, which keeps its depth; an
  /// empty row takes the depth of the row above it. Then the next row is selected. With both texts
  /// empty an empty row stays empty.
  void Enter();
  /// Takes a depth prefix off the row. An empty row that would take the depth of the row above it
  /// will be one level less deep.
  void Outdent();
  /// Adds a depth prefix, up to `kMostMenuDepth`. An empty row becomes one level deeper than it
  /// would have been.
  void Indent();
  /// Swaps the row with its neighbour; the selection moves with it.
  void Up();
  void Down();
  /// Moves the selected row to a place; the rows between move by one.
  void MoveTo(int row);
  /// "Del Item".
  void DeleteRow();
  /// "Del All".
  void DeleteAll();
  /// "Insert": an empty row here, or at the end when the last row is selected.
  void Insert();
  void Example();

 private:
  [[nodiscard]] int Count() const noexcept { return static_cast<int>(rows_.size()); }
  [[nodiscard]] std::string& Row() { return rows_[static_cast<std::size_t>(selected_)]; }
  [[nodiscard]] const std::string& Row() const {
    return rows_[static_cast<std::size_t>(selected_)];
  }
  void EndWithEmptyRows();
  void FillEmptyList();

  const MenuDesign& design_;
  std::string form_name_;
  Rows rows_;
  int selected_ = -1;
  RowTexts texts_;
  std::optional<int> wanted_depth_;  ///< of the selected row, while that is ""
};

}  // namespace tarnwick::menus
