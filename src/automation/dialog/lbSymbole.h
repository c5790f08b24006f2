#pragma once

#include "qsymbol/dialog/type_ahead.h"

#include <QSymbol.h>

#include <string>
#include <string_view>
#include <vector>

namespace dialog {

/// The list box with the names of a catalogue, in its order.
class lbSymbole {
public:
    /// Takes the typed letters of the list box, whose user data it keeps.
    void Attach(HWND list);

    /// Replaces the entries by the names of all symbols. What a failing symbol leaves undone is left out.
    void Fill(_CSymbolColl& catalogue);
    const std::vector<std::u16string>& Names() const { return names_; }

    /// The first entry that is exactly this text; -1 for none.
    int Find(std::u16string_view name) const;
    void Select(int entry);
    /// -1 for none.
    int Selected() const;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Type(char16_t letter);
    void Add(std::u16string name);
    void Clear();
    void FitScrolling() const;

    HWND list_ = nullptr;
    WNDPROC ownProcedure_ = nullptr;
    qsymbol::TypeAhead typed_;
    std::vector<std::u16string> names_;
};

} // namespace dialog
