#include "looks/form_fonts.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "looks/text_bridge.h"
#include "text/code_page.h"

namespace tarnwick::looks {

namespace {

constexpr float kPixelsPerPoint = 96.0F / 72.0F;
constexpr float kLargestPoints = 1600.0F;
/// The letters by which substitutes are measured, and their width in the font of new objects, in
/// parts of its pixel size.
constexpr auto kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr double kLettersWidth = 28.5;
constexpr double kTolerance = 1.03;

QStringList FamiliesOf(std::string_view name) {
  QStringList families{ToQString(name)};
  constexpr std::array<std::string_view, 5> screen_fonts{"MS Sans Serif", "System", "MS Serif",
                                                         "Fixedsys", "Terminal"};
  const bool fixed = EqualsFolded(name, "Fixedsys") || EqualsFolded(name, "Terminal") ||
                     EqualsFolded(name, "Courier") || EqualsFolded(name, "Courier New");
  if (EqualsFolded(name, "MS Serif") || EqualsFolded(name, "Times New Roman")) {
    families << QStringLiteral("Times New Roman") << QStringLiteral("Liberation Serif")
             << QStringLiteral("Nimbus Roman");
  } else if (fixed) {
    families << QStringLiteral("Courier New") << QStringLiteral("Liberation Mono")
             << QStringLiteral("Nimbus Mono PS");
  } else {
    families << QStringLiteral("Microsoft Sans Serif") << QStringLiteral("Tahoma")
             << QStringLiteral("Arial") << QStringLiteral("Liberation Sans")
             << QStringLiteral("Nimbus Sans") << QStringLiteral("DejaVu Sans");
  }
  // The old screen fonts are bitmaps where they exist at all: their outlines' heirs come first.
  const bool screen_font =
      std::any_of(screen_fonts.begin(), screen_fonts.end(),
                  [name](std::string_view font) { return EqualsFolded(name, font); });
  if (screen_font) families.removeFirst();
  return families;
}

/// Narrows a font that stands in for the screen font when it is wider, so that captions take the
/// room on the form that they take in the program.
void FitSubstitute(QFont& font, std::string_view wanted) {
  if (!EqualsFolded(wanted, "MS Sans Serif")) return;
  const double width = QFontMetricsF(font).horizontalAdvance(QString::fromLatin1(kLetters));
  const double room = kLettersWidth * font.pixelSize();
  if (width > kTolerance * room) font.setStretch(static_cast<int>(100 * room / width));
}

}  // namespace

const FormFont& FormFonts::At(const FontWish& wanted) {
  key_.assign(wanted.Name);
  const auto bits = std::bit_cast<std::array<char, sizeof wanted.Points>>(wanted.Points);
  key_.append(bits.data(), bits.size());
  key_.push_back(static_cast<char>((wanted.Bold ? 1 : 0) | (wanted.Italic ? 2 : 0) |
                                   (wanted.Underline ? 4 : 0) | (wanted.StrikeOut ? 8 : 0)));
  if (const auto found = fonts_.find(key_); found != fonts_.end()) return *found->second;

  QFont font;
  font.setFamilies(FamiliesOf(wanted.Name));
  const float size =
      std::isfinite(wanted.Points) ? std::clamp(wanted.Points, 1.0F, kLargestPoints) : 8.0F;
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(size * kPixelsPerPoint))));
  FitSubstitute(font, wanted.Name);
  font.setBold(wanted.Bold);
  font.setItalic(wanted.Italic);
  font.setUnderline(wanted.Underline);
  font.setStrikeOut(wanted.StrikeOut);
  auto made = std::make_unique<FormFont>(
      FormFont{font, QFontMetrics(font), static_cast<int>(fonts_.size())});
  return *fonts_.emplace(key_, std::move(made)).first->second;
}

}  // namespace tarnwick::looks
