#pragma once

#include "qsymbol/files/format_rules.h"
#include "qsymbol/model/symbol.h"

#include <functional>
#include <string_view>

namespace qsymbol {

/// What is done with an element; it is good until the next one comes.
using ElementWork = std::function<void(const ElementRecord&)>;

/// Shows the elements of a symbol that was read from these bytes, in their order. Those of a binary file come in one
/// record that is used again, and the symbol's own stay packed: for whoever goes over a whole catalogue once.
void VisitElements(const Symbol& symbol, std::string_view bytes, const FormatRules& rules,
                   const ElementWork& work);

} // namespace qsymbol
