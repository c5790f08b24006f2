#include "qsymbol/check/symbol_summary.h"

namespace qsymbol {

SymbolSummary Summarise(const Symbol& symbol) {
    SymbolSummary summary;
    for (const ElementRecord& element : symbol.elements) {
        summary.points += element.points.size();
        switch (element.type) {
        case ElementType::Poly: ++summary.poly; break;
        case ElementType::Circle: ++summary.circle; break;
        case ElementType::Arc: ++summary.arc; break;
        case ElementType::Text: ++summary.text; break;
        case ElementType::Undefined:
        default: ++summary.undefined; break;
        }
    }
    return summary;
}

} // namespace qsymbol
