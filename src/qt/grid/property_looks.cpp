#include "qt/grid/property_looks.h"

#include <QPainter>
#include <optional>
#include <string>
#include <vector>

#include "inspector/property_sheet.h"
#include "looks/picture_cache.h"
#include "looks/platform_colors.h"
#include "qt/kit/text_bridge.h"
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

/// The first of the files that is a picture, no larger than its room in a row.
QPixmap Preview(const std::vector<std::string>& files, looks::PictureCache& pictures,
                const QWidget& grid) {
  for (const std::string& file : files) {
    const QPixmap& picture = pictures.At(file);
    if (picture.isNull()) continue;
    const qreal ratio = grid.devicePixelRatioF();
    const QSize room =
        QSize(PropertyRowView::PicturePixels(), PropertyRowView::PicturePixels()) * ratio;
    QPixmap small = picture.size().boundedTo(room) == picture.size()
                        ? picture
                        : picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    small.setDevicePixelRatio(ratio);
    return small;
  }
  return {};
}

void ShowFont(const FontChoice& font, RowLook& look) {
  look.Face.setFamily(ToQString(font.Name));
  look.Face.setBold(font.Bold);
  look.Face.setItalic(font.Italic);
  look.Face.setUnderline(font.Underline);
  look.Face.setStrikeOut(font.Strikethru);
  look.Note = QString::fromStdString(NumberText(font.Size));
}

}  // namespace

RowLook LookOfRow(const PropertySheet& sheet, looks::PictureCache& pictures, const QWidget& grid,
                  int row) {
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
      look.Picture = Preview(sheet.RowPictures(row), pictures, grid);
      look.Tip = ToQString(text);
      break;
    case row_mark::kFolder:
    case row_mark::kAnyFile:
    case row_mark::kHtmlFile:
      look.Tip = ToQString(text);
      break;
    case row_mark::kFont:
      if (const std::optional<FontChoice> font = sheet.RowFont(row)) ShowFont(*font, look);
      break;
    default:
      break;
  }
  return look;
}

}  // namespace tarnwick
