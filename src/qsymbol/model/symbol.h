#pragma once

#include "qsymbol/model/element_list.h"

#include <cstdint>
#include <string>

namespace qsymbol {

/// One symbol: a named drawing with a reference point (its insertion point) and a nominal size, in
/// logical units.
struct Symbol {
    ElementList elements;
    std::int32_t refX = 0;
    std::int32_t refY = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::u16string filePath;
    std::int32_t etagenbreite = 0; ///< the host's mirror value for Y in the DXF output

    friend bool operator==(const Symbol&, const Symbol&) = default;
};

/// The insertion point in the symbol's own coordinates.
inline qmath::Point Reference(const Symbol& symbol) {
    return {symbol.refX, symbol.refY};
}

/// A symbol without elements: it draws and exports nothing and is never hit, wherever it is placed.
inline bool IsEmpty(const Symbol& symbol) {
    return symbol.elements.empty();
}

/// The file's name without folder and extension; "" without a path.
std::u16string Name(const Symbol& symbol);

/// Copies path, reference point and elements; size and mirror value of the target stay as they are.
void CopySymbol(Symbol& target, const Symbol& source);

/// No elements, size and reference point 0; path and mirror value stay. What every reader starts from.
void ResetContent(Symbol& symbol);

} // namespace qsymbol
