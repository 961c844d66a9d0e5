#include "qt/surface/object_painter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "looks/classic_look.h"
#include "looks/object_faces.h"
#include "looks/platform_colors.h"
#include "model/units.h"
#include "qt/kit/icon_set.h"

namespace tarnwick {

namespace {

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
  looks::DrawFaceText(painter, texts_, area, {text, texts_.FontOf(control), color, enabled_},
                      alignment, flow);
}

void ObjectPainter::PaintButton(QPainter& painter, const QRect& rect, const DesignControl& control,
                                const ObjectRec* record) {
  // The program's buttons have the colour of the face, whatever colour was set, and the generated
  // program sets every button's Layout to the picture above the caption.
  looks::ButtonFace face;
  face.Default = control.Default;
  if (!control.Picture.empty()) face.Picture = &pictures_.At(control.Picture);
  const QColor ink = looks::ColorOf(record != nullptr ? record->FontColor : 0);
  looks::DrawButtonFace(painter, texts_, rect,
                        {control.Caption, texts_.FontOf(control), ink, enabled_}, face);
}

void ObjectPainter::PaintLabel(QPainter& painter, const QRect& rect, const DesignControl& control) {
  const FormFont& font = texts_.FontOf(control);
  QRect area = rect;
  if (control.AutoSize) {
    // The label of the generated program takes the size of its text.
    area.setSize(looks::LabelSize(texts_, control.Caption, font, control.WordWrap, rect.width()));
  }
  looks::LabelFace face;
  face.Wraps = control.WordWrap;
  if (control.BackStyle != 0) face.Ground = looks::ColorOf(control.BackColor);
  looks::DrawLabelFace(painter, texts_, area,
                       {control.Caption, font, looks::ColorOf(control.ForeColor), enabled_}, face);
}

void ObjectPainter::PaintImage(QPainter& painter, const QRect& rect, const DesignControl& control) {
  const QPixmap* picture = control.Picture.empty() ? nullptr : &pictures_.At(control.Picture);
  if (picture != nullptr && !picture->isNull()) {
    looks::DrawImageFace(painter, rect, *picture, control.Stretch);
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
  const QColor ink = looks::ColorOf(control.ForeColor);
  looks::DrawMarkFace(painter, texts_, rect,
                      {control.Caption, texts_.FontOf(control), ink, enabled_}, option,
                      control.Value != 0);
}

void ObjectPainter::PaintText(QPainter& painter, const QRect& rect, const DesignControl& control) {
  looks::FieldEdge edge =
      control.Appearance == 0 ? looks::FieldEdge::Flat : looks::FieldEdge::Sunken;
  if (control.BorderStyle == 0) edge = looks::FieldEdge::None;
  looks::DrawField(painter, rect, edge, looks::ColorOf(control.BackColor));
  const bool rich = control.Id == Kind::RichTextBox;
  const QRect inside =
      rect.adjusted(looks::kFieldLeft, looks::kFieldTop, -looks::kFieldLeft, -looks::kFieldTop);
  DrawCaption(painter, inside, control, looks::ColorOf(control.ForeColor), Qt::AlignLeft,
              rich ? TextFlow::Block : TextFlow::Plain);
}

void ObjectPainter::PaintList(QPainter& painter, const QRect& rect, const DesignControl& control) {
  const bool flat = control.Appearance == 0;
  looks::DrawField(painter, rect, flat ? looks::FieldEdge::Flat : looks::FieldEdge::Sunken,
                   looks::ColorOf(control.BackColor));
  const FormFont& font = texts_.FontOf(control);
  const int row = font.Metrics.height();
  constexpr int kEdge = looks::kListEdge;
  const QRect inside = rect.adjusted(kEdge, kEdge, -kEdge, -kEdge);
  painter.save();
  painter.setClipRect(inside, Qt::IntersectClip);
  painter.setFont(font.Font);
  painter.setPen(enabled_ ? looks::ColorOf(control.ForeColor) : looks::kGreyText);
  int y = inside.y();
  for (const std::string& item : control.Items) {
    if (y > inside.bottom()) break;
    painter.drawStaticText(inside.x() + looks::kListTextLeft, y,
                           texts_.Lay(item, font, TextFlow::Plain, 0).Text);
    y += row;
  }
  painter.restore();
}

void ObjectPainter::PaintCombo(QPainter& painter, const QRect& rect, const DesignControl& control) {
  looks::DrawComboFace(painter, rect, looks::ColorOf(control.BackColor), enabled_);
  DrawCaption(painter, looks::ComboTextOf(rect), control, looks::ColorOf(control.ForeColor),
              Qt::AlignVCenter, TextFlow::Plain);
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
