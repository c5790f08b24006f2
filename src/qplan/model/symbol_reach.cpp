#include "qplan/model/symbol_reach.h"

#include "qsymbol/draw/font_size.h"

#include <algorithm>
#include <cmath>

namespace qplan {

namespace {

constexpr double kMillimetresToAPoint = 25.4 / 72;
/// No font has characters wider than so many of its heights, and whatever side of its anchor a text is on.
constexpr double kWidest = 2;
constexpr double kLargestFont = 32768;

/// The height of the text's font in logical units, at most that of the largest that can be drawn.
double FontHeight(const qsymbol::ElementRecord& text) {
    const double points = std::min(std::abs(text.font->size) + 1, kLargestFont);
    const double height = points * kMillimetresToAPoint * qsymbol::kFontFactor;
    return qsymbol::HasFlaggedSize(text) ? height / qsymbol::kFlaggedSizeDivisor : height;
}

/// A point and what lies around it.
void Include(SymbolReach& reach, qmath::Point point, double around) {
    reach.box.Include(point.x, point.y, around);
    reach.length = std::max(reach.length, around);
}

void IncludeText(SymbolReach& reach, const qsymbol::ElementRecord& text) {
    const double heights = kWidest * (static_cast<double>(text.text.size()) + 1);
    // Without a font of its own it has that of the surface, of which nothing is known.
    reach.pixels = std::max(reach.pixels, text.font ? heights : std::numeric_limits<double>::infinity());
    if (text.font)
        Include(reach, text.points[0], heights * FontHeight(text));
}

void Include(SymbolReach& reach, const qsymbol::ElementRecord& element) {
    using qsymbol::ElementType;
    if (element.points.empty())
        return;
    if (element.type == ElementType::Text)
        return IncludeText(reach, element);
    const double pen = std::max(0, element.lineWidth) / 2.0;
    for (const qmath::Point point : element.points)
        Include(reach, point, pen);
    if (element.type == ElementType::Circle || element.type == ElementType::Arc)
        Include(reach, element.points[0], std::abs(static_cast<double>(element.radius)) + pen);
}

} // namespace

SymbolReach ReachOf(const qsymbol::Symbol& symbol) {
    SymbolReach reach;
    if (IsEmpty(symbol))
        return reach;
    reach.box.Include(0, 0);
    reach.box.Include(symbol.width, symbol.height);
    for (const qsymbol::ElementRecord& element : symbol.elements)
        Include(reach, element);
    reach.box.left -= symbol.refX;
    reach.box.right -= symbol.refX;
    reach.box.top -= symbol.refY;
    reach.box.bottom -= symbol.refY;
    return reach;
}

} // namespace qplan
