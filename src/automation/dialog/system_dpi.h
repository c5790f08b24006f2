#pragma once

#include <windows.h>

/// What Windows 10 added for desktops with several resolutions; older systems have one resolution.
namespace dialog {

/// The metrics of windows and their fonts in the resolution of a window's monitor.
NONCLIENTMETRICSW WindowMetrics(HWND window);

/// Tells the system that a dialog follows changes of the resolution by itself.
void FollowResolutionItself(HWND dialog);

} // namespace dialog
