#include "qt/kit/color_dialog.h"

#include <QColorDialog>
#include <array>

#include "looks/platform_colors.h"

namespace tarnwick {

namespace {

/// The parts of the toolkit's dialog that have no name of their own, by their classes.
struct PartName {
  const char* Class;
  const char* Name;
};
constexpr std::array<PartName, 4> kParts{{
    {"QColorPicker", "Hue and saturation"},
    {"QColorLuminancePicker", "Value"},
    {"QColorWell", "Custom colours"},
    {"QWellArray", "Basic colours"},
}};

void NameParts(const QColorDialog& dialog) {
  for (QWidget* part : dialog.findChildren<QWidget*>()) {
    if (!part->accessibleName().isEmpty()) continue;
    for (const PartName& known : kParts) {
      if (!part->inherits(known.Class)) continue;
      part->setAccessibleName(QString::fromLatin1(known.Name));
      break;
    }
  }
}

}  // namespace

std::optional<std::int32_t> RunColorDialog(std::int32_t start, QWidget* parent) {
  QColorDialog dialog(looks::ColorOf(start), parent);
  dialog.setWindowTitle(QStringLiteral("Colour"));
  NameParts(dialog);
  if (dialog.exec() != QDialog::Accepted || !dialog.selectedColor().isValid()) return std::nullopt;
  return looks::NumberOf(dialog.selectedColor());
}

}  // namespace tarnwick
