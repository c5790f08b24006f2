#include "support/message_boxes.h"

#include "support/apartment.h"
#include "support/text.h"
#include "support/window_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace support {

namespace {

MessageBoxes* g_answering = nullptr;

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

BoxIcon IconOf(HWND control) {
    const auto icon = reinterpret_cast<HICON>(SendMessageW(control, STM_GETICON, 0, 0));
    const std::pair<LPCWSTR, BoxIcon> kIcons[] = {{IDI_ERROR, BoxIcon::Stop},
                                                  {IDI_QUESTION, BoxIcon::Question},
                                                  {IDI_WARNING, BoxIcon::Warning},
                                                  {IDI_INFORMATION, BoxIcon::Information}};
    for (const auto& [name, kind] : kIcons)
        if (icon != nullptr && icon == LoadIconW(nullptr, name)) // system icons are shared
            return kind;
    return BoxIcon::None;
}

BOOL CALLBACK TakeControlOf(HWND control, LPARAM box) {
    Box& seen = *reinterpret_cast<Box*>(box);
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(control, GWL_STYLE));
    if ((style & WS_VISIBLE) == 0)
        return TRUE;
    const std::wstring kind = ClassOf(control);
    if (_wcsicmp(kind.c_str(), L"Button") == 0)
        seen.buttons.push_back(GetDlgCtrlID(control));
    else if ((style & SS_TYPEMASK) == SS_ICON)
        seen.icon = IconOf(control);
    else
        seen.text += WindowText(control);
    return TRUE;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Box& box) {
    out << "box \"" << Narrow(box.title) << "\" with \"" << Narrow(box.text) << "\", icon "
        << static_cast<int>(box.icon) << ", buttons";
    for (const int button : box.buttons)
        out << ' ' << button;
    return out;
}

MessageBoxes::MessageBoxes(std::initializer_list<int> answers) : MessageBoxes(std::vector<int>(answers)) {}

MessageBoxes::MessageBoxes(const std::vector<int>& answers) : answers_(answers.begin(), answers.end()) {
    for (const DWORD thread : ThreadsOfObjects())
        hooks_.push_back(SetWindowsHookExW(WH_CBT, Hook, nullptr, thread));
    g_answering = this;
}

MessageBoxes::~MessageBoxes() {
    for (const HHOOK hook : hooks_)
        UnhookWindowsHookEx(hook);
    g_answering = nullptr;
    EXPECT_TRUE(answers_.empty()) << answers_.size() << " answers were not asked for";
}

LRESULT CALLBACK MessageBoxes::Hook(int code, WPARAM window, LPARAM details) {
    if (code == HCBT_ACTIVATE && g_answering != nullptr)
        g_answering->Answer(reinterpret_cast<HWND>(window));
    return CallNextHookEx(nullptr, code, window, details);
}

void MessageBoxes::Answer(HWND window) {
    const bool resizable = (GetWindowLongPtrW(window, GWL_STYLE) & WS_THICKFRAME) != 0; // a dialog of its own
    if (ClassOf(window) != L"#32770" || resizable ||
        std::find(answered_.begin(), answered_.end(), window) != answered_.end())
        return;
    answered_.push_back(window);
    Box box;
    box.title = WindowText(window);
    EnumChildWindows(window, TakeControlOf, reinterpret_cast<LPARAM>(&box));
    std::sort(box.buttons.begin(), box.buttons.end());
    seen_.push_back(box);
    if (whileOpen)
        whileOpen();
    int answer = IDOK;
    if (!answers_.empty()) {
        answer = answers_.front();
        answers_.pop_front();
    } else {
        ADD_FAILURE() << "not expected: " << box;
        answer = box.buttons.empty() ? IDCANCEL : box.buttons.front();
    }
    PostMessageW(window, WM_COMMAND, MAKEWPARAM(answer, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(window, answer)));
}

Box ErrorBox(const std::wstring& text) {
    return {ProgramTitle(), text, {IDOK}, BoxIcon::Stop};
}

std::wstring ProgramTitle() {
    wchar_t path[MAX_PATH];
    const std::wstring full(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    const std::wstring name = full.substr(full.rfind(L'\\') + 1);
    return name.substr(0, name.rfind(L'.'));
}

} // namespace support
