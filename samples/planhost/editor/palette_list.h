#pragma once

#include "palette_accessible.h"
#include "palette_layout.h"
#include "palette_list_owner.h"
#include "palette_model.h"
#include "palette_painter.h"

#include <optional>

/// The list of tiles: a child window that draws what is seen of it, however many symbols there are.
class PaletteList final : public AccessibleTiles {
public:
    PaletteList(const PaletteModel& model, PaletteListOwner& owner);
    ~PaletteList() { accessible_->Forget(); }
    PaletteList(const PaletteList&) = delete;

    void Create(HWND parent);
    HWND Window() const override { return window_; }
    /// For a screen of so many dots to the inch.
    void UseLook(const PaletteLook& look);
    /// The model shows something else; the top of it is seen, and its first tile is selected or none.
    void ModelChanged(bool selectFirst);
    /// The numbers of symbols mean others.
    void SymbolsChanged() { painter_.ForgetPictures(); }
    /// The model shows the same but for its first sections; what is seen stays where it is.
    void SectionsChanged();

    /// The symbol of the selected tile.
    std::optional<std::size_t> Selected() const;
    void SelectFirst();
    /// By lines of text, downwards.
    void ScrollBy(int pixels);
    void OnWheel(int delta);

    // For screen readers.
    std::size_t Count() const override { return layout_.Tiles(); }
    std::wstring NameOf(std::size_t tile) const override;
    std::wstring DescriptionOf(std::size_t tile) const override;
    RECT PlaceOf(std::size_t tile) const override { return View().PlaceOf(tile); }
    std::optional<std::size_t> At(POINT pixel) const override { return TileAt(pixel); }
    std::optional<std::size_t> SelectedTile() const override { return selected_; }
    void SelectTile(std::size_t tile) override { Select(tile); }
    void UseTile(std::size_t tile) override { owner_.Place(View().SymbolOn(tile)); }

private:
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void Arrange();
    void ScrollTo(int top);
    void OnScroll(int code);
    bool OnKey(WPARAM key);
    void Select(std::size_t tile);
    void MoveSelection(std::size_t tile);
    void OnMouseDown(POINT point);
    void OnMouseMove(POINT point, bool isPressed);
    void OnMouseUp(POINT point);
    void SetHover(std::optional<std::size_t> tile);
    void ShowMenu(POINT screen, bool byKeyboard);

    void TellReaders(DWORD event) const;

    std::optional<std::size_t> TileAt(POINT point) const { return layout_.At(point.x, point.y + top_); }
    SIZE Size() const;
    PaletteView View() const;

    const PaletteModel& model_;
    PaletteListOwner& owner_;
    HWND window_ = nullptr;
    const PaletteLook* look_ = nullptr;
    PaletteLayout layout_;
    PalettePainter painter_;
    Ptr<PaletteAccessible> accessible_;
    int top_ = 0;       ///< of the part that is seen, in pixels of the list
    int wheelRest_ = 0; ///< of a wheel that turns in small steps
    std::optional<std::size_t> selected_;
    std::optional<std::size_t> hover_;
    std::optional<POINT> pressed_; ///< where the button went down on a tile
};
