#include "run_editor.h"

#include "../text.h"
#include "editor_window.h"

namespace {

/// A console that Windows opened for this program alone would only stand beside the window.
bool LeaveOwnConsole() {
    DWORD process;
    return GetConsoleProcessList(&process, 1) == 1 && FreeConsole();
}

} // namespace

void RunEditor(const std::filesystem::path& catalogueFolder, const std::filesystem::path& plan) {
    const bool hasNoConsole = LeaveOwnConsole();
    try {
        EditorWindow window(OpenCatalogue(catalogueFolder));
        if (!plan.empty())
            window.Open(plan);
        window.Run();
    } catch (const Failure& failure) {
        if (!hasNoConsole)
            throw;
        MessageBoxW(nullptr, failure.message.c_str(), L"Planhost", MB_ICONEXCLAMATION);
    }
}
