#include "run/classic_palette.h"

#include <QApplication>
#include <QEvent>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QToolTip>
#include <QWidget>

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

/// The style of the platform's older days, with the times of hints that a program sets.
class ClassicStyle final : public QProxyStyle {
 public:
  ClassicStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Windows"))) {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_ToolTip_WakeUpDelay) return ProgramHints().Pause;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

/// Keeps hints away, and limits their time.
class HintFilter final : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return false;
    if (!ProgramHints().Shown) return true;
    if (auto* const widget = qobject_cast<QWidget*>(watched)) {
      widget->setToolTipDuration(ProgramHints().Hide);
    }
    return false;
  }
};

}  // namespace

HintTimes& ProgramHints() {
  static HintTimes times;
  return times;
}

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
  QApplication::setStyle(new ClassicStyle);
  ProgramHints() = {};
  if (application.findChild<QObject*>(QStringLiteral("Hints")) == nullptr) {
    auto* const hints = new HintFilter(&application);
    hints->setObjectName(QStringLiteral("Hints"));
    application.installEventFilter(hints);
  }
  QApplication::setPalette(ClassicPalette());
  looks::FormFonts fonts;
  QApplication::setFont(fonts.At({"MS Sans Serif"}).Font);
  QToolTip::setPalette(ClassicPalette());
  QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
}

}  // namespace tarnwick::run
