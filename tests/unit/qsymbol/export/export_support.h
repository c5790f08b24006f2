#pragma once

#include "platform/posix/windows_1252.h"
#include "qsymbol/export/dxf_export.h"
#include "qsymbol/model/symbol.h"

#include <string>
#include <vector>

namespace export_test {

/// The bytes that an export of the symbol appends.
inline std::string Export(const qsymbol::Symbol& symbol, const qsymbol::SymbolPosition& position = {},
                          double factor = 1) {
    const platform::Windows1252 codePage;
    qsymbol::TagSink out;
    qsymbol::ExportSymbol(symbol, position, factor, codePage, out);
    return std::string(out.Bytes());
}

/// A symbol of one element with the reference point 0, 0.
inline qsymbol::Symbol Only(qsymbol::ElementRecord element, std::int32_t etagenbreite = 0) {
    qsymbol::Symbol symbol;
    symbol.elements.push_back(std::move(element));
    symbol.etagenbreite = etagenbreite;
    return symbol;
}

inline qsymbol::ElementRecord Element(qsymbol::ElementType type, std::vector<qmath::Point> points) {
    qsymbol::ElementRecord element;
    element.type = type;
    element.points = std::move(points);
    return element;
}

} // namespace export_test
