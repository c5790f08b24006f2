#include "qplan/model/symbol_reach.h"

#include "qmath/arc.h"
#include "qmath/math_util.h"
#include "qsymbol/draw/font_size.h"
#include "qsymbol/draw/surface_constants.h"
#include "qsymbol/geometry/placed_box.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace qplan {

namespace {

constexpr double kMillimetresToAPoint = 25.4 / 72;
constexpr double kLargestFont = 32768;
/// No character is wider than so many heights of its font, and none of those that drawings mostly use.
constexpr double kWidest = 2;
constexpr double kWidestOfUsual = 1.2;
/// What a letter reaches beyond its cell, and the cell above and below any line through it.
constexpr double kBeyond = 1;
constexpr double kAboveAndBelow = 2;

/// A point and what lies around it.
void Include(SymbolReach& reach, double x, double y, double around) {
    reach.drawn.Include(x, y, around);
    reach.length = std::max(reach.length, around);
}

/// The height of the text's font in logical units, at most that of the largest that can be drawn.
double FontHeight(const qsymbol::ElementRecord& text) {
    const double points = std::min(std::abs(text.font->size) + 0.5, kLargestFont);
    const double height = points * kMillimetresToAPoint * qsymbol::kFontFactor;
    return qsymbol::HasFlaggedSize(text) ? height / qsymbol::kFlaggedSizeDivisor : height;
}

double WidestOf(const qsymbol::FontRecord& font) {
    return font.name == u"Arial" || font.name == u"Times New Roman" ? kWidestOfUsual : kWidest;
}

void IncludeText(SymbolReach& reach, const qsymbol::ElementRecord& text) {
    const qmath::Point anchor = text.points[0];
    Include(reach, anchor.x, anchor.y, 0);
    if (!text.font) {
        // It has the font of the surface, of which nothing is known.
        reach.pixels = std::numeric_limits<double>::infinity();
        return;
    }
    const double heights = WidestOf(*text.font) * static_cast<double>(text.text.size());
    reach.pixels = std::max(reach.pixels, heights + kAboveAndBelow);
    const double unit = FontHeight(text);
    const bool isCentred = (text.textAlign & qsymbol::kTextAlignCenter) == qsymbol::kTextAlignCenter;
    const bool isRight = !isCentred && (text.textAlign & qsymbol::kTextAlignRight) != 0;
    const double left = isRight ? heights : isCentred ? heights / 2 : 0;
    const double right = isRight ? 0 : isCentred ? heights / 2 : heights;
    const double sine = std::sin(text.textAngle);
    const double cosine = std::cos(text.textAngle);
    for (const double along : {-left - kBeyond, right + kBeyond})
        for (const double down : {-kAboveAndBelow, kAboveAndBelow})
            reach.drawn.Include(anchor.x + (along * cosine + down * sine) * unit,
                                anchor.y + (down * cosine - along * sine) * unit);
    reach.length = std::max(reach.length, (heights + kBeyond + kAboveAndBelow) * unit);
}

/// Whether the pixels of an arc's ends say the same sweep as the arc, give or take a few pixels: they do not when it is
/// nearly nothing or nearly a full turn, or when the ends are near its centre.
bool HasPlainSweep(const qsymbol::ElementRecord& arc, const qmath::Arc& shape) {
    constexpr double kLeast = 1.2; // radians
    constexpr double kOnTheRim = 0.9;
    const auto direction = [](qmath::Way way) {
        return std::atan2(static_cast<double>(way.y), static_cast<double>(way.x));
    };
    const double between =
        std::remainder(direction(shape.EndRay()) - direction(shape.StartRay()), 2 * qmath::kPi);
    const double radius = std::abs(static_cast<double>(arc.radius));
    return std::abs(between) > kLeast && qmath::Distance(arc.points[0], arc.points[1]) > radius * kOnTheRim &&
           qmath::Distance(arc.points[0], arc.points[2]) > radius * kOnTheRim;
}

void IncludeRound(SymbolReach& reach, const qsymbol::ElementRecord& element, double pen) {
    // The pixels of the largest circle on which such ends can fall together.
    constexpr double kPixels = 4;
    const qmath::Point centre = element.points[0];
    const double radius = std::abs(static_cast<double>(element.radius));
    if (element.type == qsymbol::ElementType::Arc && element.points.size() >= 3) {
        const qmath::Arc shape{element.points[0], element.points[1], element.points[2]};
        if (!shape.IsFullTurn() && HasPlainSweep(element, shape)) {
            const qmath::Box drawn = qsymbol::ExtentOf(std::span(&element, 1)).drawn;
            reach.drawn.Include(drawn.left, drawn.top, pen);
            reach.drawn.Include(drawn.right, drawn.bottom, pen);
            reach.pixels = std::max(reach.pixels, kPixels);
            reach.length = std::max(reach.length, radius + pen);
            return;
        }
    }
    Include(reach, centre.x, centre.y, radius + pen);
}

void Include(SymbolReach& reach, const qsymbol::ElementRecord& element) {
    using qsymbol::ElementType;
    if (element.points.empty())
        return;
    if (element.type == ElementType::Text)
        return IncludeText(reach, element);
    const double pen = std::max(0, element.lineWidth) / 2.0;
    for (const qmath::Point point : element.points)
        Include(reach, point.x, point.y, pen);
    if (element.type == ElementType::Circle || element.type == ElementType::Arc)
        IncludeRound(reach, element, pen);
}

} // namespace

SymbolReach ReachOf(const qsymbol::Symbol& symbol) {
    SymbolReach reach;
    if (IsEmpty(symbol))
        return reach;
    for (const qsymbol::ElementRecord& element : symbol.elements)
        Include(reach, element);
    reach.box = reach.drawn;
    reach.box.Include(0, 0);
    reach.box.Include(symbol.width, symbol.height);
    reach.box = qsymbol::SeenFrom(Reference(symbol), reach.box);
    reach.drawn = qsymbol::SeenFrom(Reference(symbol), reach.drawn);
    reach.isHitWithin = true; // by its outline
    return reach;
}

} // namespace qplan
