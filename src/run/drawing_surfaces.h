// What programs draw on forms, images and bitmaps.
#pragma once

#include <QBitmap>
#include <QImage>
#include <QPixmap>
#include <QPoint>
#include <span>
#include <unordered_map>

#include "run/object_view.h"

class QPainter;

namespace tarnwick::run {

/// Keeps a picture for each object on which was drawn, or which shows one: a drawing lasts until
/// another picture is assigned. Positions are pixels of the picture.
class DrawingSurfaces {
 public:
  explicit DrawingSurfaces(Stage& stage) : stage_(stage) {}

  /// Another picture was assigned: it takes the place of what was drawn.
  void PropertyChanged(const ObjectRecord& object, Word property);
  /// Carries out a drawing method; false when it is none, or the class cannot be drawn on.
  bool Invoke(const ObjectRecord& object, Word method, std::span<Value> arguments, Value& result);
  /// Pixel(x, y); false for every other property.
  bool Live(const ObjectRecord& object, Word property, std::span<const Value> index, Value& out);
  /// What ShapeForm left of a window; null for one with its whole area.
  [[nodiscard]] QBitmap ShapeOf(ObjectId form) const;
  /// Gives an object an empty surface of at least this size.
  void Prepare(ObjectId object, const QSize& size);
  void Forget(ObjectId object) { surfaces_.erase(object); }
  /// The object is gone.
  void Drop(ObjectId object) {
    Forget(object);
    shapes_.erase(object);
  }

  /// The picture that an object shows: what was drawn on it, else what was assigned. Null when it
  /// has none.
  [[nodiscard]] QPixmap Shown(const ObjectRecord& object);
  /// The picture that was assigned to an object by file or resource; null when it has none.
  [[nodiscard]] const QPixmap& PictureOf(const ObjectRecord& object) const;
  /// The picture of an object as its file has it.
  [[nodiscard]] QImage ToSave(const ObjectRecord& object);
  /// Paints what was drawn on an object; nothing when that is nothing.
  void Paint(QPainter& painter, ObjectId object, const QPoint& at) const;
  /// The surface of an object, made when it has none yet; at least as large as the object.
  [[nodiscard]] QImage& At(const ObjectRecord& object);
  /// The picture of an argument: an object's, a resource's or a file's.
  [[nodiscard]] QPixmap PictureOf(const Value& value);
  [[nodiscard]] Stage& Owner() const { return stage_; }

 private:
  Stage& stage_;
  std::unordered_map<ObjectId, QImage> surfaces_;
  std::unordered_map<ObjectId, QBitmap> shapes_;  ///< of windows
};

}  // namespace tarnwick::run
