#include "qsymbol/model/symbol.h"

#include "qmath/str_util.h"

#include <utility>

namespace qsymbol {

std::u16string Name(const Symbol& symbol) {
    return std::u16string(qmath::NameWithoutExtension(qmath::FileNamePart(symbol.filePath)));
}

void CopySymbol(Symbol& target, const Symbol& source) {
    // All copies first, so that running out of memory leaves the target as it was.
    std::u16string path = source.filePath;
    ElementList elements = source.elements;
    target.filePath = std::move(path);
    target.elements = std::move(elements);
    target.refX = source.refX;
    target.refY = source.refY;
}

void ResetContent(Symbol& symbol) {
    // A new list instead of clear(): the memory of the old elements must not add to that of the next ones.
    symbol.elements = ElementList();
    symbol.refX = 0;
    symbol.refY = 0;
    symbol.width = 0;
    symbol.height = 0;
}

} // namespace qsymbol
