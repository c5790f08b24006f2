#pragma once

#include "autosave.h"
#include "palette.h"
#include "plan_window.h"
#include "properties_bar.h"
#include "status_bar.h"

/// The window with menu, properties, palette, plan and status bar. It runs the commands, shows what failed and goes on.
class EditorWindow final : PaletteHost {
public:
    /// Shows the window with a new plan.
    explicit EditorWindow(const std::filesystem::path& catalogueFolder);
    EditorWindow(const EditorWindow&) = delete;

    void Open(const std::filesystem::path& plan);
    /// Goes on with a new plan.
    void StartNew();
    /// Runs until the user quits.
    void Run();

private:
    struct Command;
    static const Command kCommands[];
    static bool Always(const EditorWindow&) { return true; }
    static bool HasMarks(const EditorWindow& window);
    static bool HasSeveral(const EditorWindow& window);

    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    /// Does something with the editor and shows the new state, or what failed.
    void Do(const std::function<void()>& action);

    _CSymbolColl& Catalogue() override { return editor_.Document().Catalogue(); }
    const std::filesystem::path& CatalogueFolder() const override { return catalogueFolder_; }
    Settings& Remembered() override { return settings_; }
    void BeginPlacing(const std::wstring& name) override;
    void BeginDragging(const std::wstring& name) override;
    void ReloadCatalogue() override;
    void FocusPlan() override { SetFocus(plan_.Window()); }

    bool CreateParts();
    void Resize();
    void TakeDots(UINT dots, const RECT& proposed);
    double DotsPerMillimetre() const;
    void RestorePlace();
    void RememberPlace();
    /// Moves what a tool shows to where the mouse is.
    void FollowMouse();
    void Execute(int command);
    void PrepareMenu(HMENU menu);
    void ShowContextMenu(POINT at);
    void ShowState();
    std::wstring ZoomText() const;

    // The commands that are more than a line.
    void Cancel();
    void Copy();
    void Paste();
    void MoveBy();
    void Align(int number);
    void Zoom(int command);
    void Toggle(int command);
    void OpenRecent(int number);
    /// The document is another plan now, or has another file.
    void PlanChanged();
    void OfferRecovery(const std::filesystem::path& plan);
    void KeepUnsaved();
    bool MayClose();

    std::filesystem::path catalogueFolder_;
    Settings settings_;
    const long measuredDots_ = settings_.Number(L"Ansicht", L"PunkteJeZoll", 0); ///< by the user; 0: not
    Editor editor_;
    PlanWindow plan_;
    PropertiesBar properties_;
    Autosave autosave_;
    std::unique_ptr<PaletteStrip> palette_;
    HWND window_ = nullptr;
    HWND focus_ = nullptr; ///< the part that had the keyboard when another window got it
    StatusBar status_;
    std::wstring title_;
};
