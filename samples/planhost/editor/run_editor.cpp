#include "run_editor.h"

#include "../text.h"
#include "editor_window.h"

namespace {

/// A console that Windows opened for this program alone would only stand beside the window.
void LeaveOwnConsole() {
    DWORD process;
    if (GetConsoleProcessList(&process, 1) == 1)
        FreeConsole();
}

} // namespace

void RunEditor(const std::filesystem::path& catalogueFolder, const std::filesystem::path& plan) {
    LeaveOwnConsole();
    try {
        EditorWindow window(catalogueFolder);
        if (!plan.empty())
            window.Open(plan);
        window.Run();
    } catch (const Failure& failure) {
        MessageBoxW(nullptr, failure.message.c_str(), L"Planhost", MB_ICONEXCLAMATION);
        throw;
    }
}
