#include "drawing/message_boxes.h"

#include "support/text.h"

namespace drawing {

namespace {

constexpr UINT kLookEveryMs = 10;

MessageBoxes* g_open = nullptr;

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[32] = {};
    GetClassNameW(window, name, ARRAYSIZE(name));
    return name;
}

std::string NameOfIcon(HICON icon) {
    if (icon == LoadIconW(nullptr, IDI_HAND))
        return "stop";
    return icon == LoadIconW(nullptr, IDI_ASTERISK) ? "information" : "other";
}

BOOL CALLBACK NoteControl(HWND control, LPARAM target) {
    ShownBox& box = *reinterpret_cast<ShownBox*>(target);
    const std::wstring name = ClassOf(control);
    const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
    if (name == L"Button" && (style & WS_VISIBLE) != 0)
        box.buttons.push_back(GetDlgCtrlID(control));
    if (name != L"Static")
        return TRUE;
    if ((style & SS_TYPEMASK) != SS_ICON)
        box.text = TextOf(control);
    else if (const auto icon = reinterpret_cast<HICON>(SendMessageW(control, STM_GETICON, 0, 0)))
        box.icon = NameOfIcon(icon);
    return TRUE;
}

BOOL CALLBACK AnswerBox(HWND window, LPARAM target) {
    if (ClassOf(window) != L"#32770" || !IsWindowVisible(window))
        return TRUE;
    ShownBox box{TextOf(window), {}, "none", {}};
    EnumChildWindows(window, NoteControl, reinterpret_cast<LPARAM>(&box));
    reinterpret_cast<std::vector<ShownBox>*>(target)->push_back(box);
    SendMessageW(window, WM_COMMAND, IDOK, 0);
    return FALSE;
}

} // namespace

MessageBoxes::MessageBoxes() : timer_(SetTimer(nullptr, 0, kLookEveryMs, Look)) {
    g_open = this;
}

MessageBoxes::~MessageBoxes() {
    KillTimer(nullptr, timer_);
    g_open = nullptr;
}

/// The modal loop of a message box dispatches the timer of its thread.
void CALLBACK MessageBoxes::Look(HWND, UINT, UINT_PTR, DWORD) {
    if (g_open != nullptr)
        EnumThreadWindows(GetCurrentThreadId(), AnswerBox, reinterpret_cast<LPARAM>(&g_open->shown_));
}

std::ostream& operator<<(std::ostream& out, const ShownBox& box) {
    out << '[' << support::Narrow(box.title) << "] \"" << support::Narrow(box.text) << "\" " << box.icon;
    for (const int button : box.buttons)
        out << ' ' << button;
    return out;
}

ShownBox OkBox(const std::wstring& text, const std::string& icon) {
    return {L"automation_tests", text, icon, {IDOK}};
}

} // namespace drawing
