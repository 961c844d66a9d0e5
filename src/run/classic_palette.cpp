#include "run/classic_palette.h"

#include <QApplication>
#include <QStyleFactory>
#include <QToolTip>

#include "looks/classic_look.h"
#include "looks/form_fonts.h"

namespace tarnwick::run {
namespace {

struct ColorRow {
  QPalette::ColorRole Role;
  QColor Color;
};
const ColorRow kColors[] = {
    {QPalette::Window, looks::kFace},
    {QPalette::Button, looks::kFace},
    {QPalette::Light, looks::kLight},
    {QPalette::Midlight, looks::kInnerLight},
    {QPalette::Mid, QColor(0xA0, 0xA0, 0xA0)},
    {QPalette::Dark, looks::kShadow},
    {QPalette::Shadow, looks::kDarkShadow},
    {QPalette::Base, looks::kLight},
    {QPalette::AlternateBase, looks::kFace},
    {QPalette::WindowText, Qt::black},
    {QPalette::ButtonText, Qt::black},
    {QPalette::Text, Qt::black},
    {QPalette::BrightText, Qt::white},
    {QPalette::Highlight, QColor(0, 0, 0x80)},
    {QPalette::HighlightedText, Qt::white},
    {QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1)},
    {QPalette::ToolTipText, Qt::black},
    {QPalette::Link, Qt::blue},
    {QPalette::PlaceholderText, looks::kGreyText},
};
constexpr QPalette::ColorRole kInks[] = {QPalette::WindowText, QPalette::ButtonText,
                                         QPalette::Text};

}  // namespace

QPalette ClassicPalette() {
  QPalette palette;
  for (const ColorRow& row : kColors) palette.setColor(row.Role, row.Color);
  for (const QPalette::ColorRole role : kInks) {
    palette.setColor(QPalette::Disabled, role, looks::kGreyText);
  }
  return palette;
}

QPalette PaletteOf(const QColor& paper, const QColor& ink) {
  QPalette palette = ClassicPalette();
  palette.setColor(QPalette::Base, paper);
  for (const QPalette::ColorRole role : kInks) {
    palette.setColor(QPalette::Active, role, ink);
    palette.setColor(QPalette::Inactive, role, ink);
  }
  return palette;
}

void ApplyClassicLook(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Windows")));
  QApplication::setPalette(ClassicPalette());
  looks::FormFonts fonts;
  QApplication::setFont(fonts.At({"MS Sans Serif"}).Font);
  QToolTip::setPalette(ClassicPalette());
  application.setEffectEnabled(Qt::UI_AnimateMenu, false);
}

}  // namespace tarnwick::run
