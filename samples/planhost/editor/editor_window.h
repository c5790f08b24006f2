#pragma once

#include "editor.h"

/// The window with menu and status bar. It hands events to the editor, shows what failed and goes on.
class EditorWindow {
public:
    /// Shows the window with a new plan.
    explicit EditorWindow(Ptr<_CSymbolColl> catalogue);
    EditorWindow(const EditorWindow&) = delete;

    void Open(const std::filesystem::path& plan);
    /// Runs until the user quits.
    void Run();

private:
    struct Command;
    static const Command kCommands[];
    static bool Always(const EditorWindow&) { return true; }
    static bool HasMarks(const EditorWindow& window);

    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    /// Does something with the editor and shows the new state, or what failed.
    template <class Action>
    void Do(const Action& action);

    void Resize();
    void Paint();
    void Execute(int command);
    void EnableCommands(HMENU menu) const;
    void ShowState();
    void Cancel();
    void MoveBy();
    bool MayClose();

    HWND window_ = nullptr;
    HWND status_ = nullptr;
    Editor editor_;
};
