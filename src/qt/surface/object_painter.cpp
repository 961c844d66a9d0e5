#include "qt/surface/object_painter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "looks/classic_look.h"
#include "looks/platform_colors.h"
#include "model/units.h"
#include "qt/kit/icon_set.h"

namespace tarnwick {

namespace {

constexpr int kMarkSize = 13;
constexpr int kMarkGap = 4;
constexpr int kPictureGap = 4;
constexpr int kArrowButton = 16;
constexpr int kSmallPicture = 20;
constexpr qreal kFaint = 0.4;

/// The kinds whose record says whether the program shows them and lets them take input. The small
/// ones are never seen in it.
bool HasShownState(Kind kind) noexcept {
  switch (kind) {
    case Kind::Button:
    case Kind::Label:
    case Kind::Image:
    case Kind::CheckBox:
    case Kind::OptionButton:
    case Kind::TextBox:
    case Kind::RichTextBox:
    case Kind::ListBox:
    case Kind::ComboBox:
      return true;
    default:
      return false;
  }
}

/// Small pictures keep the colours of the classic face in every theme.
const IconColors& FormIconColors() {
  static const IconColors colors{QColor(0x1B2429), QColor(0x0F766E), QColor(0xFFFFFF)};
  return colors;
}

int Pixels(float twips) noexcept {
  constexpr float kFarthest = 30000.0F * kTwipsPerPixel;
  if (!std::isfinite(twips)) return 0;
  const float kept = std::clamp(twips, -kFarthest, kFarthest);
  return static_cast<int>(std::lround(PixelsOf(kept)));
}

void DrawDashed(QPainter& painter, const QRect& rect, const QColor& color) {
  QPen pen(color, 1, Qt::CustomDashLine);
  pen.setDashPattern({3, 2});
  painter.setPen(pen);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

void DrawPixmapIn(QPainter& painter, const QRect& rect, const QString& name, int size) {
  const int side = std::min({size, rect.width() - 4, rect.height() - 4});
  if (side < 6) return;
  const qreal ratio = painter.device()->devicePixelRatioF();
  painter.drawPixmap(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2,
                     PixmapOf(name, side, ratio, FormIconColors()));
}

}  // namespace

QRect PixelRectOf(const DesignControl& control) noexcept {
  return {Pixels(control.Left), Pixels(control.Top), std::max(0, Pixels(control.Width)),
          std::max(0, Pixels(control.Height))};
}

void ObjectPainter::Paint(QPainter& painter, const DesignControl& control, const FormRec* form) {
  const QRect rect = PixelRectOf(control);
  if (rect.isEmpty()) return;
  const RecordArray<ObjectRec>* const records =
      form != nullptr ? form->Objects(control.Id) : nullptr;
  const ObjectRec* const record = records != nullptr ? records->At(control.Index) : nullptr;
  const bool shows_state = record != nullptr && HasShownState(control.Id);
  enabled_ = control.Enabled && (!shows_state || record->Enabled != 0);
  if (!shows_state || record->Visible != 0) {
    PaintKind(painter, rect, control, form, record);
    return;
  }
  painter.save();
  painter.setOpacity(kFaint);
  PaintKind(painter, rect, control, form, record);
  painter.restore();
  DrawDashed(painter, rect, looks::kShadow);
}

void ObjectPainter::PaintKind(QPainter& painter, const QRect& rect, const DesignControl& control,
                              const FormRec* form, const ObjectRec* record) {
  switch (control.Id) {
    case Kind::Button:
      return PaintButton(painter, rect, control, record);
    case Kind::Label:
      return PaintLabel(painter, rect, control);
    case Kind::Image:
      return PaintImage(painter, rect, control);
    case Kind::CheckBox:
      return PaintMark(painter, rect, control, false);
    case Kind::OptionButton:
      return PaintMark(painter, rect, control, true);
    case Kind::TextBox:
    case Kind::RichTextBox:
      return PaintText(painter, rect, control);
    case Kind::ListBox:
      return PaintList(painter, rect, control);
    case Kind::ComboBox:
      return PaintCombo(painter, rect, control);
    case Kind::HtmlViewer:
      return PaintHtml(painter, rect, control, form);
    case Kind::TransparentFrame:
    case Kind::Frame:
      return PaintFrame(painter, rect, control);
    case Kind::Time:
    case Kind::OpenDialog:
    case Kind::SaveDialog:
    case Kind::FileStream:
    case Kind::WinSock:
    case Kind::PopUpMenu:
      return PaintSmall(painter, rect, control);
    case Kind::Menu:
    case Kind::MenuItem:
    case Kind::Numero:
    case Kind::Handle:
    case Kind::Form:
      return;
  }
}

void ObjectPainter::DrawCaption(QPainter& painter, const QRect& area, const DesignControl& control,
                                const QColor& color, Qt::Alignment alignment, TextFlow flow) {
  const bool block = flow == TextFlow::Plain || flow == TextFlow::Block;
  DrawText(painter, area, control, block ? control.Text : control.Caption, color, alignment, flow);
}

void ObjectPainter::DrawText(QPainter& painter, const QRect& area, const DesignControl& control,
                             std::string_view text, const QColor& color, Qt::Alignment alignment,
                             TextFlow flow) {
  if (text.empty() || area.isEmpty()) return;
  const FormFont& font = texts_.FontOf(control);
  const LaidText& laid = texts_.Lay(text, font, flow, area.width());
  int x = area.x();
  int y = area.y();
  if (alignment & Qt::AlignHCenter) x += (area.width() - laid.Width) / 2;
  if (alignment & Qt::AlignVCenter) y += (area.height() - laid.Height) / 2;
  const bool clipped = laid.Width > area.width() || laid.Height > area.height();
  if (clipped) {
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
  }
  painter.setFont(font.Font);
  const auto draw = [&](int dx, const QColor& ink) {
    painter.setPen(ink);
    painter.drawStaticText(x + dx, y + dx, laid.Text);
    if (laid.KeyWidth > 0) {
      painter.fillRect(x + dx + laid.KeyLeft, y + dx + laid.KeyTop, laid.KeyWidth, 1, ink);
    }
  };
  if (enabled_) {
    draw(0, color);
  } else {
    draw(1, looks::kLight);
    draw(0, looks::kGreyText);
  }
  if (clipped) painter.restore();
}

void ObjectPainter::PaintButton(QPainter& painter, const QRect& rect, const DesignControl& control,
                                const ObjectRec* record) {
  QRect face = rect;
  if (control.Default) {
    looks::DrawFrame(painter, rect, looks::kDarkShadow, looks::kDarkShadow);
    face.adjust(1, 1, -1, -1);
  }
  // The program's buttons have the colour of the face, whatever colour was set.
  looks::DrawRaised(painter, face, looks::kFace);
  QRect inside = face.adjusted(3, 3, -3, -3);
  const QPixmap* picture = control.Picture.empty() ? nullptr : &pictures_.At(control.Picture);
  if (picture != nullptr && !picture->isNull()) {
    // The generated program sets every button's Layout to the picture above the caption, the two
    // centred together.
    const int width = std::min(picture->width(), inside.width());
    const int height = std::min(picture->height(), inside.height());
    const int below =
        control.Caption.empty() ? 0 : kPictureGap + texts_.FontOf(control).Metrics.height();
    const int top = inside.y() + std::max(0, (inside.height() - height - below) / 2);
    painter.drawPixmap(inside.x() + (inside.width() - width) / 2, top, *picture, 0, 0, width,
                       height);
    inside = QRect(inside.x(), top + height, inside.width(), below) & inside;
  }
  DrawCaption(painter, inside, control, looks::ColorOf(record != nullptr ? record->FontColor : 0),
              Qt::AlignCenter, TextFlow::Line);
}

void ObjectPainter::PaintLabel(QPainter& painter, const QRect& rect, const DesignControl& control) {
  QRect area = rect;
  if (control.AutoSize) {
    // The label of the generated program takes the size of its text.
    const FormFont& font = texts_.FontOf(control);
    const LaidText& laid = texts_.Lay(
        control.Caption, font, control.WordWrap ? TextFlow::Wrapped : TextFlow::Line, rect.width());
    area.setSize(QSize(laid.Width, laid.Height));
  }
  if (control.BackStyle != 0) painter.fillRect(area, looks::ColorOf(control.BackColor));
  DrawCaption(painter, area, control, looks::ColorOf(control.ForeColor), Qt::AlignLeft,
              control.WordWrap ? TextFlow::Wrapped : TextFlow::Line);
}

void ObjectPainter::PaintImage(QPainter& painter, const QRect& rect, const DesignControl& control) {
  const QPixmap* picture = control.Picture.empty() ? nullptr : &pictures_.At(control.Picture);
  if (picture != nullptr && !picture->isNull()) {
    if (control.Stretch) {
      painter.drawPixmap(rect, *picture);
    } else {
      const int width = std::min(picture->width(), rect.width());
      const int height = std::min(picture->height(), rect.height());
      painter.drawPixmap(rect.x(), rect.y(), *picture, 0, 0, width, height);
    }
    return;
  }
  // Nothing to see in the program; here it must be found. A picture whose file is gone is crossed.
  DrawDashed(painter, rect, looks::kDarkShadow);
  if (picture != nullptr) {
    painter.setPen(looks::kShadow);
    painter.drawLine(rect.topLeft(), rect.bottomRight());
    painter.drawLine(rect.topRight(), rect.bottomLeft());
  }
  DrawPixmapIn(painter, rect, IconNameOf(Kind::Image), 24);
}

void ObjectPainter::PaintMark(QPainter& painter, const QRect& rect, const DesignControl& control,
                              bool option) {
  painter.fillRect(rect, looks::kFace);
  const QPoint mark(rect.x(), rect.y() + (rect.height() - kMarkSize) / 2);
  if (option) {
    looks::DrawOption(painter, mark, control.Value != 0, enabled_);
  } else {
    looks::DrawCheckBox(painter, mark, control.Value != 0, enabled_);
  }
  DrawCaption(painter, rect.adjusted(kMarkSize + kMarkGap, 0, 0, 0), control,
              looks::ColorOf(control.ForeColor), Qt::AlignVCenter, TextFlow::Line);
}

void ObjectPainter::PaintText(QPainter& painter, const QRect& rect, const DesignControl& control) {
  const QColor paper = looks::ColorOf(control.BackColor);
  if (control.BorderStyle == 0) {
    painter.fillRect(rect, paper);
  } else if (control.Appearance == 0) {
    looks::DrawFlat(painter, rect, paper);
  } else {
    looks::DrawSunken(painter, rect, paper);
  }
  const bool rich = control.Id == Kind::RichTextBox;
  DrawCaption(painter, rect.adjusted(4, 3, -4, -3), control, looks::ColorOf(control.ForeColor),
              Qt::AlignLeft, rich ? TextFlow::Block : TextFlow::Plain);
}

void ObjectPainter::PaintList(QPainter& painter, const QRect& rect, const DesignControl& control) {
  if (control.Appearance == 0) {
    looks::DrawFlat(painter, rect, looks::ColorOf(control.BackColor));
  } else {
    looks::DrawSunken(painter, rect, looks::ColorOf(control.BackColor));
  }
  const FormFont& font = texts_.FontOf(control);
  const int row = font.Metrics.height();
  const QRect inside = rect.adjusted(2, 2, -2, -2);
  painter.save();
  painter.setClipRect(inside, Qt::IntersectClip);
  painter.setFont(font.Font);
  painter.setPen(enabled_ ? looks::ColorOf(control.ForeColor) : looks::kGreyText);
  int y = inside.y();
  for (const std::string& item : control.Items) {
    if (y > inside.bottom()) break;
    painter.drawStaticText(inside.x() + 2, y, texts_.Lay(item, font, TextFlow::Plain, 0).Text);
    y += row;
  }
  painter.restore();
}

void ObjectPainter::PaintCombo(QPainter& painter, const QRect& rect, const DesignControl& control) {
  looks::DrawSunken(painter, rect, enabled_ ? looks::ColorOf(control.BackColor) : looks::kFace);
  const QRect inside = rect.adjusted(2, 2, -2, -2);
  const int width = std::min(kArrowButton, inside.width());
  const QRect button(inside.right() - width + 1, inside.y(), width, inside.height());
  looks::DrawRaised(painter, button, looks::kFace);
  looks::DrawDropArrow(painter, button, enabled_ ? looks::kDarkShadow : looks::kGreyText);
  DrawCaption(painter, inside.adjusted(2, 0, -width - 1, 0), control,
              looks::ColorOf(control.ForeColor), Qt::AlignVCenter, TextFlow::Plain);
}

void ObjectPainter::PaintHtml(QPainter& painter, const QRect& rect, const DesignControl& control,
                              const FormRec* form) {
  looks::DrawSunken(painter, rect, looks::kLight);
  const QRect inside = rect.adjusted(4, 3, -4, -3);
  const HtmlViewerRec* const viewer =
      form != nullptr ? form->HtmlViewers.At(control.Index) : nullptr;
  DrawText(painter, inside, control, viewer != nullptr ? viewer->Navigate : control.Text,
           looks::kGreyText, Qt::AlignLeft, TextFlow::Block);
  if (inside.height() > 44) {
    DrawPixmapIn(painter, inside.adjusted(0, 16, 0, 0), IconNameOf(Kind::HtmlViewer), 32);
  }
}

void ObjectPainter::PaintFrame(QPainter& painter, const QRect& rect, const DesignControl& control) {
  // See-through in the program too, so the dots stay visible under a thin veil.
  painter.fillRect(rect, QColor(0x0F, 0x76, 0x6E, 0x22));
  DrawDashed(painter, rect, QColor(0x0F, 0x76, 0x6E));
  DrawPixmapIn(painter, rect, IconNameOf(control.Id), 24);
}

void ObjectPainter::PaintSmall(QPainter& painter, const QRect& rect, const DesignControl& control) {
  looks::DrawRaised(painter, rect, looks::kFace);
  DrawPixmapIn(painter, rect, IconNameOf(control.Id), kSmallPicture);
}

}  // namespace tarnwick
