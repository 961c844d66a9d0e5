#include "run/drawing_surfaces.h"

#include <QPainter>
#include <algorithm>

#include "looks/platform_colors.h"
#include "run/drawing_methods.h"
#include "run/stage.h"

namespace tarnwick::run {
namespace {

constexpr int kLargestSide = 16'384;

/// The classes that have a surface of their own.
constexpr ObjectClass kDrawn[] = {
    ObjectClass::QForm,    ObjectClass::QImage,      ObjectClass::QCanvas,  ObjectClass::QBitmap,
    ObjectClass::QListBox, ObjectClass::QStringGrid, ObjectClass::QComboBox};
/// The properties that assign a picture.
constexpr Word kPictures[] = {Word::Bmp, Word::BMPHandle, Word::Icon, Word::IcoHandle};

bool CanBeDrawnOn(const ObjectRecord& object) {
  return std::any_of(std::begin(kDrawn), std::end(kDrawn),
                     [&](ObjectClass kind) { return object.Is(kind); });
}

QSize SizeOf(const ObjectRecord& object) {
  const auto side = [&](Word word) {
    return static_cast<int>(std::clamp<std::int64_t>(object.Number(word), 1, kLargestSide));
  };
  return {side(Word::Width), side(Word::Height)};
}

/// A bitmap of black and white: colours drawn on it are read as the nearer of the two.
bool IsMonochrome(const ObjectRecord& object) {
  constexpr std::int64_t kOneBit = 1;
  return object.Truth(Word::Monochrome) || object.Number(Word::PixelFormat) == kOneBit;
}

QImage Reduced(const ObjectRecord& object, const QImage& picture) {
  if (!IsMonochrome(object)) return picture;
  return picture.convertToFormat(QImage::Format_Mono, Qt::MonoOnly | Qt::ThresholdDither);
}

}  // namespace

void DrawingSurfaces::PropertyChanged(const ObjectRecord& object, Word property) {
  const bool picture =
      std::find(std::begin(kPictures), std::end(kPictures), property) != std::end(kPictures);
  if (!picture || object.Is(ObjectClass::QForm)) return;
  const Value& value = object.At(property);
  const QPixmap assigned = PictureOf(value);
  if (assigned.isNull()) {
    surfaces_.erase(object.Id);
  } else {
    surfaces_[object.Id] = assigned.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
  }
}

void DrawingSurfaces::Prepare(ObjectId object, const QSize& size) {
  const ObjectRecord* const record = stage_.RecordOf(object);
  if (record == nullptr) return;
  const QSize fitted =
      SizeOf(*record).expandedTo(size).boundedTo(QSize(kLargestSide, kLargestSide));
  surfaces_[object] = QImage(fitted, QImage::Format_ARGB32_Premultiplied);
  surfaces_[object].fill(Qt::transparent);
}

QImage DrawingSurfaces::ToSave(const ObjectRecord& object) {
  const QImage kept = Reduced(object, At(object));
  return IsMonochrome(object) ? kept : kept.convertToFormat(QImage::Format_RGB32);
}

const QPixmap& DrawingSurfaces::PictureOf(const ObjectRecord& object) const {
  static const QPixmap kNone;
  for (const Word word : kPictures) {
    const Value& value = object.At(word);
    const std::string_view file = value.Kind() == basic::SlotKind::Text
                                      ? value.View()
                                      : stage_.World().ResourceFile(value.AsInteger());
    if (!file.empty()) return stage_.Pictures().At(file);
  }
  return kNone;
}

QPixmap DrawingSurfaces::PictureOf(const Value& value) {
  if (const ObjectRecord* const other = stage_.World().Find(value.AsObject())) {
    return Shown(*other);
  }
  const bool named = value.Kind() == basic::SlotKind::Text;
  const std::string_view file =
      named ? value.View() : stage_.World().ResourceFile(value.AsInteger());
  return file.empty() ? QPixmap() : stage_.Pictures().At(file);
}

QPixmap DrawingSurfaces::Shown(const ObjectRecord& object) {
  const auto found = surfaces_.find(object.Id);
  if (found != surfaces_.end()) return QPixmap::fromImage(Reduced(object, found->second));
  const ObjectRecord* const other = stage_.World().Find(object.Object(Word::Bmp));
  if (other != nullptr && other != &object) return Shown(*other);
  return PictureOf(object);
}

QImage& DrawingSurfaces::At(const ObjectRecord& object) {
  const auto found = surfaces_.find(object.Id);
  const bool grows = object.Is(ObjectClass::QForm) || object.Is(ObjectClass::QCanvas);
  if (found != surfaces_.end()) {
    const QSize wanted = found->second.size().expandedTo(SizeOf(object));
    if (grows && wanted != found->second.size()) {
      found->second = found->second.copy(QRect(QPoint(), wanted));
    }
    return found->second;
  }
  const QPixmap picture = object.Is(ObjectClass::QForm) ? QPixmap() : Shown(object);
  QImage surface;
  if (picture.isNull()) {
    surface = QImage(SizeOf(object), QImage::Format_ARGB32_Premultiplied);
    surface.fill(object.Is(ObjectClass::QBitmap) ? Qt::white : Qt::transparent);
  } else {
    surface = picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
  }
  return surfaces_[object.Id] = std::move(surface);
}

void DrawingSurfaces::Paint(QPainter& painter, ObjectId object, const QPoint& at) const {
  const auto found = surfaces_.find(object);
  if (found != surfaces_.end()) painter.drawImage(at, found->second);
}

bool DrawingSurfaces::Invoke(const ObjectRecord& object, Word method, std::span<Value> arguments,
                             Value& result) {
  if (!CanBeDrawnOn(object)) return false;
  if (method == Word::ShapeForm && arguments.size() == 2) {
    const QPixmap picture = PictureOf(arguments[0]);
    const QColor gap = looks::ColorOf(static_cast<std::int32_t>(arguments[1].AsInteger()));
    shapes_[object.Id] = picture.createMaskFromColor(gap.rgb(), Qt::MaskInColor);
  } else if (!DrawByMethod(*this, object, method, arguments, result))
    return false;
  if (ObjectView* const view = stage_.ViewOf(object.Id)) view->ShowDrawing();
  return true;
}

QBitmap DrawingSurfaces::ShapeOf(ObjectId form) const {
  const auto found = shapes_.find(form);
  return found == shapes_.end() ? QBitmap() : found->second;
}

bool DrawingSurfaces::Live(const ObjectRecord& object, Word property, std::span<const Value> index,
                           Value& out) {
  if (property != Word::Pixel || index.size() < 2 || !CanBeDrawnOn(object)) return false;
  const QImage& surface = At(object);
  const QPoint at(static_cast<int>(index[0].AsInteger()), static_cast<int>(index[1].AsInteger()));
  if (!surface.rect().contains(at)) {
    out = Value::Integer(-1);
    return true;
  }
  QColor color = Reduced(object, surface.copy(QRect(at, QSize(1, 1)))).pixelColor(0, 0);
  // Where nothing was drawn the ground is to be seen.
  if (color.alpha() == 0) {
    color = looks::ColorOf(static_cast<std::int32_t>(object.Number(Word::Color)));
  }
  out = Value::Integer(looks::NumberOf(color));
  return true;
}

}  // namespace tarnwick::run
