#include "looks/object_faces.h"

#include <QPainter>
#include <algorithm>

#include "looks/classic_look.h"

namespace tarnwick::looks {

namespace {

/// The rectangles of picture and caption when both stand in the middle together.
struct ButtonParts {
  QRect Picture;
  QRect Caption;
};

ButtonParts Stacked(const QRect& inside, const QSize& picture, const ButtonFace& face,
                    const FaceText& caption) {
  const int text = caption.Text.empty() ? 0 : caption.Font.Metrics.height();
  const int gap = text > 0 ? face.Spacing : 0;
  const int top = inside.y() + std::max(0, (inside.height() - picture.height() - gap - text) / 2);
  const int left = inside.x() + (inside.width() - picture.width()) / 2;
  const QRect row(inside.x(), top, inside.width(), gap + text);
  if (face.Side == PictureSide::Above) {
    return {QRect(QPoint(left, top), picture), row.translated(0, picture.height()) & inside};
  }
  return {QRect(QPoint(left, top + gap + text), picture), row & inside};
}

ButtonParts SideBySide(const QRect& inside, const QSize& picture, const ButtonFace& face,
                       int text) {
  const int gap = text > 0 ? face.Spacing : 0;
  const int left = inside.x() + std::max(0, (inside.width() - picture.width() - gap - text) / 2);
  const int top = inside.y() + (inside.height() - picture.height()) / 2;
  if (face.Side == PictureSide::Left) {
    const QRect caption(left + picture.width() + gap, inside.y(), text, inside.height());
    return {QRect(QPoint(left, top), picture), caption & inside};
  }
  return {QRect(QPoint(left + text + gap, top), picture),
          QRect(left, inside.y(), text, inside.height()) & inside};
}

}  // namespace

void DrawFaceText(QPainter& painter, FormTexts& texts, const QRect& area, const FaceText& text,
                  Qt::Alignment alignment, TextFlow flow) {
  if (text.Text.empty() || area.isEmpty()) return;
  const LaidText& laid = texts.Lay(text.Text, text.Font, flow, area.width());
  int x = area.x();
  int y = area.y();
  if (alignment & Qt::AlignHCenter) x += (area.width() - laid.Width) / 2;
  if (alignment & Qt::AlignRight) x += area.width() - laid.Width;
  if (alignment & Qt::AlignVCenter) y += (area.height() - laid.Height) / 2;
  if (alignment & Qt::AlignBottom) y += area.height() - laid.Height;
  const bool clipped = laid.Width > area.width() || laid.Height > area.height();
  if (clipped) {
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
  }
  painter.setFont(text.Font.Font);
  const auto draw = [&](int shift, const QColor& ink) {
    painter.setPen(ink);
    painter.drawStaticText(x + shift, y + shift, laid.Text);
    if (laid.KeyWidth > 0) {
      painter.fillRect(x + shift + laid.KeyLeft, y + shift + laid.KeyTop, laid.KeyWidth, 1, ink);
    }
  };
  if (text.Enabled) {
    draw(0, text.Color);
  } else {
    draw(1, kLight);
    draw(0, kGreyText);
  }
  if (clipped) painter.restore();
}

void DrawButtonFace(QPainter& painter, FormTexts& texts, const QRect& rect, const FaceText& caption,
                    const ButtonFace& button) {
  QRect face = rect;
  if (button.Default) {
    DrawFrame(painter, rect, kDarkShadow, kDarkShadow);
    face.adjust(1, 1, -1, -1);
  }
  if (button.Flat && !button.Down) {
    painter.fillRect(face, button.Face);
  } else if (button.Down) {
    painter.fillRect(face, button.Face);
    DrawFrame(painter, face, kDarkShadow, kLight);
    DrawFrame(painter, face.adjusted(1, 1, -1, -1), kShadow, kInnerLight);
  } else {
    DrawRaised(painter, face, button.Face);
  }
  QRect inside = face.adjusted(3, 3, -3, -3);
  if (button.Down) inside.translate(1, 1);
  if (button.Picture != nullptr && !button.Picture->isNull()) {
    const QSize size = button.Picture->size().boundedTo(inside.size());
    const bool stacked = button.Side == PictureSide::Above || button.Side == PictureSide::Below;
    const int text =
        caption.Text.empty() || stacked
            ? 0
            : texts.Lay(caption.Text, caption.Font, TextFlow::Line, inside.width()).Width;
    const ButtonParts parts =
        stacked ? Stacked(inside, size, button, caption) : SideBySide(inside, size, button, text);
    painter.drawPixmap(parts.Picture.topLeft(), *button.Picture, QRect(QPoint(), size));
    inside = parts.Caption;
  }
  DrawFaceText(painter, texts, inside, caption, Qt::AlignCenter, TextFlow::Line);
}

QSize LabelSize(FormTexts& texts, std::string_view text, const FormFont& font, bool wraps,
                int width) {
  const LaidText& laid = texts.Lay(text, font, wraps ? TextFlow::Wrapped : TextFlow::Line, width);
  return {laid.Width, laid.Height};
}

void DrawLabelFace(QPainter& painter, FormTexts& texts, const QRect& rect, const FaceText& caption,
                   const LabelFace& face) {
  if (face.Ground) painter.fillRect(rect, *face.Ground);
  DrawFaceText(painter, texts, rect, caption, face.Place,
               face.Wraps ? TextFlow::Wrapped : TextFlow::Line);
}

QPoint MarkPlace(const QRect& rect, bool text_left) {
  const int left = text_left ? rect.right() + 1 - kMarkSize : rect.x();
  return {left, rect.y() + (rect.height() - kMarkSize) / 2};
}

void DrawMarkFace(QPainter& painter, FormTexts& texts, const QRect& rect, const FaceText& caption,
                  bool option, bool checked, const QColor& ground, bool text_left) {
  painter.fillRect(rect, ground);
  if (option) {
    DrawOption(painter, MarkPlace(rect, text_left), checked, caption.Enabled);
  } else {
    DrawCheckBox(painter, MarkPlace(rect, text_left), checked, caption.Enabled);
  }
  constexpr int kRoom = kMarkSize + kMarkGap;
  DrawFaceText(painter, texts, rect.adjusted(text_left ? 0 : kRoom, 0, text_left ? -kRoom : 0, 0),
               caption, Qt::AlignVCenter, TextFlow::Line);
}

void DrawOvalFace(QPainter& painter, FormTexts& texts, const QRect& rect, const FaceText& caption,
                  const ButtonFace& face) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF oval = QRectF(rect).adjusted(1, 1, -1, -1);
  painter.setBrush(face.Face);
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(oval);
  // Light from the upper left: two halves of the edge.
  constexpr int kQuarter = 45 * 16;
  constexpr int kHalf = 180 * 16;
  painter.setPen(QPen(face.Down ? kDarkShadow : kLight, 2));
  painter.drawArc(oval, kQuarter, kHalf);
  painter.setPen(QPen(face.Down ? kLight : kDarkShadow, 2));
  painter.drawArc(oval, kQuarter + kHalf, kHalf);
  painter.restore();
  QRect inside = rect.adjusted(4, 4, -4, -4);
  if (face.Down) inside.translate(1, 1);
  DrawFaceText(painter, texts, inside, caption, Qt::AlignCenter, TextFlow::Line);
}

