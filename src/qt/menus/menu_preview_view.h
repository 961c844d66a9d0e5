// The menu that a designer's rows make, drawn beside them.
#pragma once

#include <QRect>
#include <QWidget>
#include <vector>

#include "menus/menu_preview.h"

class QPainter;

namespace tarnwick {

/// Draws the menu in the classic look of generated programs, with the part open in which the
/// selected row stands. A press on an entry chooses its row.
class MenuPreviewView final : public QWidget {
  Q_OBJECT

 public:
  /// `has_bar`: top-level rows are titles of a bar; otherwise a popup menu is drawn.
  MenuPreviewView(bool has_bar, QWidget* parent);

  /// Shows the menus with the entry of a row of the designer marked.
  void ShowMenus(std::vector<menus::PreviewMenu> shown, int selected_row);
  /// Where the entry of a row is drawn; empty for a row that is not shown now.
  [[nodiscard]] QRect PlaceOf(int row) const;

 signals:
  void Chosen(int row);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  [[nodiscard]] QSize sizeHint() const override { return {260, 280}; }

 private:
  struct Entry {
    const menus::PreviewItem* Item = nullptr;
    QRect Place;
    bool Title = false;
    bool Opens = false;  ///< it has items of its own
  };
  void LayOut();
  /// Puts entries one under the other into a box; returns the box.
  QRect PutBox(const QPoint& top_left, const std::vector<const menus::PreviewItem*>& items);
  void PaintEntry(QPainter& painter, const Entry& entry) const;

  bool has_bar_;
  std::vector<menus::PreviewMenu> menus_;
  int selected_ = -1;
  QRect bar_;
  std::vector<QRect> boxes_;
  std::vector<Entry> entries_;
};

}  // namespace tarnwick
