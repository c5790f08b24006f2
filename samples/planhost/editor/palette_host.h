#pragma once

#include "../catalogue.h"
#include "settings.h"

#include <filesystem>
#include <string>

/// What a palette asks of the editor that it stands in.
class PaletteHost {
public:
    virtual _CSymbolColl& Catalogue() = 0;
    virtual const std::filesystem::path& CatalogueFolder() const = 0;
    virtual Settings& Remembered() = 0;

    /// The symbol hangs at the mouse until a click places it.
    virtual void BeginPlacing(const std::wstring& name) = 0;
    /// The same while the mouse button is down: the plan takes the mouse, and the symbol is placed where the button is
    /// let go; outside of the plan nothing comes of it.
    virtual void BeginDragging(const std::wstring& name) = 0;
    /// Loads the catalogue's folder anew; Catalogue() is another object then.
    virtual void ReloadCatalogue() = 0;
    /// Gives the keyboard back to the plan.
    virtual void FocusPlan() = 0;

protected:
    ~PaletteHost() = default;
};

/// A strip at the left of the plan, a child of the editor's window, in which symbols are chosen.
class PaletteStrip {
public:
    virtual ~PaletteStrip() = default;

    /// The child window; the editor moves it to its place.
    virtual HWND Window() const = 0;
    /// How wide it wants to be, in pixels; 0 while it is shut. dots: of the screen to the inch.
    virtual int Width(UINT dots) const = 0;
    /// Gives its filter field the keyboard.
    virtual void FocusFilter() = 0;
    virtual void CatalogueChanged() = 0;
    /// A symbol of this name has come into the plan.
    virtual void SymbolPlaced(const std::wstring& name) = 0;
};
