#pragma once

#include "qsymbol/model/symbol.h"

#include <optional>
#include <string>
#include <string_view>

namespace qsymbol {

/// Everything of a symbol as bytes, for another library of this product in the same process: both may be of different
/// builds, so they share no memory layout.
std::string PackSymbol(const Symbol& symbol);

/// The symbol again, equal in every field; nothing for bytes of another form.
std::optional<Symbol> UnpackSymbol(std::string_view bytes);

} // namespace qsymbol
