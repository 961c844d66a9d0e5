// The faces of the objects of a form: what the design form paints and the running program shows.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <cstdint>
#include <optional>
#include <string_view>

#include "looks/form_texts.h"

class QPainter;

namespace tarnwick::looks {

inline constexpr int kMarkSize = 13;  ///< side of the box of a check box
inline constexpr int kMarkGap = 4;    ///< between the box and its caption
inline constexpr int kFieldLeft = 4;  ///< from the edge of a field to its text
inline constexpr int kFieldTop = 3;
inline constexpr int kListEdge = 2;      ///< of a list, around its rows
inline constexpr int kListTextLeft = 2;  ///< from the left of a row to its text
inline constexpr int kArrowButton = 16;  ///< width of the button of a drop-down list

/// A text with all that its drawing needs. A disabled one is grey with a light shade.
struct FaceText {
  std::string_view Text;
  const FormFont& Font;
  QColor Color;
  bool Enabled = true;
};

/// Where a picture stands on a button.
enum class PictureSide : std::uint8_t { Left, Right, Above, Below };

struct ButtonFace {
  const QPixmap* Picture = nullptr;  ///< null: none
  PictureSide Side = PictureSide::Above;
  int Spacing = 4;  ///< pixels between picture and caption
  bool Default = false;
  bool Down = false;
  bool Flat = false;  ///< without an edge
  QColor Face{0xC0, 0xC0, 0xC0};
};

struct LabelFace {
  bool Wraps = false;
  std::optional<QColor> Ground;  ///< nothing: the form shows through
  Qt::Alignment Place = Qt::AlignLeft;
};

enum class FieldEdge : std::uint8_t { None, Flat, Sunken };

/// Draws a text within an area and cuts off what does not fit.
void DrawFaceText(QPainter& painter, FormTexts& texts, const QRect& area, const FaceText& text,
                  Qt::Alignment alignment, TextFlow flow);
void DrawButtonFace(QPainter& painter, FormTexts& texts, const QRect& rect, const FaceText& caption,
                    const ButtonFace& face);
/// Pixels that the text of a label takes; `width` counts where it wraps.
[[nodiscard]] QSize LabelSize(FormTexts& texts, std::string_view text, const FormFont& font,
                              bool wraps, int width);
void DrawLabelFace(QPainter& painter, FormTexts& texts, const QRect& rect, const FaceText& caption,
                   const LabelFace& face);
/// Where the box of a check box or the mark of an option button is: left of its text, or right.
[[nodiscard]] QPoint MarkPlace(const QRect& rect, bool text_left = false);
void DrawMarkFace(QPainter& painter, FormTexts& texts, const QRect& rect, const FaceText& caption,
                  bool option, bool checked, const QColor& ground = QColor(0xC0, 0xC0, 0xC0),
                  bool text_left = false);
/// A button that is as round as its rectangle allows.
void DrawOvalFace(QPainter& painter, FormTexts& texts, const QRect& rect, const FaceText& caption,
                  const ButtonFace& face);
/// A field without its text.
void DrawField(QPainter& painter, const QRect& rect, FieldEdge edge, const QColor& paper);
/// The button of a drop-down list within the list's rectangle.
[[nodiscard]] QRect ArrowButtonOf(const QRect& rect);
/// A drop-down list without its text.
void DrawComboFace(QPainter& painter, const QRect& rect, const QColor& paper, bool enabled,
                   bool down = false);
/// The area of the text of a drop-down list.
[[nodiscard]] QRect ComboTextOf(const QRect& rect);
/// A picture at the upper left corner, cut off at the edges; or stretched over all of `rect`.
void DrawImageFace(QPainter& painter, const QRect& rect, const QPixmap& picture, bool stretched);

}  // namespace tarnwick::looks
