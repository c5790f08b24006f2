#pragma once

#include "palette.h"
#include "plan_window.h"

/// The window with menu, palette, plan and status bar. It runs the commands, shows what failed and goes on.
class EditorWindow final : PaletteHost {
public:
    /// Shows the window with a new plan.
    explicit EditorWindow(const std::filesystem::path& catalogueFolder);
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

    _CSymbolColl& Catalogue() override { return editor_.Document().Catalogue(); }
    const std::filesystem::path& CatalogueFolder() const override { return catalogueFolder_; }
    Settings& Remembered() override { return settings_; }
    void BeginPlacing(const std::wstring& name) override;
    void BeginDragging(const std::wstring& name) override;
    void ReloadCatalogue() override;
    void FocusPlan() override { SetFocus(plan_.Window()); }

    void CreateParts();
    void Resize();
    /// Moves what a tool shows to where the mouse is.
    void FollowMouse();
    void Execute(int command);
    void EnableCommands(HMENU menu) const;
    void ShowState();
    void Cancel();
    void MoveBy();
    bool MayClose();

    std::filesystem::path catalogueFolder_;
    Settings settings_;
    Editor editor_;
    PlanWindow plan_;
    std::unique_ptr<PaletteStrip> palette_;
    HWND window_ = nullptr;
    HWND status_ = nullptr;
};
