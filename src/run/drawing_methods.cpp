#include "run/drawing_methods.h"

#include <QBuffer>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "looks/platform_colors.h"
#include "looks/text_bridge.h"
#include "run/stage.h"

namespace tarnwick::run {
namespace {

/// One call of a drawing method.
struct Drawing {
  DrawingSurfaces& Surfaces;
  const ObjectRecord& Object;
  QImage* Surface;  ///< null on a page
  QPainter* Page;   ///< null on a surface
  std::span<Value> Arguments;

  /// Calls back with a painter whose settings last for this drawing.
  template <class Use>
  void Paint(Use use) {
    if (Page == nullptr) {
      QPainter painter(Surface);
      use(painter);
    } else {
      Page->save();
      use(*Page);
      Page->restore();
    }
  }

  [[nodiscard]] bool Has(std::size_t index) const { return index < Arguments.size(); }
  [[nodiscard]] int Number(std::size_t index) const {
    constexpr std::int64_t kFarthest = 30'000;
    return Has(index)
               ? static_cast<int>(std::clamp(Arguments[index].AsInteger(), -kFarthest, kFarthest))
               : 0;
  }
  [[nodiscard]] QColor Color(std::size_t index) const {
    return Has(index) ? looks::ColorOf(static_cast<std::int32_t>(Arguments[index].AsInteger()))
                      : QColor(Qt::black);
  }
  /// A colour of -1 and one that is left out draw nothing.
  [[nodiscard]] bool HasColor(std::size_t index) const {
    return Has(index) && Arguments[index].AsInteger() != -1;
  }
  /// The rectangle of four numbers; the right and lower edges lie outside.
  [[nodiscard]] QRect Rect(std::size_t index) const {
    return {QPoint(std::min(Number(index), Number(index + 2)),
                   std::min(Number(index + 1), Number(index + 3))),
            QSize(std::abs(Number(index + 2) - Number(index)),
                  std::abs(Number(index + 3) - Number(index + 1)))};
  }
  /// The rectangle of a QRECT.
  [[nodiscard]] QRect RectOf(std::size_t index) const {
    const ObjectRecord* const rect =
        Has(index) ? Surfaces.Owner().World().Find(Arguments[index].AsObject()) : nullptr;
    if (rect == nullptr) return {};
    const auto side = [&](Word word) { return static_cast<int>(rect->Number(word)); };
    return {side(Word::Left), side(Word::Top), side(Word::Right) - side(Word::Left),
            side(Word::Bottom) - side(Word::Top)};
  }
};

void SetPoint(Drawing& on) {
  const QPoint at(on.Number(0), on.Number(1));
  if (on.Surface == nullptr) {
    on.Page->fillRect(QRect(at, QSize(1, 1)), on.Color(2));
  } else if (on.Surface->rect().contains(at)) {
    on.Surface->setPixelColor(at, on.Color(2));
  }
}

/// A line on a page is as wide as on a screen of 300 points per inch, so that it is seen.
QPen PagePen(const QPainter& page, const QColor& color) {
  constexpr int kPointsPerInch = 300;
  return {color, qreal(std::max(1, page.device()->logicalDpiX() / kPointsPerInch))};
}

/// All points but the last.
void DrawLine(Drawing& on) {
  if (on.Surface == nullptr) {
    return on.Paint([&](QPainter& painter) {
      painter.setPen(PagePen(painter, on.Color(4)));
      painter.drawLine(on.Number(0), on.Number(1), on.Number(2), on.Number(3));
    });
  }
  int x = on.Number(0);
  int y = on.Number(1);
  const int to_x = on.Number(2);
  const int to_y = on.Number(3);
  const QColor color = on.Color(4);
  const int wide = std::abs(to_x - x);
  const int high = std::abs(to_y - y);
  const int step_x = to_x < x ? -1 : 1;
  const int step_y = to_y < y ? -1 : 1;
  int error = wide - high;
  while (x != to_x || y != to_y) {
    if (on.Surface->rect().contains(x, y)) on.Surface->setPixelColor(x, y, color);
    const int twice = 2 * error;
    if (twice > -high) {
      error -= high;
      x += step_x;
    }
    if (twice < wide) {
      error += wide;
      y += step_y;
    }
  }
}

void FillArea(Drawing& on) {
  on.Paint([&](QPainter& painter) { painter.fillRect(on.Rect(0), on.Color(4)); });
}

void SetOutline(QPainter& painter, const Drawing& on, std::size_t line, std::size_t fill) {
  painter.setPen(on.Page == nullptr ? QPen(on.Color(line)) : PagePen(painter, on.Color(line)));
  painter.setBrush(on.HasColor(fill) ? QBrush(on.Color(fill)) : QBrush(Qt::NoBrush));
}

void DrawRectangle(Drawing& on) {
  on.Paint([&](QPainter& painter) {
    SetOutline(painter, on, 4, 5);
    painter.drawRect(on.Rect(0).adjusted(0, 0, -1, -1));
  });
}

void DrawCircle(Drawing& on) {
  on.Paint([&](QPainter& painter) {
    SetOutline(painter, on, 4, 5);
    painter.drawEllipse(on.Rect(0).adjusted(0, 0, -1, -1));
  });
}

void DrawRoundRect(Drawing& on) {
  on.Paint([&](QPainter& painter) {
    SetOutline(painter, on, 6, 7);
    painter.drawRoundedRect(on.Rect(0).adjusted(0, 0, -1, -1), on.Number(4) / 2.0,
                            on.Number(5) / 2.0);
  });
}

/// Fills from a point up to a border colour, row by row.
void Flood(Drawing& on) {
  // What is on a page already is not known.
  if (on.Surface == nullptr) return;
  QImage& surface = *on.Surface;
  const QRgb fill = on.Color(2).rgba();
  const QRgb border = on.Color(3).rgba();
  const QPoint start(on.Number(0), on.Number(1));
  if (!surface.rect().contains(start)) return;
  // Without a border the area is what has the colour of the point.
  const bool bordered = on.Has(3);
  const QRgb ground = surface.pixel(start);
  const auto open = [&](int x, int y) {
    const QRgb at = surface.pixel(x, y);
    return at != fill && (bordered ? at != border : at == ground);
  };
  std::vector<QPoint> waiting{start};
  while (!waiting.empty()) {
    const QPoint at = waiting.back();
    waiting.pop_back();
    if (!surface.rect().contains(at) || !open(at.x(), at.y())) continue;
    int left = at.x();
    int right = at.x();
    while (left > 0 && open(left - 1, at.y())) --left;
    while (right + 1 < surface.width() && open(right + 1, at.y())) ++right;
    for (int x = left; x <= right; ++x) surface.setPixel(x, at.y(), fill);
    for (const int y : {at.y() - 1, at.y() + 1}) {
      if (y < 0 || y >= surface.height()) continue;
      for (int x = left; x <= right; ++x) {
        // One point of each stretch is enough.
        if (open(x, y) && (x == right || !open(x + 1, y))) waiting.emplace_back(x, y);
      }
    }
  }
}

void WriteText(Drawing& on, const QPoint& at, std::size_t first, const QRect* clip) {
  if (!on.Has(first)) return;
  Stage& stage = on.Surfaces.Owner();
  on.Paint([&](QPainter& painter) {
    if (clip != nullptr) painter.setClipRect(*clip);
    painter.setPen(on.Color(first + 1));
    if (on.Page != nullptr) {
      const QString text = looks::ToQString(on.Arguments[first].AsText());
      painter.setFont(PageFontOf(stage, on.Object));
      const QRect room(at, PageTextSize(painter.fontMetrics(), text));
      if (on.HasColor(first + 2)) painter.fillRect(room, on.Color(first + 2));
      painter.drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, text);
      return;
    }
    const looks::FormFont& font = stage.FontOf(on.Object);
    const looks::LaidText& laid =
        stage.Texts().Lay(on.Arguments[first].AsText(), font, looks::TextFlow::Plain, 0);
    if (on.HasColor(first + 2)) {
      painter.fillRect(QRect(at, QSize(laid.Width, laid.Height)), on.Color(first + 2));
    }
    painter.setFont(font.Font);
    painter.drawStaticText(at, laid.Text);
  });
}

void DrawTextAt(Drawing& on) {
  WriteText(on, QPoint(on.Number(0), on.Number(1)), 2, nullptr);
}

void DrawTextWithin(Drawing& on) {
  const QRect clip = on.RectOf(0);
  WriteText(on, QPoint(on.Number(1), on.Number(2)), 3, &clip);
}

/// How the points of a picture are put on those of the surface, by the number of CopyMode. The
/// pattern that some of them have is white.
constexpr QPainter::CompositionMode kCopyModes[] = {
    QPainter::RasterOp_ClearDestination,            // cmBlackness
    QPainter::RasterOp_NotDestination,              // cmDstInvert
    QPainter::CompositionMode_SourceOver,           // cmMergeCopy
    QPainter::RasterOp_NotSourceOrDestination,      // cmMergePaint
    QPainter::RasterOp_NotSource,                   // cmNotSrcCopy
    QPainter::RasterOp_NotSourceAndNotDestination,  // cmNotSrcErase
    QPainter::RasterOp_SetDestination,              // cmPatCopy
    QPainter::RasterOp_NotDestination,              // cmPatInvert
    QPainter::RasterOp_SetDestination,              // cmPatPaint
    QPainter::RasterOp_SourceAndDestination,        // cmSrcAnd
    QPainter::CompositionMode_SourceOver,           // cmSrcCopy
    QPainter::RasterOp_SourceAndNotDestination,     // cmSrcErase
    QPainter::RasterOp_SourceXorDestination,        // cmSrcInvert
    QPainter::RasterOp_SourceOrDestination,         // cmSrcPaint
    QPainter::RasterOp_SetDestination,              // cmWhiteness
};

void SetCopyMode(QPainter& painter, const Drawing& on) {
  // Paper takes pictures as they are.
  if (on.Page != nullptr || !on.Object.Has(Word::CopyMode)) return;
  const std::int64_t mode = on.Object.Number(Word::CopyMode);
  if (mode < 0 || mode >= static_cast<std::int64_t>(std::size(kCopyModes))) return;
  painter.setCompositionMode(kCopyModes[mode]);
}

void DrawPicture(Drawing& on) {
  if (!on.Has(2)) return;
  const QPixmap picture = on.Surfaces.PictureOf(on.Arguments[2]);
  on.Paint([&](QPainter& painter) {
    SetCopyMode(painter, on);
    painter.drawPixmap(on.Number(0), on.Number(1), picture);
  });
}

void StretchPicture(Drawing& on) {
  if (!on.Has(1)) return;
  const QPixmap picture = on.Surfaces.PictureOf(on.Arguments[1]);
  if (picture.isNull()) return;
  on.Paint([&](QPainter& painter) {
    SetCopyMode(painter, on);
    painter.drawPixmap(on.RectOf(0), picture);
  });
}

void CopyPart(Drawing& on) {
  if (!on.Has(2)) return;
  const QPixmap picture = on.Surfaces.PictureOf(on.Arguments[1]);
  if (picture.isNull()) return;
  on.Paint([&](QPainter& painter) {
    SetCopyMode(painter, on);
    painter.drawPixmap(on.RectOf(0), picture, on.RectOf(2));
  });
}

void SaveFile(Drawing& on) {
  if (!on.Has(0) || on.Surface == nullptr) return;
  basic::FileHost* const files = on.Surfaces.Owner().World().Files();
  const auto file =
      files == nullptr ? nullptr : files->Open(on.Arguments[0].AsText(), basic::FileMode::Create);
  if (file == nullptr) return;
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  on.Surfaces.ToSave(on.Object).save(&bytes, "BMP");
  file->Write(
      std::string_view(bytes.data().constData(), static_cast<std::size_t>(bytes.data().size())));
}

struct MethodRow {
  Word Method;
  void (*Draw)(Drawing&);
};
constexpr MethodRow kMethods[] = {
    {Word::PSet, SetPoint},
    {Word::Line, DrawLine},
    {Word::FillRect, FillArea},
    {Word::Rectangle, DrawRectangle},
    {Word::Circle, DrawCircle},
    {Word::RoundRect, DrawRoundRect},
    {Word::Paint, Flood},
    {Word::TextOut, DrawTextAt},
    {Word::TextRect, DrawTextWithin},
    {Word::Draw, DrawPicture},
    {Word::StretchDraw, StretchPicture},
    {Word::CopyRect, CopyPart},
    {Word::SaveToFile, SaveFile},
};

bool Draw(Drawing& drawing, Word method) {
  for (const MethodRow& row : kMethods) {
    if (row.Method != method) continue;
    row.Draw(drawing);
    return true;
  }
  return false;
}

bool IsDrawing(Word method) {
  return std::any_of(std::begin(kMethods), std::end(kMethods),
                     [&](const MethodRow& row) { return row.Method == method; });
}

}  // namespace

bool DrawByMethod(DrawingSurfaces& surfaces, const ObjectRecord& object, Word method,
                  std::span<Value> arguments, Value& /*result*/) {
  if (!IsDrawing(method)) return false;
  // The picture of an argument may be the surface itself: it is made before it is drawn on.
  Drawing drawing{surfaces, object, &surfaces.At(object), nullptr, arguments};
  return Draw(drawing, method);
}

bool DrawOnPage(DrawingSurfaces& surfaces, const ObjectRecord& printer, QPainter& page, Word method,
                std::span<Value> arguments) {
  Drawing drawing{surfaces, printer, nullptr, &page, arguments};
  return Draw(drawing, method);
}

QFont PageFontOf(Stage& stage, const ObjectRecord& printer) {
  QFont font = stage.FontOf(printer).Font;
  font.setPointSizeF(std::max<double>(1, static_cast<double>(stage.World().FontOf(printer).Size)));
  return font;
}

QSize PageTextSize(const QFontMetrics& metrics, const QString& text) {
  return metrics.boundingRect(QRect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, text)
      .size();
}

}  // namespace tarnwick::run
