#include "qsymbol/draw/symbol_drawing.h"

#include "qsymbol/draw/element_painter.h"
#include "qsymbol/draw/surface_constants.h"
#include "qsymbol/draw/surface_factors.h"

namespace qsymbol {

void DrawSymbol(const Symbol& symbol, const SymbolPosition& position, Surface& surface,
                const Transformation& transformation, const DrawFactors& factors, std::int32_t markColor) {
    // The surface is asked even when there is nothing to draw: a host's error in it shows either way.
    const bool copyMode = surface.DrawMode() == kDrawModeCopy;
    const SurfaceFactors surfaceFactors = FactorsFor(surface, factors);
    if (IsEmpty(symbol))
        return;

    const Placement placement(Reference(symbol), position, surfaceFactors.geometry);
    ElementPainter painter(surface, transformation,
                           {.source = PaintSource::SymbolRecord,
                            .placement = placement,
                            .textFactor = surfaceFactors.text,
                            .markColor = markColor,
                            .copyMode = copyMode});
    for (const ElementRecord& element : symbol.elements)
        painter.Paint(element);
}

} // namespace qsymbol
