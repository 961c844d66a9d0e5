#include "run/views/face_views.h"

#include <QBitmap>
#include <QPainter>

#include "looks/object_faces.h"
#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/drawing_surfaces.h"
#include "run/stage.h"
#include "run/views/fields.h"
#include "run/views/painted_face.h"

namespace tarnwick::run {
namespace {

constexpr std::int64_t kRaised = 1;
constexpr std::int64_t kLowered = 2;

constexpr Qt::Alignment kAcross[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
constexpr Qt::Alignment kDown[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};

Qt::Alignment Picked(const Qt::Alignment (&from)[3], std::int64_t number) {
  return from[number >= 0 && number < 3 ? number : 0];
}

}  // namespace

LabelView::LabelView(Stage& stage, const ObjectRecord& label)
    : TableView(stage, label, new PaintedFace<LabelView>(*this), WidgetEvents::Mouse::Plain) {}

void LabelView::ShowCaption(const ObjectRecord& label) {
  Widget()->setAccessibleName(looks::ToQString(label.Text(Word::Caption)));
  Widget()->update();
}

void LabelView::Paint(QPainter& painter) const {
  const ObjectRecord* const label = Record();
  if (label == nullptr) return;
  const QColor ink =
      looks::ColorOf(static_cast<std::int32_t>(stage().World().FontOf(*label).Color));
  looks::LabelFace face;
  face.Wraps = label->Truth(Word::WordWrap);
  face.Place =
      Picked(kAcross, label->Number(Word::Alignment)) | Picked(kDown, label->Number(Word::Layout));
  if (!label->Truth(Word::Transparent)) {
    face.Ground = looks::ColorOf(static_cast<std::int32_t>(label->Number(Word::Color)));
  }
  const auto draw = [&](const QPoint& by, const QColor& color) {
    looks::DrawLabelFace(
        painter, stage().Texts(), Widget()->rect().translated(by),
        {label->Text(Word::Caption), stage().FontOf(*label), color, Widget()->isEnabled()}, face);
  };
  // The letters of a raised label are lit from above on the left, those of a lowered one shaded.
  const std::int64_t style = label->Number(Word::LabelStyle);
  if (style == kRaised || style == kLowered) {
    if (face.Ground) painter.fillRect(Widget()->rect(), *face.Ground);
    face.Ground.reset();
    const int up = style == kRaised ? -1 : 1;
    const auto color = [&](Word word) {
      return looks::ColorOf(static_cast<std::int32_t>(label->Number(word)));
    };
    draw(QPoint(up, up), color(Word::UpperColor));
    draw(QPoint(-up, -up), color(Word::LowerColor));
  }
  draw(QPoint(), ink);
}

ImageView::ImageView(Stage& stage, const ObjectRecord& image)
    : TableView(stage, image, new PaintedFace<ImageView>(*this), WidgetEvents::Mouse::Plain) {}

void ImageView::ShowPicture(const ObjectRecord& image) {
  Widget()->update();
  if (!image.Truth(Word::AutoSize)) return;
  const QPixmap picture = stage().Surfaces().Shown(image);
  if (picture.isNull() || picture.size() == Widget()->size()) return;
  Widget()->resize(picture.size());
  stage().Report([this, size = picture.size()] {
    stage().World().UserSet(Id(), Word::Width, Value::Integer(size.width()));
    stage().World().UserSet(Id(), Word::Height, Value::Integer(size.height()));
  });
}

void ImageView::ShowGround(const ObjectRecord& image) {
  // A canvas is painted when it appears; what is drawn then lasts until its picture changes.
  if (!image.Is(ObjectClass::QCanvas)) return;
  QMetaObject::invokeMethod(
      this, [this] { stage().Raise(Id(), Word::OnPaint); }, Qt::QueuedConnection);
}

bool ImageView::Invoke(const ObjectRecord& image, const MemberInfo& method,
                       std::span<Value> arguments, Value& result) {
  const bool repaints = method.Name == Word::Repaint && image.Is(ObjectClass::QCanvas);
  const bool done = WidgetView::Invoke(image, method, arguments, result);
  if (repaints) stage().Raise(Id(), Word::OnPaint);
  return done;
}

void ImageView::Paint(QPainter& painter) const {
  const ObjectRecord* const image = Record();
  if (image == nullptr) return;
  if (image->Is(ObjectClass::QCanvas)) painter.fillRect(Widget()->rect(), PaperOf(*image));
  QPixmap picture = stage().Surfaces().Shown(*image);
  if (picture.isNull()) return;
  if (image->Truth(Word::Transparent)) {
    // The colour of the lower left corner is that of the ground.
    const QImage pixels = picture.toImage();
    const QRgb ground = pixels.pixel(0, pixels.height() - 1);
    picture.setMask(QBitmap::fromImage(pixels.createMaskFromColor(ground, Qt::MaskOutColor)));
  }
  QRect area = Widget()->rect();
  if (image->Truth(Word::Center) && !image->Truth(Word::Stretch)) {
    const QSize rest = (area.size() - picture.size()).expandedTo(QSize(0, 0));
    area.translate(rest.width() / 2, rest.height() / 2);
  }
  looks::DrawImageFace(painter, area, picture, image->Truth(Word::Stretch));
}

}  // namespace tarnwick::run
