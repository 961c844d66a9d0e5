// Windows that can be used while a modal dialog is open.
#pragma once

class QWidget;

namespace tarnwick {

/// A modal dialog lets no window work but itself and its own ones. When one is open, the window
/// becomes one of its own and goes back to `home`, its usual parent, when the dialog closes, shown
/// if it is shown then. Without a modal dialog, or when the window belongs to it already, nothing
/// changes. To be called ahead of showing the window.
void LetWorkAboveModal(QWidget& window, QWidget& home);

}  // namespace tarnwick
