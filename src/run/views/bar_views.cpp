#include "run/views/bar_views.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QSlider>
#include <QStyleOptionSlider>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "looks/classic_look.h"
#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/painted_face.h"

namespace tarnwick::run {
namespace {

int NumberOf(const ObjectRecord& object, Word property) {
  constexpr std::int64_t kFarthest = 1'000'000'000;
  return static_cast<int>(std::clamp(object.Number(property), -kFarthest, kFarthest));
}

QColor ColorOf(const ObjectRecord& object, Word property) {
  return looks::ColorOf(static_cast<std::int32_t>(object.Number(property)));
}

}  // namespace

// --- Gauges

namespace {

/// The kinds of a gauge, by their numbers.
enum GaugeKind : std::int64_t { kTextOnly, kAcross, kUpwards, kPie, kNeedle };

/// The part of a gauge that is done, 0 to 1.
double PartOf(const ObjectRecord& gauge) {
  const double low = NumberOf(gauge, Word::Min);
  const double room = NumberOf(gauge, Word::Max) - low;
  return room <= 0 ? 0.0 : std::clamp((NumberOf(gauge, Word::Position) - low) / room, 0.0, 1.0);
}

/// The toolkit's angles are sixteenths of a degree.
constexpr double kSixteenths = 16.0;

/// What a bar fills of an area; nothing for the kinds that are no bars.
QRect FilledOf(const QRect& area, const ObjectRecord& gauge) {
  const double part = PartOf(gauge);
  switch (gauge.Number(Word::Kind)) {
    case kAcross:
      return {area.topLeft(), QSize(static_cast<int>(part * area.width()), area.height())};
    case kUpwards: {
      const int high = static_cast<int>(part * area.height());
      return {area.x(), area.bottom() + 1 - high, area.width(), high};
    }
    default:
      return {};
  }
}

void PaintDone(QPainter& painter, const QRect& area, const ObjectRecord& gauge) {
  const QColor ink = ColorOf(gauge, Word::ForeColor);
  const double part = PartOf(gauge);
  switch (gauge.Number(Word::Kind)) {
    case kAcross:
    case kUpwards:
      painter.fillRect(FilledOf(area, gauge), ink);
      return;
    case kPie:
      painter.setPen(ink);
      painter.setBrush(ink);
      painter.drawPie(area.adjusted(0, 0, -1, -1), static_cast<int>(90 * kSixteenths),
                      static_cast<int>(-360 * kSixteenths * part));
      return;
    case kNeedle: {
      const QPointF foot(area.x() + area.width() / 2.0, area.bottom());
      const double angle = std::numbers::pi * (1.0 - part);
      painter.setPen(ink);
      painter.drawLine(foot, foot + QPointF(std::cos(angle) * area.width() / 2.0,
                                            -std::sin(angle) * area.height()));
      return;
    }
    default:
      return;
  }
}

}  // namespace

GaugeView::GaugeView(Stage& stage, const ObjectRecord& gauge)
    : TableView(stage, gauge, new PaintedFace<GaugeView>(*this), WidgetEvents::Mouse::Plain) {}

void GaugeView::ShowPosition(const ObjectRecord& /*gauge*/) {
  Widget()->update();
}

void GaugeView::Paint(QPainter& painter) const {
  const ObjectRecord* const gauge = Record();
  if (gauge == nullptr) return;
  QRect area = Widget()->rect();
  painter.fillRect(area, ColorOf(*gauge, Word::BackColor));
  if (gauge->Number(Word::BorderStyle) != 0) {
    looks::DrawFrame(painter, area, looks::kDarkShadow, looks::kDarkShadow);
    area.adjust(1, 1, -1, -1);
  }
  PaintDone(painter, area, *gauge);
  if (!gauge->Truth(Word::ShowText)) return;
  const std::string text = std::to_string(std::lround(PartOf(*gauge) * 100)) + "%";
  const auto draw = [&](const QColor& ink) {
    looks::DrawFaceText(painter, stage().Texts(), area, {text, stage().FontOf(*gauge), ink, true},
                        Qt::AlignCenter, looks::TextFlow::Plain);
  };
  draw(ColorOf(*gauge, Word::ForeColor));
  // On the bar the text has the colour of the ground.
  painter.setClipRect(FilledOf(area, *gauge));
  draw(ColorOf(*gauge, Word::BackColor));
}

// --- Bars that the user moves

namespace {

/// Names of the properties, by class: what the bar is called and how far it goes at once.
struct SliderRow {
  ObjectClass Class;
  Word Upright;  ///< 0 lies, 1 stands
  Word Step;
  Word Page;
};
constexpr SliderRow kSliders[] = {
    {ObjectClass::QTrackBar, Word::Orientation, Word::LineSize, Word::PageSize},
    {ObjectClass::QScrollBar, Word::Kind, Word::SmallChange, Word::LargeChange},
};

const SliderRow& RowOf(const ObjectRecord& bar) {
  return bar.Is(kSliders[0].Class) ? kSliders[0] : kSliders[1];
}

/// A track bar with the range that the program marks.
class TrackBar final : public QSlider {
 public:
  void Mark(int from, int to) {
    from_ = from;
    to_ = to;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QSlider::paintEvent(event);
    if (to_ <= from_) return;
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto part = [&](QStyle::SubControl control) {
      return style()->subControlRect(QStyle::CC_Slider, &option, control, this);
    };
    const QRect groove = part(QStyle::SC_SliderGroove);
    const QRect thumb = part(QStyle::SC_SliderHandle);
    const bool lies = orientation() == Qt::Horizontal;
    const int length = lies ? thumb.width() : thumb.height();
    const int span = (lies ? groove.width() : groove.height()) - length;
    const auto at = [&](int value) {
      return length / 2 + QStyle::sliderPositionFromValue(minimum(), maximum(),
                                                          std::clamp(value, minimum(), maximum()),
                                                          span, option.upsideDown);
    };
    const int first = std::min(at(from_), at(to_));
    const int size = std::abs(at(to_) - at(from_)) + 1;
    constexpr int kWidth = 4;
    const QPoint middle = groove.center();
    QRect marked(groove.x() + first, middle.y() - kWidth / 2, size, kWidth);
    if (!lies) marked = QRect(middle.x() - kWidth / 2, groove.y() + first, kWidth, size);
    QPainter painter(this);
    painter.setClipRegion(QRegion(rect()) - QRegion(thumb));
    painter.fillRect(marked, palette().color(QPalette::Highlight));
  }

