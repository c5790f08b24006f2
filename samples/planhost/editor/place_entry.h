#pragma once

#include "typed_place.h"

#include <functional>

/// A field at the mouse into which a place is typed while something hangs there.
class PlaceEntry {
public:
    PlaceEntry() = default;
    PlaceEntry(const PlaceEntry&) = delete;

    /// begin: the character that was typed already; take: what happens with the place.
    void Open(HWND plan, POINT at, const std::wstring& begin, std::function<void(const TypedMove&)> take);
    void Close();

private:
    static LRESULT CALLBACK OnMessage(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                      DWORD_PTR entry);
    void Accept();

    HWND field_ = nullptr;
    std::function<void(const TypedMove&)> take_;
};
