// Memory for programs that run once and briefly.
#pragma once

namespace tarnwick {

/// Has the heap begin on large pages, where the system offers them: in a short run, being handed
/// memory a small page at a time costs more than the work done in it. For the start of a program
/// that makes its project and leaves. What lies on the heap stays; a second call does nothing.
void PreferLargePages() noexcept;

}  // namespace tarnwick
