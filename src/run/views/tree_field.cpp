#include "run/views/tree_field.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "looks/classic_look.h"
#include "looks/object_faces.h"
#include "run/stage.h"
#include "run/views/fields.h"

namespace tarnwick::run {
namespace {

class TreeRows final : public QStyledItemDelegate {
 public:
  explicit TreeRows(TreeField& field) : QStyledItemDelegate(&field), field_(field) {}

  /// Only captions are changed.
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override {
    return index.column() == 0 ? QStyledItemDelegate::createEditor(parent, option, index) : nullptr;
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    if (index.column() > 0 || field_.Look().WholeRow) {
      return QStyledItemDelegate::paint(painter, option, index);
    }
    // What is picked is marked as far as its caption goes.
    QStyleOptionViewItem narrow = option;
    narrow.rect.setWidth(std::min(option.rect.width(), sizeHint(option, index).width()));
    QStyledItemDelegate::paint(painter, narrow, index);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const TreeLook& look = field_.Look();
    if (look.HideSelection && !field_.hasFocus()) option->state &= ~QStyle::State_Selected;
    if (look.HotTrack && (option->state & QStyle::State_MouseOver) != 0) {
      option->font.setUnderline(true);
    }
  }

 private:
  const TreeField& field_;
};

/// Every second point of a line, as the platform's trees have it.
void DrawDots(QPainter& painter, const QPoint& from, const QPoint& to) {
  const bool down = from.x() == to.x();
  for (QPoint at = from; at.x() <= to.x() && at.y() <= to.y();
       at += down ? QPoint(0, 1) : QPoint(1, 0)) {
    if ((at.x() + at.y()) % 2 == 0) painter.drawPoint(at);
  }
}

/// The box with a plus, or with a minus for a node that is open.
void DrawOpener(QPainter& painter, const QPoint& middle, bool open) {
  constexpr int kHalf = 4;
  constexpr int kSign = 2;
  const QRect box(middle - QPoint(kHalf, kHalf), QSize(2 * kHalf + 1, 2 * kHalf + 1));
  painter.fillRect(box, looks::kLight);
  painter.setPen(looks::kShadow);
  painter.drawRect(box.adjusted(0, 0, -1, -1));
  painter.setPen(Qt::black);
  painter.drawLine(middle - QPoint(kSign, 0), middle + QPoint(kSign, 0));
  if (!open) painter.drawLine(middle - QPoint(0, kSign), middle + QPoint(0, kSign));
}

}  // namespace

QTreeWidgetItem* MakeTreeItem() {
  auto* const item = new QTreeWidgetItem();
  item->setFlags(item->flags() | Qt::ItemIsEditable);
  return item;
}

TreeField::TreeField(ObjectView& view) : view_(view) {
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
  setLineWidth(looks::kListEdge);
  viewport()->setAutoFillBackground(false);
  setEditTriggers(NoEditTriggers);
  setUniformRowHeights(true);
  setAnimated(false);
  setExpandsOnDoubleClick(true);
  setItemDelegate(new TreeRows(*this));
  viewport()->setAttribute(Qt::WA_Hover);
}

TreeLook TreeField::LookOf(const ObjectRecord& object) {
  constexpr std::int64_t kReport = 3;
  TreeLook look;
  look.Grid = object.Truth(Word::GridLines) && object.Number(Word::ViewStyle) == kReport;
  look.Lines = object.Truth(Word::ShowLines);
  look.Buttons = object.Truth(Word::ShowButtons);
  look.HotTrack = object.Truth(Word::HotTrack);
  look.HideSelection = object.Truth(Word::HideSelection);
  look.ReadOnly = object.Truth(Word::ReadOnly);
  look.WholeRow = object.Truth(Word::RowSelect);
  return look;
}

void TreeField::SetLook(const TreeLook& look) {
  look_ = look;
  setEditTriggers(look.ReadOnly ? NoEditTriggers : SelectedClicked | EditKeyPressed);
  viewport()->update();
}

void TreeField::paintEvent(QPaintEvent* event) {
  QTreeWidget::paintEvent(event);
  if (look_.Grid) PaintGrid();
}

void TreeField::PaintGrid() {
  QPainter painter(viewport());
  painter.setPen(looks::kFace);
  const QTreeWidgetItem* const first = topLevelItem(0);
  const int height = first == nullptr ? fontMetrics().height() : visualItemRect(first).height();
  // The lines go on below the last row.
  const int start = first == nullptr ? 0 : visualItemRect(first).top();
  for (int y = start + height; height > 0 && y <= viewport()->height(); y += height) {
    if (y > 0) painter.drawLine(0, y - 1, viewport()->width(), y - 1);
  }
  for (int column = 0; column < columnCount(); ++column) {
    const int right = columnViewportPosition(column) + columnWidth(column) - 1;
    painter.drawLine(right, 0, right, viewport()->height());
  }
}

void TreeField::keyPressEvent(QKeyEvent* event) {
  // The Return that ends a caption presses no button of the form.
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && state() == EditingState) return event->accept();
  QTreeWidget::keyPressEvent(event);
}

