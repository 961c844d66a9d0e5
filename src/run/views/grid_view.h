// Grids of texts.
#pragma once

#include "run/owner_drawing.h"
#include "run/widget_view.h"

namespace tarnwick::run {

class GridField;

/// Rows and columns of cells, the first ones fixed. Cells are counted from 0, the fixed ones
/// included.
class GridView final : public TableView<GridView> {
 public:
  GridView(Stage& stage, const ObjectRecord& grid);
  ~GridView() override;
  void ShowItems(const ObjectRecord& grid, const objects::ItemsChange& change) override;
  void ShowDrawing() override;
  bool Live(const ObjectRecord& grid, const MemberInfo& member, std::span<const Value> index,
            Value& out) override;

  void ShowCells(const ObjectRecord& grid);
  void ShowPicked(const ObjectRecord& grid);
  void ShowFirst(const ObjectRecord& grid);
  static constexpr ShowRow<GridView> kRows[] = {{Word::RowCount, &GridView::ShowCells},
                                                {Word::ColCount, &GridView::ShowCells},
                                                {Word::FixedRows, &GridView::ShowCells},
                                                {Word::FixedCols, &GridView::ShowCells},
                                                {Word::DefaultRowHeight, &GridView::ShowCells},
                                                {Word::DefaultColWidth, &GridView::ShowCells},
                                                {Word::GridLineWidth, &GridView::ShowCells},
                                                {Word::ScrollBars, &GridView::ShowCells},
                                                {Word::FixedColor, &GridView::ShowCells},
                                                {Word::BorderStyle, &GridView::ShowCells},
                                                {Word::Row, &GridView::ShowPicked},
                                                {Word::Col, &GridView::ShowPicked},
                                                {Word::TopRow, &GridView::ShowFirst},
                                                {Word::LeftCol, &GridView::ShowFirst}};

  // Reported by the field
  /// The user goes to a cell; OnSelectCell may keep him out.
  void Pick(int column, int row);
  void TakeText(int column, int row, const std::string& text);
  /// The user gives a column another width, or a row another height, pixels.
  void TakeSize(bool column, int index, int size);
  void Scrolled();
  void Paint(QPainter& painter);

 private:
  [[nodiscard]] GridField& Field() const;
  [[nodiscard]] std::vector<DrawnPart> Parts() const;
  OwnerDrawing drawing_;
};

}  // namespace tarnwick::run
