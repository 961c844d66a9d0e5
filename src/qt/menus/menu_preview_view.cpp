#include "qt/menus/menu_preview_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPolygon>
#include <utility>

#include "looks/classic_look.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kBarHeight = 20;
constexpr int kRowHeight = 18;
constexpr int kSeparatorHeight = 8;
constexpr int kTitleRoom = 7;
constexpr int kItemRoom = 20;  // for a check mark at the left, for the arrow at the right
constexpr int kEdge = 3;
constexpr int kLeastWidth = 60;
constexpr QColor kMarked(0x00, 0x00, 0x80);

}  // namespace

MenuPreviewView::MenuPreviewView(bool has_bar, QWidget* parent)
    : QWidget(parent), has_bar_(has_bar) {
  setObjectName(QStringLiteral("Preview"));
  setAccessibleName(QStringLiteral("Preview of the menu"));
  setToolTip(QStringLiteral("Preview: a press on an entry selects its row"));
  QFont shown = font();
  shown.setPixelSize(11);
  setFont(shown);
}

void MenuPreviewView::ShowMenus(std::vector<menus::PreviewMenu> shown, int selected_row) {
  menus_ = std::move(shown);
  selected_ = selected_row;
  LayOut();
  update();
}

QRect MenuPreviewView::PlaceOf(int row) const {
  for (const Entry& entry : entries_) {
    if (entry.Item->Row == row) return entry.Place;
  }
  return {};
}

void MenuPreviewView::LayOut() {
  entries_.clear();
  boxes_.clear();
  bar_ = {};
  const int open = menus::PreviewMenuOf(menus_, selected_);
  const menus::PreviewMenu* opened = open < 0 ? nullptr : &menus_[static_cast<std::size_t>(open)];
  std::vector<const menus::PreviewItem*> items;
  if (opened != nullptr) {
    for (const menus::PreviewItem& item : opened->Items) items.push_back(&item);
  }
  if (has_bar_) {
    bar_ = QRect(1, 1, width() - 2, kBarHeight);
    int left = bar_.left();
    QPoint below = bar_.bottomLeft();
    for (const menus::PreviewMenu& menu : menus_) {
      const QString caption = ToQString(menu.Head.Caption);
      const int wide = fontMetrics().size(Qt::TextShowMnemonic, caption).width() + 2 * kTitleRoom;
      const QRect place(left, bar_.top(), wide, kBarHeight);
      if (&menu == opened) below = place.bottomLeft();
      entries_.push_back({&menu.Head, place, true, false});
      left += wide;
    }
    if (!items.empty()) boxes_.push_back(PutBox(below, items));
    return;
  }
  std::vector<const menus::PreviewItem*> heads;
  for (const menus::PreviewMenu& menu : menus_) heads.push_back(&menu.Head);
  if (heads.empty()) return;
  boxes_.push_back(PutBox({kRoom, kRoom}, heads));
  for (std::size_t i = 0; i < menus_.size(); ++i) entries_[i].Opens = !menus_[i].Items.empty();
  if (items.empty()) return;
  const QRect head = entries_[static_cast<std::size_t>(open)].Place;
  boxes_.push_back(PutBox({boxes_.front().right() - kEdge, head.top() - kEdge}, items));
}

QRect MenuPreviewView::PutBox(const QPoint& top_left,
                              const std::vector<const menus::PreviewItem*>& items) {
  int wide = kLeastWidth;
  for (const menus::PreviewItem* item : items) {
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, ToQString(item->Caption));
    wide = qMax(wide, text.width() + 2 * kItemRoom);
  }
  int top = top_left.y() + kEdge;
  for (const menus::PreviewItem* item : items) {
    const int high = item->IsSeparator() ? kSeparatorHeight : kRowHeight;
    entries_.push_back({item, QRect(top_left.x() + kEdge, top, wide, high), false, false});
    top += high;
  }
  return {top_left, QPoint(top_left.x() + wide + 2 * kEdge - 1, top + kEdge - 1)};
}

void MenuPreviewView::PaintEntry(QPainter& painter, const Entry& entry) const {
  const bool marked = entry.Item->Row == selected_;
  if (marked) painter.fillRect(entry.Place, kMarked);
  const QColor ink = marked ? QColor(Qt::white) : QColor(Qt::black);
  painter.setPen(ink);
  const QString caption = ToQString(entry.Item->Caption);
  if (entry.Title) {
    painter.drawText(entry.Place, Qt::AlignCenter | Qt::TextShowMnemonic, caption);
    return;
  }
  if (entry.Item->IsSeparator()) {
    const int middle = entry.Place.center().y();
    painter.setPen(looks::kShadow);
    painter.drawLine(entry.Place.left() + 1, middle, entry.Place.right() - 1, middle);
    painter.setPen(looks::kLight);
    painter.drawLine(entry.Place.left() + 1, middle + 1, entry.Place.right() - 1, middle + 1);
    return;
  }
  painter.drawText(entry.Place.adjusted(kItemRoom, 0, -kGap, 0),
                   Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, caption);
  if (!entry.Opens) return;
  const QPoint tip(entry.Place.right() - 6, entry.Place.center().y());
  painter.setBrush(ink);
  painter.drawPolygon(QPolygon({tip, tip + QPoint(-4, -4), tip + QPoint(-4, 4)}));
}

void MenuPreviewView::paintEvent(QPaintEvent* /*event*/) {
  // The size may be another one since the rows were shown.
  LayOut();
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Mid));
  looks::DrawFrame(painter, rect(), LineOf(palette()), LineOf(palette()));
  painter.setClipRect(rect().adjusted(1, 1, -1, -1));
  if (has_bar_) painter.fillRect(bar_, looks::kFace);
  for (const QRect& box : boxes_) looks::DrawRaised(painter, box, looks::kFace);
  for (const Entry& entry : entries_) PaintEntry(painter, entry);
}

void MenuPreviewView::mousePressEvent(QMouseEvent* event) {
  // The box that was drawn last lies above the others.
  for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
    if (!entry->Place.contains(event->position().toPoint())) continue;
    emit Chosen(entry->Item->Row);
    return;
  }
}

}  // namespace tarnwick
