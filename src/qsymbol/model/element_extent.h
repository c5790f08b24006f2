#pragma once

#include "qmath/rect.h"
#include "qsymbol/model/element_record.h"

#include <limits>
#include <span>

namespace qsymbol {

/// An axis-parallel box before rounding. It starts out empty and grows.
struct Box {
    double left = std::numeric_limits<double>::infinity();
    double top = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double bottom = -std::numeric_limits<double>::infinity();

    bool IsEmpty() const { return left > right; }
    /// Takes in a point with so much around it.
    void Include(double x, double y, double reach = 0) {
        left = left < x - reach ? left : x - reach;
        top = top < y - reach ? top : y - reach;
        right = right > x + reach ? right : x + reach;
        bottom = bottom > y + reach ? bottom : y + reach;
    }
};

/// Where a list of elements reaches to, in the symbol's own coordinates.
struct ElementExtent {
    Box points; ///< every point of every element
    /// What lines, circles and arcs cover with their pens, arcs by their sweep; of a text its anchor.
    Box drawn;
};

ElementExtent ExtentOf(std::span<const ElementRecord> elements);

/// Whether the record has the points that it is drawn from as part of a symbol.
bool HasItsPoints(const ElementRecord& element);

} // namespace qsymbol
