// Design forms for accessibility: the form with its objects as children.
#pragma once

namespace tarnwick {

/// Has design surfaces told to assistive programs: a surface with the form's name and its objects
/// as children, each with name, kind, rectangle, selected and focused state, and the
/// press as its action. A second call does nothing.
void InstallSurfaceAccess();

}  // namespace tarnwick