void TreeField::mouseMoveEvent(QMouseEvent* event) {
  QTreeWidget::mouseMoveEvent(event);
  const bool hot = look_.HotTrack && itemAt(event->pos()) != nullptr;
  if (hot == hot_) return;
  hot_ = hot;
  if (hot) {
    viewport()->setCursor(Qt::PointingHandCursor);
  } else {
    viewport()->unsetCursor();
  }
}

void TreeField::focusInEvent(QFocusEvent* event) {
  QTreeWidget::focusInEvent(event);
  viewport()->update();
}

void TreeField::focusOutEvent(QFocusEvent* event) {
  QTreeWidget::focusOutEvent(event);
  viewport()->update();
}

void TreeField::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const {
  const auto is_last = [this](const QModelIndex& node) {
    return node.row() + 1 >= model()->rowCount(node.parent());
  };
  QRect cell(rect.right() + 1 - indentation(), rect.top(), indentation(), rect.height());
  QModelIndex node = index;
  for (; node.isValid() && cell.right() >= rect.left(); node = node.parent()) {
    // The whole way down has points at the same places, so that rows join.
    const QPoint middle(cell.left() + cell.width() / 2, cell.top() + cell.height() / 2);
    const bool own = node == index;
    const bool first = own && !node.parent().isValid() && node.row() == 0;
    painter->setPen(looks::kShadow);
    if (look_.Lines && (own || !is_last(node))) {
      const int top = first ? middle.y() : cell.top();
      DrawDots(*painter, QPoint(middle.x(), top),
               QPoint(middle.x(), is_last(node) ? middle.y() : cell.bottom()));
      if (own) DrawDots(*painter, middle, QPoint(cell.right(), middle.y()));
    }
    if (own && look_.Buttons && model()->hasChildren(node)) {
      DrawOpener(*painter, middle, isExpanded(node));
    }
    cell.translate(-indentation(), 0);
  }
}

bool TreeField::event(QEvent* event) {
  if (event->type() != QEvent::Paint) return QTreeWidget::event(event);
  PaintField(*this, view_);
  return true;
}

QIcon PictureOfList(Stage& stage, const ObjectRecord& object, Word images, int index) {
  const ObjectRecord* const list = stage.RecordOf(object.Object(images));
  const auto* const files = list == nullptr ? nullptr : list->As<objects::PickedFiles>();
  if (files == nullptr || index < 0 || static_cast<std::size_t>(index) >= files->Files.size()) {
    return {};
  }
  const QPixmap& picture = stage.Pictures().At(files->Files[static_cast<std::size_t>(index)]);
  return picture.isNull() ? QIcon() : QIcon(picture);
}

QSize PictureSizeOfList(Stage& stage, const ObjectRecord& object, Word images) {
  constexpr std::int64_t kUsual = 16;
  constexpr std::int64_t kLargest = 256;
  const ObjectRecord* const list = stage.RecordOf(object.Object(images));
  const auto side = [&](Word word) {
    const std::int64_t size = list == nullptr ? kUsual : list->Number(word);
    return static_cast<int>(std::clamp<std::int64_t>(size, 1, kLargest));
  };
  return {side(Word::Width), side(Word::Height)};
}

}  // namespace tarnwick::run