 private:
  int from_ = 0;
  int to_ = 0;
};

/// The toolkit's scroll bar is made for areas: lying, it goes the other way with the arrow keys.
class ScrollBar final : public QScrollBar {
 public:
  /// How much of the range the thumb stands for; 0: what a press beside it moves by.
  void SetThumb(int size) {
    thumb_ = size;
    update();
  }

 protected:
  void initStyleOption(QStyleOptionSlider* option) const override {
    QScrollBar::initStyleOption(option);
    if (thumb_ > 0) option->pageStep = thumb_;
  }
  void keyPressEvent(QKeyEvent* event) override {
    const bool right = event->key() == Qt::Key_Right;
    if (orientation() == Qt::Horizontal && (right || event->key() == Qt::Key_Left)) {
      triggerAction(right ? SliderSingleStepAdd : SliderSingleStepSub);
    } else {
      QScrollBar::keyPressEvent(event);
    }
  }

 private:
  int thumb_ = 0;
};

QAbstractSlider* MakeSlider(const ObjectRecord& bar) {
  if (bar.Is(ObjectClass::QTrackBar)) return new TrackBar;
  auto* const made = new ScrollBar;
  made->setContextMenuPolicy(Qt::NoContextMenu);
  return made;
}

}  // namespace

SliderView::SliderView(Stage& stage, const ObjectRecord& bar)
    : TableView(stage, bar, MakeSlider(bar), WidgetEvents::Mouse::Own) {
  Bar().setFocusPolicy(Qt::StrongFocus);
  connect(&Bar(), &QAbstractSlider::valueChanged, this, [this](int position) { Moved(position); });
}

QAbstractSlider& SliderView::Bar() const {
  return *static_cast<QAbstractSlider*>(Widget());
}

void SliderView::Moved(int position) {
  if (showing_) return;
  stage().Report([this, position] {
    stage().World().UserSet(Id(), Word::Position, Value::Integer(position));
  });
}

void SliderView::ShowRange(const ObjectRecord& bar) {
  const SliderRow& row = RowOf(bar);
  showing_ = true;
  Bar().setRange(NumberOf(bar, Word::Min), NumberOf(bar, Word::Max));
  Bar().setSingleStep(std::max(1, NumberOf(bar, row.Step)));
  Bar().setPageStep(std::max(1, NumberOf(bar, row.Page)));
  Bar().setValue(NumberOf(bar, Word::Position));
  showing_ = false;
  if (auto* const scroll = dynamic_cast<ScrollBar*>(&Bar())) {
    scroll->SetThumb(NumberOf(bar, Word::PageSize));
  }
  if (auto* const track = dynamic_cast<TrackBar*>(&Bar())) {
    track->Mark(NumberOf(bar, Word::SelStart), NumberOf(bar, Word::SelEnd));
  }
}

void SliderView::ShowLayout(const ObjectRecord& bar) {
  constexpr std::int64_t kNoTicks = 2;
  const bool upright = bar.Number(RowOf(bar).Upright) == 1;
  Bar().setOrientation(upright ? Qt::Vertical : Qt::Horizontal);
  auto* const track = qobject_cast<QSlider*>(&Bar());
  if (track == nullptr) return;
  // A track bar that stands has its greatest position below.
  track->setInvertedAppearance(upright);
  constexpr QSlider::TickPosition kSides[] = {QSlider::TicksBelow, QSlider::TicksAbove,
                                              QSlider::TicksBothSides};
  const std::int64_t marks = bar.Number(Word::TickMarks);
  const bool none = bar.Number(Word::TickStyle) == kNoTicks;
  track->setTickPosition(none ? QSlider::NoTicks : kSides[marks >= 0 && marks < 3 ? marks : 0]);
  track->setTickInterval(std::max(1, NumberOf(bar, Word::Frequency)));
}

// --- Status bars

StatusView::StatusView(Stage& stage, const ObjectRecord& bar)
    : TableView(stage, bar, new PaintedFace<StatusView>(*this), WidgetEvents::Mouse::Plain) {}

void StatusView::ShowItems(const ObjectRecord& bar, const objects::ItemsChange& /*change*/) {
  ShowTexts(bar);
}

void StatusView::ShowTexts(const ObjectRecord& /*bar*/) {
  Widget()->update();
}

void StatusView::Paint(QPainter& painter) const {
  constexpr int kAbove = 2;
  constexpr int kGap = 2;
  constexpr int kTextLeft = 3;
  constexpr int kGrip = 14;
  const ObjectRecord* const bar = Record();
  if (bar == nullptr) return;
  const QRect rect = Widget()->rect();
  painter.fillRect(rect, PaperOf(*bar));
  const QColor ink = looks::ColorOf(static_cast<std::int32_t>(stage().World().FontOf(*bar).Color));
  const auto draw = [&](const QRect& panel, std::string_view text, bool edge) {
    if (edge) looks::DrawFrame(painter, panel, looks::kShadow, looks::kLight);
    looks::DrawFaceText(painter, stage().Texts(), panel.adjusted(kTextLeft, 0, -1, 0),
                        {text, stage().FontOf(*bar), ink, true}, Qt::AlignVCenter,
                        looks::TextFlow::Plain);
  };
  const auto* const panels = bar->As<objects::Panels>();
  const QRect row = rect.adjusted(0, kAbove, 0, 0);
  if (bar->Truth(Word::SimplePanel) || panels == nullptr || panels->All.empty()) {
    draw(row, bar->Text(Word::SimpleText), bar->Truth(Word::SimplePanel));
  } else {
    int left = 0;
    for (std::size_t i = 0; i < panels->All.size(); ++i) {
      const ObjectRecord* const panel = stage().World().Find(panels->All[i]);
      if (panel == nullptr) continue;
      const bool last = i + 1 == panels->All.size();
      const int width = std::clamp(NumberOf(*panel, Word::Width), 0, row.width());
      const int right = last ? row.right() + 1 : std::min(left + width, row.right() + 1);
      draw(QRect(left, row.y(), right - left, row.height()), panel->Text(Word::Caption), true);
      left = right + kGap;
    }
  }
  if (!bar->Truth(Word::SizeGrip)) return;
  for (int i = 2; i < kGrip; ++i) {
    if (i % 4 == 0) continue;
    painter.setPen(i % 4 == 1 ? looks::kLight : looks::kShadow);
    painter.drawLine(rect.right() - i, rect.bottom() - 1, rect.right() - 1, rect.bottom() - i);
  }
}

}  // namespace tarnwick::run
