#pragma once

#include "qsymbol/model/symbol.h"

#include <string_view>

namespace support {

/// A symbol that these bytes stand for: every value that its fields can have, on up to sixteen elements.
qsymbol::Symbol ArbitrarySymbol(std::string_view bytes);

} // namespace support
