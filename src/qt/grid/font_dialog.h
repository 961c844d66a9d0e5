// The font dialog with the font's colour in it.
#pragma once

#include <optional>

#include "platform/ports.h"

class QWidget;

namespace tarnwick {

/// Lets the user choose a font: name, size, bold, italic, underline, strike-out and colour. Nothing
/// when it was cancelled.
[[nodiscard]] std::optional<FontChoice> RunFontDialog(const FontChoice& start, QWidget* parent);

}  // namespace tarnwick
