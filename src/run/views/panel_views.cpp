#include "run/views/panel_views.h"

#include <QChildEvent>
#include <QScrollArea>
#include <algorithm>

#include "looks/classic_look.h"
#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/painted_face.h"

namespace tarnwick::run {
namespace {

constexpr std::int64_t kLowered = 1;
constexpr std::int64_t kRaised = 2;
constexpr int kWidestBevel = 100;

int BevelWidthOf(const ObjectRecord& panel) {
  return static_cast<int>(
      std::clamp<std::int64_t>(panel.Number(Word::BevelWidth), 1, kWidestBevel));
}

/// Draws a bevel around an area and returns what it leaves free.
QRect DrawBevel(QPainter& painter, QRect area, std::int64_t kind, int width) {
  if (kind != kLowered && kind != kRaised) return area;
  const bool raised = kind == kRaised;
  for (int i = 0; i < width && !area.isEmpty(); ++i) {
    looks::DrawFrame(painter, area, raised ? looks::kLight : looks::kShadow,
                     raised ? looks::kShadow : looks::kLight);
    area.adjust(1, 1, -1, -1);
  }
  return area;
}

/// The room that bevels and borders take on each side of a panel.
int EdgeOf(const ObjectRecord& panel, bool with_border) {
  const int bevel = BevelWidthOf(panel);
  const int border =
      static_cast<int>(std::clamp<std::int64_t>(panel.Number(Word::BorderWidth), 0, kWidestBevel));
  int edge = with_border ? border : 0;
  if (panel.Number(Word::BorderStyle) != 0) edge += 1;
  if (panel.Number(Word::BevelOuter) != 0) edge += bevel;
  if (panel.Number(Word::BevelInner) != 0) edge += bevel;
  return edge;
}

looks::FaceText CaptionOf(Stage& stage, const ObjectRecord& object, bool enabled) {
  const QColor ink = looks::ColorOf(static_cast<std::int32_t>(stage.World().FontOf(object).Color));
  return {object.Text(Word::Caption), stage.FontOf(object), ink, enabled};
}

}  // namespace

PanelView::PanelView(Stage& stage, const ObjectRecord& panel)
    : TableView(stage, panel, new PaintedFace<PanelView>(*this), WidgetEvents::Mouse::Plain) {}

void PanelView::ShowBevel(const ObjectRecord& panel) {
  const int edge = EdgeOf(panel, true);
  Widget()->setContentsMargins(edge, edge, edge, edge);
  Resized();
  Widget()->update();
}

void PanelView::ShowCaption(const ObjectRecord& panel) {
  Widget()->setAccessibleName(looks::ToQString(panel.Text(Word::Caption)));
  Widget()->update();
}

void PanelView::Resized() {
  if (Widget() != nullptr && Record() != nullptr) {
    DockChildren(stage(), Id(), Widget()->contentsRect());
  }
}

void PanelView::Paint(QPainter& painter) const {
  constexpr Qt::Alignment kAcross[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  const ObjectRecord* const panel = Record();
  if (panel == nullptr) return;
  QRect area = Widget()->rect();
  painter.fillRect(area, PaperOf(*panel));
  if (panel->Number(Word::BorderStyle) != 0) {
    looks::DrawFrame(painter, area, looks::kDarkShadow, looks::kDarkShadow);
    area.adjust(1, 1, -1, -1);
  }
  const int width = BevelWidthOf(*panel);
  area = DrawBevel(painter, area, panel->Number(Word::BevelOuter), width);
  const int border =
      static_cast<int>(std::clamp<std::int64_t>(panel->Number(Word::BorderWidth), 0, kWidestBevel));
  area.adjust(border, border, -border, -border);
  area = DrawBevel(painter, area, panel->Number(Word::BevelInner), width);
  const std::int64_t side = panel->Number(Word::Alignment);
  looks::DrawFaceText(
      painter, stage().Texts(), area, CaptionOf(stage(), *panel, Widget()->isEnabled()),
      kAcross[side >= 0 && side < 3 ? side : 2] | Qt::AlignVCenter, looks::TextFlow::Line);
}

GroupView::GroupView(Stage& stage, const ObjectRecord& group)
    : TableView(stage, group, new PaintedFace<GroupView>(*this), WidgetEvents::Mouse::Plain) {}

void GroupView::ShowCaption(const ObjectRecord& group) {
  const int height = stage().FontOf(group).Metrics.height();
  constexpr int kEdge = 2;
  Widget()->setContentsMargins(kEdge, height, kEdge, kEdge);
  Widget()->setAccessibleName(looks::ToQString(group.Text(Word::Caption)));
  Resized();
  Widget()->update();
}

void GroupView::Resized() {
  if (Widget() != nullptr && Record() != nullptr) {
    DockChildren(stage(), Id(), Widget()->contentsRect());
  }
}

void GroupView::Paint(QPainter& painter) const {
  constexpr int kCaptionLeft = 8;
  const ObjectRecord* const group = Record();
  if (group == nullptr) return;
  const QRect rect = Widget()->rect();
  const looks::FaceText caption = CaptionOf(stage(), *group, Widget()->isEnabled());
  const int height = caption.Font.Metrics.height();
  painter.fillRect(rect, PaperOf(*group));
  // A shadow line and a light one beside it.
  const QRect frame = rect.adjusted(0, height / 2, 0, 0);
  looks::DrawFrame(painter, frame.adjusted(1, 1, 0, 0), looks::kLight, looks::kLight);
  looks::DrawFrame(painter, frame.adjusted(0, 0, -1, -1), looks::kShadow, looks::kShadow);
  if (caption.Text.empty()) return;
  const looks::LaidText& laid =
      stage().Texts().Lay(caption.Text, caption.Font, looks::TextFlow::Line, 0);
  const QRect room(kCaptionLeft, 0, std::min(laid.Width, rect.width() - 2 * kCaptionLeft), height);
  painter.fillRect(room.adjusted(-1, 0, 1, 0), PaperOf(*group));
  looks::DrawFaceText(painter, stage().Texts(), room, caption, Qt::AlignLeft,
                      looks::TextFlow::Line);
}

namespace {

/// Grows with what stands on it.
class ScrolledGround final : public QWidget {
 public:
  explicit ScrolledGround(QScrollArea& area) : area_(area) {}
  void Fit() {
    QSize size = area_.maximumViewportSize();
    for (const QObject* const child : children()) {
      const auto* const widget = qobject_cast<const QWidget*>(child);
      if (widget == nullptr || widget->isHidden()) continue;
      size =
          size.expandedTo(QSize(widget->geometry().right() + 1, widget->geometry().bottom() + 1));
    }
    resize(size);
  }

 protected:
  void childEvent(QChildEvent* event) override {
    if (event->added()) event->child()->installEventFilter(this);
    if (event->removed()) Fit();
  }
  bool eventFilter(QObject* /*child*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Move:
      case QEvent::Resize:
      case QEvent::ShowToParent:
      case QEvent::HideToParent:
        Fit();
        break;
      default:
        break;
    }
    return false;
  }

 private:
  QScrollArea& area_;
};

class BoxArea final : public QScrollArea {
 public:
  BoxArea() : ground_(new ScrolledGround(*this)) {
    setWidget(ground_);
    setFocusPolicy(Qt::NoFocus);
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    ground_->Fit();
  }

 private:
  ScrolledGround* ground_;
};

}  // namespace

ScrollBoxView::ScrollBoxView(Stage& stage, const ObjectRecord& box)
    : TableView(stage, box, new BoxArea, WidgetEvents::Mouse::Plain) {
  Events().Watch(Area(), *Area().widget());
}

QScrollArea& ScrollBoxView::Area() const {
  return *static_cast<QScrollArea*>(Widget());
}

QWidget* ScrollBoxView::Ground() const {
  return Widget() == nullptr ? nullptr : Area().widget();
}

void ScrollBoxView::ShowEdge(const ObjectRecord& box) {
  constexpr int kEdge = 2;
  const bool edge = box.Number(Word::BorderStyle) != 0;
  Area().setFrameStyle(edge ? QFrame::Panel | QFrame::Sunken : QFrame::NoFrame);
  Area().setLineWidth(edge ? kEdge : 0);
}

void ScrollBoxView::ShowColor(const ObjectRecord& box) {
  WidgetView::ShowColor(box);
  QPalette palette = Area().palette();
  palette.setColor(QPalette::Window, PaperOf(box));
  Area().setPalette(palette);
  Area().widget()->setAutoFillBackground(true);
}

}  // namespace tarnwick::run
