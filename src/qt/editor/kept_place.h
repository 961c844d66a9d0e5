// Where a code window stands, from one opening to the next.
#pragma once

#include <string_view>

#include "persistence/settings.h"

class QWidget;

namespace tarnwick {

/// Gives a window the place that it was left at, which the settings keep under a key. The first
/// time it stands in the lower right of its program's window, where the design forms beside it can
/// be seen. It is never larger than the screen and always wholly on it, frame included.
void TakePlace(QWidget& window, const Settings& settings, std::string_view key);
/// The window is being hidden: its place is kept, and the window that it belongs to has the keys
/// again.
void LeaveWindow(const QWidget& window, Settings& settings, std::string_view key);

}  // namespace tarnwick
