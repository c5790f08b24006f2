#include "automation/dialog/modal_owner.h"

namespace dialog {

ModalOwner::ModalOwner() : window_(GetActiveWindow()), enabled_(IsWindowEnabled(window_) != FALSE) {}

ModalOwner::~ModalOwner() {
    if (IsWindow(window_) == FALSE || enabled_ == (IsWindowEnabled(window_) != FALSE))
        return; // the system has done it all, as a rule
    EnableWindow(window_, enabled_ ? TRUE : FALSE);
    if (enabled_)
        SetActiveWindow(window_);
}

} // namespace dialog
