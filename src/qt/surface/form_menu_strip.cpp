#include "qt/surface/form_menu_strip.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <string_view>

#include "looks/classic_look.h"
#include "model/menu_bar.h"
#include "qt/kit/text_bridge.h"

namespace tarnwick {

namespace {

constexpr int kTitleRoom = 7;
constexpr std::string_view kSeparatorCaption = "-";

/// Strips the depth prefixes; answers how many there were.
int TakeDepth(std::string_view& caption) {
  int depth = 0;
  while (caption.starts_with(kMenuDepth)) {
    caption.remove_prefix(kMenuDepth.size());
    ++depth;
  }
  return depth;
}

}  // namespace

FormMenuStrip::FormMenuStrip(std::function<void(const ControlRef&)> chosen, QWidget* parent)
    : QWidget(parent), chosen_(std::move(chosen)) {
  setObjectName(QStringLiteral("mnuBar"));
  setFixedHeight(HeightPixels());
  setMouseTracking(true);
  QFont shown = font();
  shown.setPixelSize(11);
  setFont(shown);
}

void FormMenuStrip::Rebuild(const DesignForm& form) {
  for (const Title& title : titles_) delete title.Items;
  titles_.clear();
  hovered_ = -1;
  int left = 0;
  std::vector<int> places(static_cast<std::size_t>(form.UBound(Kind::Menu)) + 1, -1);
  for (int i = 1; i <= form.UBound(Kind::Menu); ++i) {
    const ControlRef control = form.Element(Kind::Menu, i);
    if (!control || !control->Visible) continue;
    Title title;
    title.Caption = ToQString(control->Caption);
    title.Control = control;
    const int width =
        fontMetrics().size(Qt::TextShowMnemonic, title.Caption).width() + 2 * kTitleRoom;
    title.Place = QRect(left, 0, width, HeightPixels());
    title.Items = new QMenu(this);
    places[static_cast<std::size_t>(i)] = static_cast<int>(titles_.size());
    left += width;
    titles_.push_back(std::move(title));
  }
  QMenu* nested = nullptr;
  const QMenu* nested_under = nullptr;
  for (int i = 1; i <= form.UBound(Kind::MenuItem); ++i) {
    const ControlRef item = form.Element(Kind::MenuItem, i);
    const auto parent = item ? static_cast<std::size_t>(qMax<int>(0, item->MenuParent)) : 0;
    if (!item || !item->Visible || parent >= places.size() || places[parent] < 0) continue;
    QMenu* menu = titles_[static_cast<std::size_t>(places[parent])].Items;
    std::string_view caption = item->Caption;
    if (TakeDepth(caption) > 0 && !menu->actions().isEmpty()) {
      if (nested == nullptr || nested_under != menu) {
        QAction* above = menu->actions().constLast();
        nested = new QMenu(menu);
        above->setMenu(nested);
        nested_under = menu;
      }
      menu = nested;
    } else {
      nested = nullptr;
    }
    if (caption == kSeparatorCaption) {
      menu->addSeparator();
      continue;
    }
    connect(menu->addAction(ToQString(caption)), &QAction::triggered, this,
            [this, item] { chosen_(item); });
  }
  update();
}

int FormMenuStrip::TitleAt(const QPoint& place) const {
  for (std::size_t i = 0; i < titles_.size(); ++i) {
    if (titles_[i].Place.contains(place)) return static_cast<int>(i);
  }
  return -1;
}

void FormMenuStrip::Hover(int title) {
  if (title == hovered_) return;
  hovered_ = title;
  update();
}

void FormMenuStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), looks::kFace);
  painter.fillRect(0, height() - 1, width(), 1, looks::kShadow);
  painter.setPen(Qt::black);
  for (std::size_t i = 0; i < titles_.size(); ++i) {
    if (static_cast<int>(i) == hovered_) {
      looks::DrawFrame(painter, titles_[i].Place.adjusted(0, 1, 0, -2), looks::kLight,
                       looks::kShadow);
    }
    painter.drawText(titles_[i].Place, Qt::AlignCenter | Qt::TextShowMnemonic, titles_[i].Caption);
  }
}

void FormMenuStrip::mousePressEvent(QMouseEvent* event) {
  const int title = TitleAt(event->position().toPoint());
  if (title < 0) return;
  const Title& chosen = titles_[static_cast<std::size_t>(title)];
  if (chosen.Items->isEmpty()) {
    chosen_(chosen.Control);
  } else {
    chosen.Items->popup(mapToGlobal(chosen.Place.bottomLeft()));
  }
}

void FormMenuStrip::mouseMoveEvent(QMouseEvent* event) {
  Hover(TitleAt(event->position().toPoint()));
}

void FormMenuStrip::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  Hover(-1);
}

}  // namespace tarnwick
