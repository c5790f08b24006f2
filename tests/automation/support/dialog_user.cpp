#include "support/dialog_user.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace support {

namespace {

constexpr UINT kTickMilliseconds = 10;
constexpr ULONGLONG kLongestWait = 60000;

DialogUser* g_current = nullptr;

} // namespace

DialogUser::DialogUser() : hook_(SetWindowsHookExW(WH_CBT, Hook, nullptr, GetCurrentThreadId())) {
    EXPECT_EQ(g_current, nullptr) << "one user at a time";
    g_current = this;
    timer_ =
        SetTimer(nullptr, 0, kTickMilliseconds, Tick); // ticks come last, when all other messages are done
}

DialogUser::~DialogUser() {
    KillTimer(nullptr, timer_);
    UnhookWindowsHookEx(hook_);
    g_current = nullptr;
    EXPECT_TRUE(steps_.empty()) << steps_.size() << " things were left to do in the dialog";
}

DialogUser& DialogUser::Do(Action action) {
    steps_.push_back([action = std::move(action)](const SelectionDialog& dialog) {
        action(dialog);
        return true;
    });
    return *this;
}

DialogUser& DialogUser::WaitUntil(Condition condition) {
    steps_.push_back(std::move(condition));
    return *this;
}

LRESULT CALLBACK DialogUser::Hook(int code, WPARAM window, LPARAM details) {
    if (code == HCBT_ACTIVATE && g_current != nullptr)
        g_current->Activated(reinterpret_cast<HWND>(window));
    return CallNextHookEx(nullptr, code, window, details);
}

void DialogUser::Activated(HWND window) {
    if (SelectionDialog::Is(window) && std::find(dialogs_.begin(), dialogs_.end(), window) == dialogs_.end())
        dialogs_.push_back(window);
}

void CALLBACK DialogUser::Tick(HWND, UINT, UINT_PTR, DWORD) {
    if (g_current != nullptr)
        g_current->Act();
}

void DialogUser::Act() {
    const auto open = std::find_if(dialogs_.rbegin(), dialogs_.rend(), [](HWND window) {
        return IsWindow(window) != FALSE && IsWindowVisible(window) != FALSE;
    });
    // A disabled dialog has a message box before it.
    if (open == dialogs_.rend() || IsWindowEnabled(*open) == FALSE)
        return;
    const SelectionDialog dialog(*open);
    const ULONGLONG now = GetTickCount64();
    if (stepStarted_ == 0)
        stepStarted_ = now;
    if (steps_.empty() || now - stepStarted_ > kLongestWait) {
        if (!gaveUp_) {
            ADD_FAILURE() << (steps_.empty() ? "the dialog stays open" : "waited in vain");
            steps_.clear();
        }
        gaveUp_ = true;
        dialog.Press(IDCANCEL);
        return;
    }
    // Taken out first: what it does may let the next one happen inside.
    const Condition step = steps_.front();
    steps_.pop_front();
    if (step(dialog))
        stepStarted_ = 0;
    else
        steps_.push_front(step);
}

} // namespace support
