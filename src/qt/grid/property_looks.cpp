#include "qt/grid/property_looks.h"

#include <QPainter>
#include <optional>
#include <string>
#include <vector>

#include "inspector/property_sheet.h"
#include "language/colour_names.h"
#include "looks/picture_cache.h"
#include "looks/platform_colors.h"
#include "qt/kit/text_bridge.h"
#include "text/numbers.h"

namespace tarnwick {

namespace {

QPixmap Swatch(std::int32_t color, const QWidget& grid) {
  const qreal ratio = grid.devicePixelRatioF();
  const int side = PropertyRowView::PicturePixels() - 2;
  QPixmap pixmap(QSize(side, side) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(looks::ColorOf(color));
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
  look.Note = QString::fromStdString(NumberText(font.Size));
  if (font.Bold) look.Note += QStringLiteral(", bold");
  if (font.Italic) look.Note += QStringLiteral(", italic");
}

}  // namespace

RowLook LookOfRow(const PropertySheet& sheet, looks::PictureCache& pictures, const QWidget& grid,
                  int row) {
  const QString text = ToQString(sheet.Text(row));
  RowLook look;
  look.Face = grid.font();
  look.Typed = sheet.TakesTyping(row);
  look.Fault = ToQString(sheet.RowFault(row));
  look.IsPath = sheet.IsPath(row);
  if (look.IsPath) look.Tip = text;
  if (const std::optional<std::int32_t> color = sheet.RowColor(row)) {
    look.Picture = Swatch(*color, grid);
    const QString name = ToQString(language::NameOfColour(*color));
    if (text.compare(name, Qt::CaseInsensitive) != 0) look.Note = name;
  }
  look.Picture =
      look.Picture.isNull() ? Preview(sheet.RowPictures(row), pictures, grid) : look.Picture;
  if (const std::optional<FontChoice> font = sheet.RowFont(row)) ShowFont(*font, look);
  return look;
}

}  // namespace tarnwick
