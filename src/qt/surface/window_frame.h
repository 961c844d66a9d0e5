// The frame of a design window: where its parts are, and how they are painted.
#pragma once

#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QString>

#include "looks/frame_metrics.h"

class QPainter;
class QWidget;

namespace tarnwick {

enum class FramePart { None, Title, Minimise, Maximise, Close };

/// The frame of a window of a size. Positions are pixels of the window.
struct WindowFrame {
  looks::FrameMetrics Metrics;
  bool Buttons = true;
  bool Minimise = true;
  bool Maximise = true;
  bool Fixed = false;  ///< no edge can be dragged now
  QSize Size;

  /// Empty for a button that the frame lacks.
  [[nodiscard]] QRect ButtonRect(FramePart part) const;
  [[nodiscard]] FramePart PartAt(const QPoint& place) const;
  /// The edges that a drag from a position moves.
  [[nodiscard]] Qt::Edges EdgesAt(const QPoint& place) const;
};

/// What a frame shows beside its parts.
struct FrameLook {
  bool Current = false;  ///< of the current form
  bool Maximised = false;
  FramePart Hovered = FramePart::None;
  QString Caption;
  const QPixmap* Icon = nullptr;  ///< null for the icon of every form
};

void PaintFrame(QPainter& painter, const QWidget& window, const WindowFrame& frame,
                const FrameLook& look);

}  // namespace tarnwick
