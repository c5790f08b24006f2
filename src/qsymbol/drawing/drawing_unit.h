#pragma once

namespace qsymbol {

/// What one unit of a drawing measures.
enum class DrawingUnit { Millimetre, Centimetre, Metre };

/// Logical units (1/100 mm) to a unit of the drawing.
constexpr double LogicalUnitsTo(DrawingUnit unit) {
    switch (unit) {
    case DrawingUnit::Centimetre: return 1000;
    case DrawingUnit::Metre: return 100000;
    default: return 100;
    }
}

/// The number that the header's $INSUNITS has for it.
constexpr int InsertionUnits(DrawingUnit unit) {
    switch (unit) {
    case DrawingUnit::Centimetre: return 5;
    case DrawingUnit::Metre: return 6;
    default: return 4;
    }
}

} // namespace qsymbol
