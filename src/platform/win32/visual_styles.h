#pragma once

#include <windows.h>

namespace platform {

/// While it lives, new windows of this thread have the desktop's visual styles, whatever the host program
/// asks for. The module carries the manifest that names the common controls.
class VisualStyles {
public:
    explicit VisualStyles(HINSTANCE module);
    VisualStyles(const VisualStyles&) = delete;
    VisualStyles& operator=(const VisualStyles&) = delete;
    ~VisualStyles();

private:
    HANDLE context_;
    ULONG_PTR cookie_ = 0;
    bool active_ = false;
};

} // namespace platform
