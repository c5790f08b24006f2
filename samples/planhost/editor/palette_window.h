#pragma once

#include "../catalogue_entries.h"
#include "palette_host.h"
#include "palette_list.h"

/// The palette's strip: the filter field, the categories and the list of symbols below them.
class PaletteWindow final : public PaletteStrip, PaletteListOwner {
public:
    PaletteWindow(HWND parent, PaletteHost& host);
    PaletteWindow(const PaletteWindow&) = delete;
    ~PaletteWindow() override;

    HWND Window() const override { return window_; }
    int Width(UINT dots) const override;
    void FocusFilter() override;
    void CatalogueChanged() override;
    void SymbolPlaced(const std::wstring& name) override;

private:
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK OnFieldMessage(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                           DWORD_PTR self);
    bool OnFieldKey(HWND field, WPARAM key);

    _CSymbol& SymbolOf(std::size_t number) override { return *entries_[number].symbol.Get(); }
    void Place(std::size_t number) override;
    void Drag(std::size_t number) override;
    void ToggleFavourite(std::size_t number) override;
    void Reload() override { host_.ReloadCatalogue(); }
    void TypeOn(wchar_t letter) override;
    void Leave() override;
    void FocusNext(bool backwards) override;

    void CreateParts();
    void LayOut();
    void Paint();
    void FillCategories();
    void ChooseCategory();
    void Filter();
    void ShowRemembered();

    PaletteHost& host_;
    HWND window_ = nullptr;
    HWND filter_ = nullptr;
    RECT frame_{}; ///< round the filter field
    HWND categories_ = nullptr;
    std::unique_ptr<PaletteLook> look_;
    UINT dots_ = 0;
    std::vector<CatalogueEntry> entries_; ///< their places are the numbers of the model's symbols
    PaletteModel model_;
    PaletteList list_;
};
