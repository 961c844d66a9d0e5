// `ListMenu`, the list of a menu designer.
#pragma once

#include <QIcon>
#include <QListWidget>
#include <QPoint>
#include <string>
#include <vector>

namespace tarnwick {

/// Shows rows as they stand, each with a mark when something is wrong with it. A row that is
/// dragged moves along with the pointer.
class RowListView final : public QListWidget {
  Q_OBJECT

 public:
  explicit RowListView(QWidget* parent);

  /// Shows the rows, the faults as marks, and one row as selected; -1 for none.
  void ShowRows(const std::vector<std::string>& rows, const std::vector<std::string>& faults,
                int selected);

 signals:
  /// The user chose a row.
  void Chosen(int row);
  /// The selected row was dragged to a place.
  void Dragged(int row);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] int RowUnder(const QPoint& place) const;

  QIcon mark_;
  QIcon no_mark_;  ///< keeps the texts of all rows in line
  QPoint press_;
  bool pressed_ = false;
  bool dragging_ = false;
};

}  // namespace tarnwick
