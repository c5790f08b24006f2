#include "automation/dialog/message_pump.h"

namespace dialog {

namespace {

constexpr ULONGLONG kLongestMilliseconds = 50;

} // namespace

bool ProcessPendingMessages(HWND dialog) {
    const ULONGLONG start = GetTickCount64();
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam)); // for the loops around this one
            return false;
        }
        if (CallMsgFilterW(&message, MSGF_DIALOGBOX) == FALSE &&
            IsDialogMessageW(dialog, &message) == FALSE) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (GetTickCount64() - start > kLongestMilliseconds)
            break;
    }
    return true;
}

} // namespace dialog
