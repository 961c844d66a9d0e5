#include "run/views/tab_view.h"

#include <QMouseEvent>
#include <QStyleOptionTab>
#include <QTabBar>
#include <algorithm>
#include <utility>

#include "looks/classic_look.h"
#include "looks/text_bridge.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/painted_face.h"

namespace tarnwick::run {

using objects::ListItems;

namespace {

/// Tabs of which the one under the pointer has letters of another colour.
class Tabs final : public QTabBar {
 public:
  explicit Tabs(QWidget* parent) : QTabBar(parent) { setAttribute(Qt::WA_Hover); }
  void SetHotTrack(bool hot) {
    hot_ = hot;
    update();
  }

 protected:
  bool event(QEvent* event) override {
    int under = under_;
    if (event->type() == QEvent::HoverLeave) under = -1;
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove) {
      under = tabAt(static_cast<QHoverEvent*>(event)->position().toPoint());
    }
    if (under != std::exchange(under_, under)) update();
    return QTabBar::event(event);
  }
  void initStyleOption(QStyleOptionTab* option, int index) const override {
    QTabBar::initStyleOption(option, index);
    if (hot_ && index == under_) option->palette.setColor(QPalette::WindowText, Qt::blue);
  }

 private:
  bool hot_ = false;
  int under_ = -1;  ///< the tab under the pointer
};

}  // namespace

void TabView::ShowHot(const ObjectRecord& tabs) {
  static_cast<Tabs*>(bar_)->SetHotTrack(tabs.Truth(Word::HotTrack));
}

TabView::TabView(Stage& stage, const ObjectRecord& tabs)
    : TableView(stage, tabs, new PaintedFace<TabView>(*this), WidgetEvents::Mouse::Plain),
      bar_(new Tabs(Widget())) {
  bar_->setObjectName(Widget()->objectName() + QStringLiteral(".Tabs"));
  bar_->setDrawBase(false);
  bar_->setExpanding(false);
  Widget()->setFocusPolicy(Qt::StrongFocus);
  Widget()->setFocusProxy(bar_);
  connect(bar_, &QTabBar::currentChanged, this, [this](int index) {
    if (showing_ || index < 0) return;
    this->stage().Report([this, index] {
      this->stage().World().UserSet(Id(), Word::TabIndex, Value::Integer(index));
    });
  });
}

void TabView::ShowTabs(const ObjectRecord& tabs) {
  const auto* const items = tabs.As<ListItems>();
  if (items == nullptr) return;
  showing_ = true;
  while (bar_->count() > 0) bar_->removeTab(0);
  for (const ListItems::Item& item : items->Items) bar_->addTab(looks::ToQString(item.Text));
  showing_ = false;
  ShowPicked(tabs);
  Resized();
}

void TabView::ShowItems(const ObjectRecord& tabs, const objects::ItemsChange& /*change*/) {
  ShowTabs(tabs);
}

void TabView::ShowPicked(const ObjectRecord& tabs) {
  showing_ = true;
  // The toolkit always has a tab picked.
  bar_->setCurrentIndex(static_cast<int>(std::max<std::int64_t>(tabs.Number(Word::TabIndex), 0)));
  showing_ = false;
}

void TabView::ShowFont(const ObjectRecord& tabs) {
  WidgetView::ShowFont(tabs);
  bar_->setFont(stage().FontOf(tabs).Font);
  Resized();
}

void TabView::Resized() {
  if (Widget() == nullptr || Record() == nullptr) return;
  constexpr int kEdge = 2;
  const int height = bar_->sizeHint().height();
  bar_->setGeometry(0, 0, Widget()->width(), height);
  Widget()->setContentsMargins(kEdge, height + kEdge, kEdge, kEdge);
  DockChildren(stage(), Id(), Widget()->contentsRect());
  Widget()->update();
}

void TabView::Paint(QPainter& painter) const {
  const int height = std::max(0, bar_->height() - 1);
  looks::DrawRaised(painter, Widget()->rect().adjusted(0, height, 0, 0), looks::kFace);
}

// --- Splitters

namespace {

/// The sides of Align at which a splitter moves: what it sizes, and in which direction it grows.
struct SideRow {
  std::int64_t Align;
  bool Across;
  int Sign;
};
constexpr SideRow kSides[] = {{1, false, 1}, {2, false, -1}, {3, true, 1}, {4, true, -1}};

const SideRow* SideOf(std::int64_t align) {
  const auto* const found = std::find_if(std::begin(kSides), std::end(kSides),
                                         [&](const SideRow& side) { return side.Align == align; });
  return found == std::end(kSides) ? nullptr : found;
}

}  // namespace

SplitterView::SplitterView(Stage& stage, const ObjectRecord& splitter)
    : TableView(stage, splitter, new PaintedFace<SplitterView>(*this), WidgetEvents::Mouse::Plain) {
  Widget()->installEventFilter(this);
}

void SplitterView::Paint(QPainter& painter) const {
  const ObjectRecord* const splitter = Record();
  if (splitter != nullptr) painter.fillRect(Widget()->rect(), PaperOf(*splitter));
}

void SplitterView::ShowSide(const ObjectRecord& splitter) {
  const SideRow* const side = SideOf(splitter.Number(Word::Align));
  if (splitter.Number(Word::Cursor) != 0 || side == nullptr) return;
  Widget()->setCursor(side->Across ? Qt::SplitHCursor : Qt::SplitVCursor);
}

bool SplitterView::eventFilter(QObject* /*watched*/, QEvent* event) {
  const ObjectRecord* const splitter = Record();
  const SideRow* const side = splitter == nullptr ? nullptr : SideOf(splitter->Number(Word::Align));
  if (side == nullptr) return false;
  const auto at = [&] { return static_cast<QMouseEvent*>(event)->globalPosition().toPoint(); };
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      dragging_ = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
      from_ = at();
      break;
    case QEvent::MouseButtonRelease: {
      if (!dragging_) break;
      dragging_ = false;
      const QPoint moved = at() - from_;
      DragBy(side->Sign * (side->Across ? moved.x() : moved.y()));
      break;
    }
    default:
      break;
  }
  return false;
}

/// The object docked at the same side that was docked last in front of the splitter.
ObjectId SplitterView::Neighbour(std::int64_t side) const {
  const ObjectRecord* const splitter = Record();
  const ObjectRecord* const parent =
      splitter == nullptr ? nullptr : stage().World().Find(splitter->Parent);
  if (parent == nullptr) return ObjectId::None;
  ObjectId found = ObjectId::None;
  for (const ObjectId id : parent->Children) {
    if (id == Id()) break;
    const ObjectRecord* const child = stage().World().Find(id);
    if (child != nullptr && child->Number(Word::Align) == side) found = id;
  }
  return found;
}

void SplitterView::DragBy(int pixels) {
  const ObjectRecord* const splitter = Record();
  const SideRow* const side = splitter == nullptr ? nullptr : SideOf(splitter->Number(Word::Align));
  if (side == nullptr || pixels == 0) return;
  stage().Report([this, pixels, row = *side] {
    constexpr std::int64_t kSmallest = 30;
    objects::ObjectWorld& world = stage().World();
    objects::ObjectRecord* const sized = world.Find(Neighbour(row.Align));
    if (sized == nullptr) return;
    const Word property = row.Across ? Word::Width : Word::Height;
    const std::int64_t size = std::max(kSmallest, sized->Number(property) + pixels);
    world.Change(*sized, property, Value::Integer(size), objects::Origin::Code);
  });
}

}  // namespace tarnwick::run
