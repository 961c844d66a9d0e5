#include "run/widget_view.h"

#include <algorithm>

#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/classic_palette.h"
#include "run/stage.h"
#include "run/views/form_view.h"

namespace tarnwick::run {
namespace {

constexpr Qt::CursorShape kCursors[] = {
    Qt::ArrowCursor,     Qt::BlankCursor,       Qt::ArrowCursor,     Qt::CrossCursor,
    Qt::IBeamCursor,     Qt::SizeAllCursor,     Qt::SizeBDiagCursor, Qt::SizeVerCursor,
    Qt::SizeFDiagCursor, Qt::SizeHorCursor,     Qt::UpArrowCursor,   Qt::WaitCursor,
    Qt::DragMoveCursor,  Qt::ForbiddenCursor,   Qt::SplitHCursor,    Qt::SplitVCursor,
    Qt::DragCopyCursor,  Qt::WaitCursor,        Qt::ForbiddenCursor, Qt::BusyCursor,
    Qt::WhatsThisCursor, Qt::PointingHandCursor};

int PixelsOf(std::int64_t number) {
  constexpr std::int64_t kFarthest = 30'000;
  return static_cast<int>(std::clamp(number, -kFarthest, kFarthest));
}

/// The sides of Align in the order in which they take their room.
enum Side : std::int64_t { kTop = 1, kBottom = 2, kLeft = 3, kRight = 4, kClient = 5 };

/// Cuts the room of an object off an area.
QRect Dock(QRect& area, const QRect& place, std::int64_t side) {
  QRect room = area;
  switch (side) {
    case kTop:
      room.setHeight(place.height());
      area.setTop(room.bottom() + 1);
      return room;
    case kBottom:
      room.setTop(area.bottom() + 1 - place.height());
      area.setBottom(room.top() - 1);
      return room;
    case kLeft:
      room.setWidth(place.width());
      area.setLeft(room.right() + 1);
      return room;
    case kRight:
      room.setLeft(area.right() + 1 - place.width());
      area.setRight(room.left() - 1);
      return room;
    default:
      return room;
  }
}

}  // namespace

QCursor CursorOf(std::int64_t number) {
  const std::int64_t index = -number;
  const bool known = index >= 0 && index < static_cast<std::int64_t>(std::size(kCursors));
  return known ? kCursors[index] : Qt::ArrowCursor;
}

QRect PlaceOf(const ObjectRecord& object) {
  return {PixelsOf(object.Number(Word::Left)), PixelsOf(object.Number(Word::Top)),
          std::max(0, PixelsOf(object.Number(Word::Width))),
          std::max(0, PixelsOf(object.Number(Word::Height)))};
}

void DockChildren(Stage& stage, ObjectId parent, const QRect& area) {
  const ObjectRecord* const above = stage.World().Find(parent);
  if (above == nullptr) return;
  QRect left = area;
  const std::vector<ObjectId> children = above->Children;
  for (const std::int64_t side : {kTop, kBottom, kLeft, kRight, kClient}) {
    for (const ObjectId id : children) {
      const ObjectRecord* const child = stage.World().Find(id);
      ObjectView* const view = stage.ViewOf(id);
      if (child == nullptr || view == nullptr || view->Widget() == nullptr) continue;
      if (child->Number(Word::Align) != side || !child->Truth(Word::Visible)) continue;
      const QRect room = Dock(left, PlaceOf(*child), side);
      view->Widget()->setGeometry(room);
      stage.Report([&stage, id, room] {
        objects::ObjectWorld& world = stage.World();
        world.UserSet(id, Word::Left, Value::Integer(room.x()));
        world.UserSet(id, Word::Top, Value::Integer(room.y()));
        world.UserSet(id, Word::Width, Value::Integer(room.width()));
        world.UserSet(id, Word::Height, Value::Integer(room.height()));
      });
    }
  }
}

WidgetView::WidgetView(Stage& stage, const ObjectRecord& object, QWidget* widget,
                       WidgetEvents::Mouse mouse, QWidget* pointed)
    : ObjectView(stage, object), widget_(widget), events_(stage, object.Id, mouse) {
  widget->setObjectName(looks::ToQString(object.FullName()));
  events_.Watch(*widget, pointed == nullptr ? *widget : *pointed);
}

WidgetView::~WidgetView() {
  delete widget_.data();
}

const ShowRow<WidgetView> WidgetView::kRows[14] = {
    {Word::Parent, &WidgetView::ShowParent},   {Word::Left, &WidgetView::ShowPlace},
    {Word::Top, &WidgetView::ShowPlace},       {Word::Width, &WidgetView::ShowPlace},
    {Word::Height, &WidgetView::ShowPlace},    {Word::Font, &WidgetView::FontChanged},
    {Word::Color, &WidgetView::ColorChanged},  {Word::Hint, &WidgetView::ShowHint},
    {Word::ShowHint, &WidgetView::ShowHint},   {Word::Cursor, &WidgetView::ShowCursor},
    {Word::Enabled, &WidgetView::ShowEnabled}, {Word::Visible, &WidgetView::ShowVisible},
    {Word::Align, &WidgetView::ShowAlign},     {Word::TabOrder, &WidgetView::ShowTabOrder},
};

void WidgetView::Build(const ObjectRecord& object) {
  ShowAll(*this, kRows, object);
  BuildOwn(object);
}

void WidgetView::Apply(const ObjectRecord& object, Word property) {
  if (widget_.isNull()) return;
  if (!ShowBy(*this, kRows, object, property)) ApplyOwn(object, property);
}

bool WidgetView::Invoke(const ObjectRecord& /*object*/, const MemberInfo& method,
                        std::span<Value> /*arguments*/, Value& /*result*/) {
  if (widget_.isNull()) return false;
  if (method.Name == Word::SetFocus) {
    widget_->setFocus(Qt::OtherFocusReason);
    return true;
  }
  if (method.Name == Word::Repaint) {
    widget_->repaint();
    return true;
  }
  return false;
}

void WidgetView::ShowParent(const ObjectRecord& object) {
  ObjectView* const parent = stage().ViewOf(object.Parent);
  QWidget* const ground = parent == nullptr ? nullptr : parent->Ground();
  if (widget_->parentWidget() == ground && ground != nullptr) return;
  widget_->setParent(ground);
  if (ground != nullptr) ShowVisible(object);
}

void WidgetView::ShowPlace(const ObjectRecord& object) {
  widget_->setGeometry(PlaceOf(object));
  if (object.Number(Word::Align) != 0) {
    ShowAlign(object);
  } else {
    Placed(object);
  }
}

void WidgetView::ShowAlign(const ObjectRecord& object) {
  if (object.Number(Word::Align) == 0) return;
  if (QWidget* const ground = widget_->parentWidget()) {
    DockChildren(stage(), object.Parent, ground->contentsRect());
  }
}

void WidgetView::ShowVisible(const ObjectRecord& object) {
  // Without a parent it would be a window of its own.
  widget_->setVisible(object.Truth(Word::Visible) && widget_->parentWidget() != nullptr);
  ShowAlign(object);
}

void WidgetView::ShowTabOrder(const ObjectRecord& object) {
  const ObjectRecord* const form = stage().World().FormOf(object);
  if (form != nullptr && widget_->isVisible()) OrderTabs(stage(), form->Id);
}

void WidgetView::ShowEnabled(const ObjectRecord& object) {
  widget_->setEnabled(object.Truth(Word::Enabled) || !object.Has(Word::Enabled));
  widget_->update();
}

void WidgetView::ShowHint(const ObjectRecord& object) {
  widget_->setToolTip(object.Truth(Word::ShowHint) ? looks::ToQString(object.Text(Word::Hint))
                                                   : QString());
}

void WidgetView::ShowCursor(const ObjectRecord& object) {
  const std::int64_t number = object.Number(Word::Cursor);
  if (number == 0) {
    widget_->unsetCursor();
  } else {
    widget_->setCursor(CursorOf(number));
  }
}

void WidgetView::ShowFont(const ObjectRecord& object) {
  widget_->setFont(stage().FontOf(object).Font);
  ShowColor(object);
}

void WidgetView::ShowColor(const ObjectRecord& object) {
  widget_->setPalette(
      PaletteOf(looks::ColorOf(static_cast<std::int32_t>(object.Number(Word::Color))),
                looks::ColorOf(static_cast<std::int32_t>(stage().World().FontOf(object).Color))));
  widget_->update();
}

}  // namespace tarnwick::run
