#pragma once

#include <QSymbol.h>

#include <cstddef>

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
