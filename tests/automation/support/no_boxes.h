#pragma once

#include <windows.h>

#include <string_view>

namespace support {

/// A thread on which no message box can be shown, as in a service without a desktop.
class NoBoxes {
public:
    NoBoxes() : hook_(SetWindowsHookExW(WH_CBT, Refuse, nullptr, GetCurrentThreadId())) {}
    NoBoxes(const NoBoxes&) = delete;
    NoBoxes& operator=(const NoBoxes&) = delete;
    ~NoBoxes() { UnhookWindowsHookEx(hook_); }

private:
    static LRESULT CALLBACK Refuse(int code, WPARAM window, LPARAM) {
        wchar_t name[16] = {};
        const bool dialog = code == HCBT_CREATEWND &&
                            GetClassNameW(reinterpret_cast<HWND>(window), name, 16) > 0 &&
                            std::wstring_view(name) == L"#32770";
        return dialog ? 1 : 0;
    }

    HHOOK hook_;
};

} // namespace support