void DrawField(QPainter& painter, const QRect& rect, FieldEdge edge, const QColor& paper) {
  switch (edge) {
    case FieldEdge::None:
      painter.fillRect(rect, paper);
      return;
    case FieldEdge::Flat:
      DrawFlat(painter, rect, paper);
      return;
    case FieldEdge::Sunken:
      DrawSunken(painter, rect, paper);
      return;
  }
}

QRect ArrowButtonOf(const QRect& rect) {
  const QRect inside = rect.adjusted(2, 2, -2, -2);
  const int width = std::min(kArrowButton, inside.width());
  return {inside.right() - width + 1, inside.y(), width, inside.height()};
}

QRect ComboTextOf(const QRect& rect) {
  const int button = ArrowButtonOf(rect).width();
  return rect.adjusted(2 + kListTextLeft, 2, -2 - button - 1, -2);
}

void DrawComboFace(QPainter& painter, const QRect& rect, const QColor& paper, bool enabled,
                   bool down) {
  DrawSunken(painter, rect, enabled ? paper : kFace);
  const QRect button = ArrowButtonOf(rect);
  if (down) {
    painter.fillRect(button, kFace);
    DrawFrame(painter, button, kShadow, kShadow);
  } else {
    DrawRaised(painter, button, kFace);
  }
  DrawDropArrow(painter, button, enabled ? kDarkShadow : kGreyText);
}

void DrawImageFace(QPainter& painter, const QRect& rect, const QPixmap& picture, bool stretched) {
  if (stretched) {
    painter.drawPixmap(rect, picture);
    return;
  }
  const QSize shown = picture.size().boundedTo(rect.size());
  painter.drawPixmap(rect.topLeft(), picture, QRect(QPoint(), shown));
}

}  // namespace tarnwick::looks
