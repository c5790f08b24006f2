#include "qsymbol/check/symbol_summary.h"

namespace qsymbol {

void SymbolSummary::Count(const ElementRecord& element) {
    points += element.points.size();
    switch (element.type) {
    case ElementType::Poly: ++poly; break;
    case ElementType::Circle: ++circle; break;
    case ElementType::Arc: ++arc; break;
    case ElementType::Text: ++text; break;
    case ElementType::Undefined:
    default: ++undefined; break;
    }
}

} // namespace qsymbol
