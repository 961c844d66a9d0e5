// The points of what a widget shows.
#pragma once

#include <QColor>
#include <QWidget>
#include <functional>

namespace tarnwick::test {

/// How many points of a widget, as it is painted now, have a colour that fits.
[[nodiscard]] int PointsWhere(QWidget& widget, const std::function<bool(const QColor&)>& fits);
/// The same for one colour.
[[nodiscard]] int PointsOf(QWidget& widget, const QColor& color);

}  // namespace tarnwick::test
