// How a whole design form is painted.
#pragma once

#include <QPixmap>
#include <QRect>

#include "model/design_form.h"
#include "model/project_records.h"
#include "qt/surface/object_painter.h"

class QPainter;

namespace tarnwick {

/// Paints the client area of a design form. Only what meets the exposed rectangle is drawn.
class FormPainter {
 public:
  FormPainter(looks::PictureCache& pictures, TextCache& texts)
      : pictures_(pictures), objects_(pictures, texts) {}

  /// Background, dots, windowless objects, windowed objects, handles. `record` may be null.
  void Paint(QPainter& painter, const DesignForm& form, const FormRec* record,
             const QRect& exposed);

 private:
  void PaintGround(QPainter& painter, const DesignForm& form, const QRect& exposed);
  void PaintObjects(QPainter& painter, const DesignForm& form, const FormRec* record,
                    const QRect& exposed);
  void PaintHandles(QPainter& painter, const DesignForm& form);

  looks::PictureCache& pictures_;
  ObjectPainter objects_;
  QPixmap dots_;
};

}  // namespace tarnwick
