// How an object is painted on a design form.
#pragma once

#include <QRect>
#include <cstdint>
#include <string_view>

#include "looks/picture_cache.h"
#include "model/design_control.h"
#include "model/project_records.h"
#include "qt/surface/text_cache.h"

class QPainter;

namespace tarnwick {

/// A control's rectangle in pixels of the form.
[[nodiscard]] QRect PixelRectOf(const DesignControl& control) noexcept;

/// Paints design controls as the generated program shows them, in the classic look of its
/// platform and whatever the theme of the desktop. The painter's origin is the form's.
class ObjectPainter {
 public:
  ObjectPainter(looks::PictureCache& pictures, TextCache& texts)
      : pictures_(pictures), texts_(texts) {}

  /// Paints one object. `form` holds what the control cannot carry; null reads as defaults. An
  /// object that the program will not show is painted faint, one that takes no input in grey.
  void Paint(QPainter& painter, const DesignControl& control, const FormRec* form);

 private:
  void PaintKind(QPainter& painter, const QRect& rect, const DesignControl& control,
                 const FormRec* form, const ObjectRec* record);
  void PaintButton(QPainter& painter, const QRect& rect, const DesignControl& control,
                   const ObjectRec* record);
  void PaintLabel(QPainter& painter, const QRect& rect, const DesignControl& control);
  void PaintImage(QPainter& painter, const QRect& rect, const DesignControl& control);
  void PaintMark(QPainter& painter, const QRect& rect, const DesignControl& control, bool option);
  void PaintText(QPainter& painter, const QRect& rect, const DesignControl& control);
  void PaintList(QPainter& painter, const QRect& rect, const DesignControl& control);
  void PaintCombo(QPainter& painter, const QRect& rect, const DesignControl& control);
  void PaintHtml(QPainter& painter, const QRect& rect, const DesignControl& control,
                 const FormRec* form);
  void PaintFrame(QPainter& painter, const QRect& rect, const DesignControl& control);
  void PaintSmall(QPainter& painter, const QRect& rect, const DesignControl& control);
  void DrawCaption(QPainter& painter, const QRect& area, const DesignControl& control,
                   const QColor& color, Qt::Alignment alignment, TextFlow flow);
  void DrawText(QPainter& painter, const QRect& area, const DesignControl& control,
                std::string_view text, const QColor& color, Qt::Alignment alignment, TextFlow flow);

  looks::PictureCache& pictures_;
  TextCache& texts_;
  bool enabled_ = true;  ///< the object being painted takes input in the program
};

}  // namespace tarnwick
