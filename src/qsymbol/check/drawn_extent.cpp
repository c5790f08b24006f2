#include "qsymbol/check/drawn_extent.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace qsymbol {

qmath::Box DrawnExtent(const Symbol& symbol) {
    const auto isText = [](const ElementRecord& element) { return element.type == ElementType::Text; };
    if (std::none_of(symbol.elements.begin(), symbol.elements.end(), isText))
        return symbol.elements.Extent().drawn;
    std::vector<ElementRecord> lines;
    std::remove_copy_if(symbol.elements.begin(), symbol.elements.end(), std::back_inserter(lines), isText);
    return ExtentOf(lines).drawn;
}

} // namespace qsymbol
