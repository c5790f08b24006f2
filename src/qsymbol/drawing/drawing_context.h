#pragma once

#include "qsymbol/drawing/colour_number.h"
#include "qsymbol/drawing/drawing_unit.h"
#include "qsymbol/drawing/dxf_tags.h"
#include "qsymbol/drawing/text_styles.h"

namespace qsymbol {

/// What all entities of one drawing share.
struct DrawingContext {
    explicit DrawingContext(DrawingUnit drawingUnit) : unit(drawingUnit) {}

    DrawingUnit unit;
    TextStyles styles;
    ColourNumbers colours;

    DxfHandle NewHandle() { return ++lastHandle; }
    double Length(double logical) const { return logical / LogicalUnitsTo(unit); }

    DxfHandle lastHandle = 0;
};

} // namespace qsymbol
