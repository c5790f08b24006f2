#pragma once

#include <windows.h>

namespace dialog {

/// The owner of a modal dialog. When the dialog is over, however it ended, the owner is as usable as it was,
/// and active.
class ModalOwner {
public:
    /// Takes the calling thread's active window, which may be none.
    ModalOwner();
    ModalOwner(const ModalOwner&) = delete;
    ModalOwner& operator=(const ModalOwner&) = delete;
    ~ModalOwner();

    HWND Get() const { return window_; }

private:
    HWND window_;
    bool enabled_;
};

} // namespace dialog
