// Edges and marks of the classic look that generated programs have.
#pragma once

#include <QColor>
#include <QRect>

class QPainter;

namespace tarnwick::looks {

inline constexpr QColor kFace{0xC0, 0xC0, 0xC0};
inline constexpr QColor kLight{0xFF, 0xFF, 0xFF};
inline constexpr QColor kInnerLight{0xDF, 0xDF, 0xDF};
inline constexpr QColor kShadow{0x80, 0x80, 0x80};
inline constexpr QColor kDarkShadow{0x00, 0x00, 0x00};
inline constexpr QColor kGreyText{0x80, 0x80, 0x80};

/// A one-pixel frame, one colour for left and top, the other for right and bottom.
void DrawFrame(QPainter& painter, const QRect& rect, const QColor& top_left,
               const QColor& bottom_right);
/// The two-pixel edge of a raised button; the face is filled with `face`.
void DrawRaised(QPainter& painter, const QRect& rect, const QColor& face);
/// The two-pixel edge of a field that lies in; the inside is filled with `paper`.
void DrawSunken(QPainter& painter, const QRect& rect, const QColor& paper);
/// A field with a one-pixel line around it.
void DrawFlat(QPainter& painter, const QRect& rect, const QColor& paper);
/// The 13 by 13 box of a check box, checked or not.
void DrawCheckBox(QPainter& painter, const QPoint& top_left, bool checked, bool enabled);
/// The round mark of an option button.
void DrawOption(QPainter& painter, const QPoint& top_left, bool chosen, bool enabled);
/// A triangle that points down, as on the button of a combo box.
void DrawDropArrow(QPainter& painter, const QRect& button, const QColor& color);

}  // namespace tarnwick::looks
