#include "qsymbol/draw/surface_factors.h"

#include <string>

namespace qsymbol {

SurfaceFactors FactorsFor(Surface& surface, const DrawFactors& factors) {
    const bool isPrinter = surface.Kind() == SurfaceKind::Printer;
    const std::u16string name = isPrinter ? std::u16string() : surface.Name();
    if (isPrinter || name == u"PreviewPABox") {
        const double factor = FactorOrOne(factors.printer);
        return {factor, factor};
    }
    // Here a factor of 0 leaves the texts as they are but draws the geometry into one point.
    if (name == u"GraphicBox")
        return {factors.screen, FactorOrOne(factors.screen)};
    return {};
}

} // namespace qsymbol
