// Design forms for accessibility: the window, its frame's buttons, its menu bar and its objects.
#pragma once

namespace tarnwick {

/// Describes design windows to assistive programs. A window has the painted buttons of its frame
/// as children, beside its menu bar and its surface; the menu bar has its titles, the surface has
/// the objects of the form. Each has name, role, rectangle, state and action. A second call has no
/// effect.
void InstallSurfaceAccess();

}  // namespace tarnwick
