// Menus of the running program.
#pragma once

#include <QPoint>

#include "run/object_view.h"

class QMenuBar;

namespace tarnwick::run {

/// An empty menu strip in the look of the design form's.
[[nodiscard]] QMenuBar* MakeMenuStrip(QWidget* parent);
/// Fills a strip with the titles of a main menu; empties it without one. What is below a title is
/// made each time it opens, so that it shows what the handlers have changed.
void FillMenuStrip(Stage& stage, QMenuBar& strip, const ObjectRecord* menu);
/// Opens a popup menu at a position of the screen and waits until it is closed.
void OpenPopup(Stage& stage, ObjectId menu, const QPoint& at);

}  // namespace tarnwick::run
