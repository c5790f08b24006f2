#pragma once

#include "../bitmap.h"
#include "palette_layout.h"
#include "palette_look.h"
#include "palette_model.h"
#include "palette_thumbnails.h"

#include <functional>
#include <memory>
#include <optional>

/// What the list asks of the palette around it; symbols go by their numbers in the model.
class PaletteListOwner {
public:
    virtual _CSymbol& SymbolOf(std::size_t number) = 0;
    /// A click, or Enter.
    virtual void Place(std::size_t number) = 0;
    /// The mouse leaves a tile with its button down.
    virtual void Drag(std::size_t number) = 0;
    virtual void ToggleFavourite(std::size_t number) = 0;
    virtual void Reload() = 0;
    /// A letter for the filter, or the way back to it (0).
    virtual void TypeOn(wchar_t letter) = 0;
    virtual void Leave() = 0;
    virtual void FocusNext(bool backwards) = 0;

protected:
    ~PaletteListOwner() = default;
};

/// The list of tiles: a child window that draws what is seen of it, however many symbols there are.
class PaletteList {
public:
    PaletteList(const PaletteModel& model, PaletteListOwner& owner) : model_(model), owner_(owner) {}
    PaletteList(const PaletteList&) = delete;

    void Create(HWND parent);
    HWND Window() const { return window_; }
    /// For a screen of so many dots to the inch.
    void UseLook(const PaletteLook& look);
    /// The model shows something else; the top of it is seen, and its first tile is selected or none.
    void ModelChanged(bool selectFirst);
    /// The numbers of symbols mean others.
    void SymbolsChanged() { thumbnails_.Clear(); }
    /// The model shows the same but for its first sections; what is seen stays where it is.
    void SectionsChanged();

    /// The symbol of the selected tile.
    std::optional<std::size_t> Selected() const;
    void SelectFirst();
    /// By lines of text, downwards.
    void ScrollBy(int pixels);
    void OnWheel(int delta);

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

    std::optional<std::size_t> TileAt(POINT point) const { return layout_.At(point.x, point.y + top_); }
    std::size_t NumberOf(std::size_t tile) const;
    SIZE Size() const;
    RECT PlaceOf(std::size_t tile) const;

    void Paint(HDC target);
    void DrawHeading(HDC dc, std::size_t section) const;
    void DrawTile(HDC dc, std::size_t tile, bool mayMakePicture);
    void DrawStar(HDC dc, const RECT& tile) const;
    void DrawNothingFound(HDC dc) const;

    const PaletteModel& model_;
    PaletteListOwner& owner_;
    HWND window_ = nullptr;
    const PaletteLook* look_ = nullptr;
    PaletteLayout layout_;
    PaletteThumbnails thumbnails_;
    std::unique_ptr<Bitmap> buffer_;
    int top_ = 0;       ///< of the part that is seen, in pixels of the list
    int wheelRest_ = 0; ///< of a wheel that turns in small steps
    std::optional<std::size_t> selected_;
    std::optional<std::size_t> hover_;
    std::optional<POINT> pressed_; ///< where the button went down on a tile
};
