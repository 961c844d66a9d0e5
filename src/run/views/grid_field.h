// The widget of a grid of texts.
#pragma once

#include <QAbstractScrollArea>
#include <QPointer>
#include <functional>

#include "objects/grid_options.h"
#include "run/object_view.h"

class QLineEdit;

namespace tarnwick::run {

class GridView;

/// A cell by its numbers; -1 for none.
struct GridCell {
  int Column = -1;
  int Row = -1;
  friend bool operator==(const GridCell&, const GridCell&) = default;
};

/// Where the cells of a grid are, and what the user does on them. Positions are pixels of the
/// viewport.
class GridField final : public QAbstractScrollArea {
 public:
  explicit GridField(GridView& view);

  /// Takes counts, sizes and bars from the record.
  void Fit(const ObjectRecord& grid);
  /// Scrolls so that a cell is seen.
  void Reveal(const GridCell& cell);
  /// The first column and row that are not fixed and to be seen.
  [[nodiscard]] GridCell First() const;
  void SetFirst(const GridCell& cell);
  [[nodiscard]] GridCell CellAt(const QPoint& at) const;
  [[nodiscard]] QRect PlaceOf(const GridCell& cell) const;
  /// Calls back for each cell that is to be seen, fixed ones last.
  void ForEachSeen(const std::function<void(const GridCell&, const QRect&)>& use) const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  /// One direction: sizes of the cells, with lines, and the bar that scrolls it.
  struct Axis {
    std::vector<int> Sizes;
    int Fixed = 0;
  };
  [[nodiscard]] int FirstOf(const Axis& axis, int scrolled) const;
  [[nodiscard]] static int StartOf(const Axis& axis, int first, int index);
  /// An edge between the heads of two columns or rows, which the user drags.
  struct Edge {
    bool Column = false;
    int Index = -1;  ///< of the column or row in front of it; -1: none
    int From = 0;    ///< where the pointer took it
    int Size = 0;    ///< of the column or row before that, without its line
  };
  [[nodiscard]] Edge EdgeAt(const QPoint& at) const;
  [[nodiscard]] Edge EdgeAt(const QPoint& at, bool column) const;
  void FitBar(const Axis& axis, QScrollBar& bar, int room);
  void Edit(const QString& text);
  /// A key of the text that is being changed; true when it ends that.
  [[nodiscard]] bool EditorKey(QKeyEvent& event);
  /// To the next cell or the one before it, over the ends of the rows; false behind the last one.
  [[nodiscard]] bool PickNext(bool next);
  [[nodiscard]] bool HasOption(objects::GridOption option) const;
  void EndEdit(bool takes);
  [[nodiscard]] GridCell Picked() const;
  [[nodiscard]] bool CanEdit() const;

  GridView& view_;
  int line_ = 0;  ///< width of the lines between cells
  Axis columns_;
  Axis rows_;
  QPointer<QLineEdit> editor_;
  GridCell edited_;
  Edge dragged_;
};

}  // namespace tarnwick::run
