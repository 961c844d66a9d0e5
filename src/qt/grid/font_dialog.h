// The font dialog with the font's colour in it.
#pragma once

#include <optional>

#include "platform/ports.h"

class QWidget;

namespace tarnwick {

/// Lets the user choose a font: name, size, bold, italic and colour. A size that the user
/// leaves alone comes back as it was. Nothing when it was cancelled.
[[nodiscard]] std::optional<FontChoice> RunFontDialog(const FontChoice& start, QWidget* parent);

}  // namespace tarnwick
