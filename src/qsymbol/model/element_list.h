#pragma once

#include "qsymbol/model/element_record.h"

#include <vector>

namespace qsymbol {

/// A symbol's elements in drawing order: later ones paint over earlier ones.
using ElementList = std::vector<ElementRecord>;

} // namespace qsymbol
