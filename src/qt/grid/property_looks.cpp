#include "qt/grid/property_looks.h"

#include <QPainter>
#include <optional>
#include <string>

#include "inspector/row_bindings.h"
#include "looks/picture_cache.h"
#include "looks/platform_colors.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "shell/mdi_form.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

QPixmap Swatch(const std::string& text, const QWidget& grid) {
  const qreal ratio = grid.devicePixelRatioF();
  const int side = PropertyRowView::PicturePixels() - 2;
  QPixmap pixmap(QSize(side, side) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(looks::ColorOf(ToInt32(Val(text)).value_or(0)));
  QPainter painter(&pixmap);
  // A line in the middle of the two greys shows on any colour.
  painter.setPen(QColor(128, 128, 128));
  painter.drawRect(QRectF(0, 0, side - 1, side - 1));
  return pixmap;
}

QPixmap Preview(MDIForm1& shell, looks::PictureCache& pictures, const QWidget& grid,
                const std::string& text) {
  if (!HasPicturePath(text)) return {};
  const ProjectTables& tables = shell.Tables();
  const QPixmap* picture = nullptr;
  if (text == kDefaultFile) {
    picture = &pictures.At(tables.ProgramFolder + "\\iconapp.ico");
  } else {
    picture = &pictures.At(text);
    if (picture->isNull()) picture = &pictures.At(ResolveProjectPath(tables, text, true));
  }
  if (picture->isNull()) return {};
  const qreal ratio = grid.devicePixelRatioF();
  const QSize room =
      QSize(PropertyRowView::PicturePixels(), PropertyRowView::PicturePixels()) * ratio;
  QPixmap small = picture->size().boundedTo(room) == picture->size()
                      ? *picture
                      : picture->scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  small.setDevicePixelRatio(ratio);
  return small;
}

bool IsSet(const DesignControl& control, Member member) {
  const std::optional<MemberValue> value = control.Get(member);
  if (!value) return false;
  const bool* held = std::get_if<bool>(&*value);
  return held != nullptr && *held;
}

void ShowFont(const DesignControl& control, const std::string& name, RowLook& look) {
  look.Face.setFamily(ToQString(name));
  look.Face.setBold(IsSet(control, Member::FontBold));
  look.Face.setItalic(IsSet(control, Member::FontItalic));
  look.Face.setUnderline(IsSet(control, Member::FontUnderline));
  look.Face.setStrikeOut(IsSet(control, Member::FontStrikethru));
  const std::optional<MemberValue> size = control.Get(Member::FontSize);
  const float* points = size ? std::get_if<float>(&*size) : nullptr;
  if (points != nullptr) look.Note = QString::fromStdString(NumberText(*points));
}

}  // namespace

RowLook LookOfRow(MDIForm1& shell, looks::PictureCache& pictures, const QWidget& grid, int row) {
  const PropertySheet& sheet = shell.Sheet();
  const std::string& text = sheet.Text(row);
  RowLook look;
  look.Face = grid.font();
  look.Typed = sheet.TakesTyping(row);
  switch (sheet.RowMark(row)) {
    case row_mark::kColor:
    case row_mark::kColorToo:
      look.Picture = Swatch(text, grid);
      break;
    case row_mark::kPicture:
    case row_mark::kIcon:
      look.Picture = Preview(shell, pictures, grid, text);
      look.Tip = ToQString(text);
      break;
    case row_mark::kFolder:
    case row_mark::kAnyFile:
    case row_mark::kHtmlFile:
      look.Tip = ToQString(text);
      break;
    case row_mark::kFont: {
      const DesignForm* form = shell.Tables().CurrentForm;
      if (form != nullptr && form->ControlSel) ShowFont(*form->ControlSel, text, look);
      break;
    }
    default:
      break;
  }
  return look;
}

}  // namespace tarnwick
