#include "run_editor.h"

#include "../text.h"
#include "editor_window.h"
#include "first_plan.h"

namespace {

/// A console that Windows opened for this program alone would only stand beside the window.
void LeaveOwnConsole() {
    DWORD process;
    if (GetConsoleProcessList(&process, 1) == 1)
        FreeConsole();
}

/// There is no console to read a failure from.
void ShowFailure(const std::function<void()>& action) {
    try {
        action();
    } catch (const Failure& failure) {
        MessageBoxW(nullptr, failure.message.c_str(), L"Planhost", MB_ICONEXCLAMATION);
        throw;
    }
}

} // namespace

void RunEditor(const std::filesystem::path& catalogueFolder, const std::filesystem::path& plan) {
    LeaveOwnConsole();
    ShowFailure([&] {
        EditorWindow window(catalogueFolder);
        if (plan.empty())
            window.StartNew();
        else
            window.Open(plan);
        window.Run();
    });
}

void RunEditor() {
    FirstPlan first;
    ShowFailure([&] { first = FindFirstPlan(Settings()); });
    RunEditor(first.catalogueFolder, first.plan);
}
