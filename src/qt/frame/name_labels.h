// The program's picture and name, as the logo and About show them.
#pragma once

class QLabel;
class QWidget;

namespace tarnwick {

/// The program's picture, 64 pixels square and sharp on every screen.
[[nodiscard]] QLabel* MakePictureLabel(QWidget* parent);
/// The program's name, larger than the parent's font by this factor.
[[nodiscard]] QLabel* MakeNameLabel(double scale, QWidget* parent);

}  // namespace tarnwick
