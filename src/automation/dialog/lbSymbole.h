#pragma once

#include <QSymbol.h>

#include <string>
#include <string_view>
#include <vector>

namespace dialog {

/// The list box with the names of a catalogue, in its order.
class lbSymbole {
public:
    void Attach(HWND list) { list_ = list; }

    /// Replaces the entries by the names of all symbols. What a failing symbol leaves undone is left out.
    void Fill(_CSymbolColl& catalogue);
    const std::vector<std::u16string>& Names() const { return names_; }

    /// The first entry that is exactly this text; -1 for none.
    int Find(std::u16string_view name) const;
    void Select(int entry);
    /// -1 for none.
    int Selected() const;

private:
    void Add(std::u16string name);
    void Clear();
    void FitScrolling() const;

    HWND list_ = nullptr;
    std::vector<std::u16string> names_;
};

} // namespace dialog
