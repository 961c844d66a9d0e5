// The drawing methods of objects.
#pragma once

#include <QFont>
#include <QFontMetrics>

#include "run/drawing_surfaces.h"

namespace tarnwick::run {

/// Draws on the surface of an object; false when the method does not draw.
bool DrawByMethod(DrawingSurfaces& surfaces, const ObjectRecord& object, Word method,
                  std::span<Value> arguments, Value& result);
/// Draws on a page that is being printed, in its points; false when the method does not draw.
bool DrawOnPage(DrawingSurfaces& surfaces, const ObjectRecord& printer, QPainter& page, Word method,
                std::span<Value> arguments);
/// The font of the printer: its size is one of paper.
[[nodiscard]] QFont PageFontOf(Stage& stage, const ObjectRecord& printer);
/// The room that a text takes on a page; it may have several lines.
[[nodiscard]] QSize PageTextSize(const QFontMetrics& metrics, const QString& text);

}  // namespace tarnwick::run
