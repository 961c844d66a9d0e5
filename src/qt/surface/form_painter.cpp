#include "qt/surface/form_painter.h"

#include <QPainter>
#include <QtGlobal>

#include "designer/drag.h"
#include "designer/grid.h"
#include "designer/hit_test.h"
#include "looks/classic_look.h"
#include "looks/platform_colors.h"

namespace tarnwick {

namespace {

/// One tile holds many dots, so that a whole window takes few copies.
constexpr int kTileSteps = 16;

QPixmap DotTile(qreal ratio) {
  const int side = kGridStep * kTileSteps;
  QPixmap tile(QSize(side, side) * ratio);
  tile.setDevicePixelRatio(ratio);
  tile.fill(Qt::transparent);
  QPainter painter(&tile);
  for (int y = 0; y < side; y += kGridStep) {
    for (int x = 0; x < side; x += kGridStep) painter.fillRect(x, y, 1, 1, Qt::black);
  }
  return tile;
}

}  // namespace

void FormPainter::Paint(QPainter& painter, const DesignForm& form, const FormRec* record,
                        const QRect& exposed) {
  PaintGround(painter, form, exposed);
  PaintObjects(painter, form, record, exposed);
  PaintHandles(painter, form);
}

void FormPainter::PaintGround(QPainter& painter, const DesignForm& form, const QRect& exposed) {
  painter.fillRect(exposed, looks::ColorOf(form.BackColor));
  if (!form.WindowPicture.empty()) {
    const QPixmap& picture = pictures_.At(form.WindowPicture);
    if (!picture.isNull()) painter.drawPixmap(0, 0, picture);
  }
  const QRect grid = exposed & QRect(0, 0, kGridWidth + 1, kGridHeight + 1);
  if (grid.isEmpty()) return;
  const qreal ratio = painter.device()->devicePixelRatioF();
  if (dots_.isNull() || !qFuzzyCompare(dots_.devicePixelRatio(), ratio)) dots_ = DotTile(ratio);
  // The tile begins at the last dot line at or before the exposed corner.
  painter.drawTiledPixmap(grid, dots_, QPointF(grid.x() % kGridStep, grid.y() % kGridStep));
}

void FormPainter::PaintObjects(QPainter& painter, const DesignForm& form, const FormRec* record,
                               const QRect& exposed) {
  for (const ControlRef& control : PaintOrder(form)) {
    // A label that sizes itself may reach beyond its rectangle.
    const bool spreads = control->Id == Kind::Label && control->AutoSize;
    if (!spreads && !PixelRectOf(*control).intersects(exposed)) continue;
    objects_.Paint(painter, *control, record);
  }
}

void FormPainter::PaintHandles(QPainter& painter, const DesignForm& form) {
  static const QColor accent(0x0F, 0x76, 0x6E);
  // A locked form has no handles, but what is selected is still to be seen.
  if (!form.m_bDesignMode && form.ControlSel) {
    const QRect rect = PixelRectOf(*form.ControlSel).adjusted(-2, -2, 2, 2);
    looks::DrawFrame(painter, rect, accent, accent);
    looks::DrawFrame(painter, rect.adjusted(1, 1, -1, -1), looks::kLight, looks::kLight);
  }
  for (int i = 0; i < kHandleCount; ++i) {
    const ControlRef handle = form.Element(Kind::Handle, i);
    if (!handle || !handle->Visible) continue;
    const QRect rect = PixelRectOf(*handle);
    looks::DrawFrame(painter, rect, looks::kLight, looks::kLight);
    painter.fillRect(rect.adjusted(1, 1, -1, -1), accent);
  }
}

}  // namespace tarnwick
