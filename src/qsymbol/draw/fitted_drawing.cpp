#include "qsymbol/draw/fitted_drawing.h"

#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/draw/symbol_extent.h"
#include "qsymbol/geometry/plain_transformation.h"

namespace qsymbol {

namespace {

/// A symbol flatter than this is fitted by its width whatever the box.
constexpr double kFlat = 0.0001;

double FittingScale(double width, double height, double boxWidth, double boxHeight) {
    const double byWidth = width / boxWidth;
    const double byHeight = height / boxHeight;
    if (width <= 0)
        return byHeight;
    const double ratio = height / width;
    return ratio < kFlat || ratio <= boxHeight / boxWidth ? byWidth : byHeight;
}

} // namespace

void DrawFitted(const Symbol& symbol, Surface& surface, double boxWidth, double boxHeight,
                const base::TextMeasure* texts) {
    if (!(boxWidth > 0 && boxHeight > 0))
        return;
    qmath::Transform transform;
    double width = symbol.width;
    double height = symbol.height;
    if (width <= 0 && height <= 0) {
        const qmath::Rect extent = SymbolExtent(symbol, texts);
        transform.SetOffsetX(extent.left);
        transform.SetOffsetY(extent.top);
        width = static_cast<double>(extent.right) - extent.left;
        height = static_cast<double>(extent.bottom) - extent.top;
        if (width <= 0 && height <= 0)
            return;
    }
    transform.SetScale(FittingScale(width, height, boxWidth, boxHeight));
    DrawSymbol(symbol, {.at = Reference(symbol), .angle = 0}, surface, PlainTransformation(transform),
               kUnscaled);
}

} // namespace qsymbol
