#pragma once

#include "qmath/box.h"
#include "qsymbol/model/element_record.h"

#include <span>

namespace qsymbol {

/// Where a list of elements reaches to, in the symbol's own coordinates.
struct ElementExtent {
    qmath::Box points; ///< every point of every element
    /// What lines, circles and arcs cover with their pens, arcs by their sweep; of a text its anchor.
    qmath::Box drawn;
};

ElementExtent ExtentOf(std::span<const ElementRecord> elements);

/// Whether the record has the points that it is drawn from as part of a symbol.
bool HasItsPoints(const ElementRecord& element);

} // namespace qsymbol
