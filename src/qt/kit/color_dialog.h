// The dialog in which a colour is chosen.
#pragma once

#include <cstdint>
#include <optional>

class QWidget;

namespace tarnwick {

/// Shows the toolkit's dialog on a colour as projects store it. Null when it is cancelled.
[[nodiscard]] std::optional<std::int32_t> RunColorDialog(std::int32_t start, QWidget* parent);

}  // namespace tarnwick
