#pragma once

#include <windows.h>

namespace dialog {

/// Handles the messages that wait in this thread's queue, as the modal loop of a dialog does, but not for
/// long: a flood of them must not hold up the work in between. False when the program is to end.
bool ProcessPendingMessages(HWND dialog);

} // namespace dialog
