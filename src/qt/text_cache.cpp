#include "qt/text_cache.h"

#include <QFontDatabase>
#include <QTextOption>
#include <QTransform>
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "qt/text_bridge.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

constexpr std::size_t kMostTexts = 8192;
constexpr float kPixelsPerPoint = 96.0F / 72.0F;
constexpr float kLargestPoints = 1600.0F;

void AppendNumber(std::string& key, std::uint32_t number) {
  for (int shift = 0; shift < 32; shift += 8) {
    key.push_back(static_cast<char>((number >> static_cast<unsigned>(shift)) & 0xFFU));
  }
}

QStringList FamiliesOf(std::string_view name) {
  QStringList families{ToQString(name)};
  constexpr std::array<std::string_view, 5> screen_fonts{"MS Sans Serif", "System", "MS Serif",
                                                         "Fixedsys", "Terminal"};
  const bool fixed = EqualsFolded(name, "Fixedsys") || EqualsFolded(name, "Terminal") ||
                     EqualsFolded(name, "Courier") || EqualsFolded(name, "Courier New");
  if (EqualsFolded(name, "MS Serif") || EqualsFolded(name, "Times New Roman")) {
    families << QStringLiteral("Times New Roman") << QStringLiteral("Liberation Serif");
  } else if (fixed) {
    families << QStringLiteral("Courier New") << QStringLiteral("Liberation Mono");
  } else {
    families << QStringLiteral("Microsoft Sans Serif") << QStringLiteral("Tahoma")
             << QStringLiteral("Arial") << QStringLiteral("Liberation Sans")
             << QStringLiteral("DejaVu Sans");
  }
  // The old screen fonts are bitmaps where they exist at all: their outlines' heirs come first.
  const bool screen_font =
      std::any_of(screen_fonts.begin(), screen_fonts.end(),
                  [name](std::string_view font) { return EqualsFolded(name, font); });
  if (screen_font) families.removeFirst();
  return families;
}

/// Takes the marks of access keys out of a caption; answers the place of the key, or -1.
qsizetype TakeAccessKey(QString& text) {
  if (!text.contains(u'&')) return -1;
  QString shown;
  shown.reserve(text.size());
  qsizetype place = -1;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text.at(i) == u'&') {
      if (++i >= text.size()) break;
      if (text.at(i) != u'&') place = shown.size();
    }
    shown.append(text.at(i));
  }
  text = std::move(shown);
  return place;
}

}  // namespace

const FormFont& TextCache::FontOf(const DesignControl& control) {
  return FontOf(control.FontName, control.FontSize, control.FontBold, control.FontItalic,
                control.FontUnderline, control.FontStrikethru);
}

const FormFont& TextCache::FontOf(std::string_view name, float points, bool bold, bool italic,
                                  bool underline, bool strikethru) {
  key_.assign(name);
  AppendNumber(key_, std::bit_cast<std::uint32_t>(points));
  key_.push_back(static_cast<char>((bold ? 1 : 0) | (italic ? 2 : 0) | (underline ? 4 : 0) |
                                   (strikethru ? 8 : 0)));
  if (const auto found = fonts_.find(key_); found != fonts_.end()) return *found->second;

  QFont font;
  font.setFamilies(FamiliesOf(name));
  const float size = std::isfinite(points) ? std::clamp(points, 1.0F, kLargestPoints) : 8.0F;
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(size * kPixelsPerPoint))));
  font.setBold(bold);
  font.setItalic(italic);
  font.setUnderline(underline);
  font.setStrikeOut(strikethru);
  auto made = std::make_unique<FormFont>(
      FormFont{font, QFontMetrics(font), static_cast<int>(fonts_.size())});
  return *fonts_.emplace(key_, std::move(made)).first->second;
}

const LaidText& TextCache::Lay(std::string_view text, const FormFont& font, TextFlow flow,
                               int width) {
  const bool wraps = flow == TextFlow::Wrapped || flow == TextFlow::Block;
  key_.clear();
  AppendNumber(key_, static_cast<std::uint32_t>(font.Id));
  AppendNumber(key_, wraps ? static_cast<std::uint32_t>(width) : 0);
  key_.push_back(static_cast<char>(flow));
  key_.append(text);
  if (const auto found = texts_.find(key_); found != texts_.end()) return found->second;
  if (texts_.size() >= kMostTexts) texts_.clear();

  LaidText laid;
  QString shown = ToQString(text);
  const bool has_key = flow == TextFlow::Line || flow == TextFlow::Wrapped;
  const qsizetype access = has_key ? TakeAccessKey(shown) : -1;
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  if (access >= 0 && flow == TextFlow::Line) {
    laid.KeyLeft = font.Metrics.horizontalAdvance(shown.left(access));
    laid.KeyWidth = font.Metrics.horizontalAdvance(shown.at(access));
    laid.KeyTop = font.Metrics.ascent() + 1;
  }
  laid.Text.setTextFormat(Qt::PlainText);
  laid.Text.setPerformanceHint(QStaticText::AggressiveCaching);
  QTextOption option;
  option.setWrapMode(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
  laid.Text.setTextOption(option);
  if (wraps) laid.Text.setTextWidth(std::max(width, 1));
  laid.Text.setText(wraps ? shown : shown.replace(u'\n', u' '));
  laid.Text.prepare(QTransform(), font.Font);
  const QSizeF size = laid.Text.size();
  laid.Width = static_cast<int>(std::ceil(size.width()));
  laid.Height = static_cast<int>(std::ceil(size.height()));
  return texts_.emplace(key_, std::move(laid)).first->second;
}

}  // namespace tarnwick
