#include "qsymbol/draw/element_painter.h"

#include "base/checked.h"
#include "qmath/arc.h"
#include "qmath/math_util.h"
#include "qsymbol/draw/font_size.h"
#include "qsymbol/draw/screen_point_buffer.h"
#include "qsymbol/draw/surface_constants.h"
#include "qsymbol/model/element_extent.h"

#include <algorithm>
#include <array>

namespace qsymbol {

namespace {

std::size_t PointCount(ElementType type) {
    return type == ElementType::Arc ? 3 : 1;
}

qmath::Rect SquareAround(qmath::Point centre, std::int32_t radius) {
    return {base::CheckedSub(centre.x, radius), base::CheckedSub(centre.y, radius),
            base::CheckedAdd(centre.x, radius), base::CheckedAdd(centre.y, radius)};
}

} // namespace

void ElementPainter::Paint(const ElementRecord& element) {
    if (!CanBePainted(element))
        return;
    switch (element.type) {
    case ElementType::Poly: return PaintPoly(element);
    case ElementType::Circle:
    case ElementType::Arc: return PaintRound(element);
    case ElementType::Text: return PaintText(element);
    case ElementType::Undefined: return; // GCOVR_EXCL_LINE: CanBePainted has refused it
    }
}

bool ElementPainter::CanBePainted(const ElementRecord& element) const {
    if (rules_.source == PaintSource::SymbolRecord)
        return HasItsPoints(element);
    const std::size_t count = element.points.size();
    switch (element.type) {
    case ElementType::Poly: return count >= 2;
    case ElementType::Text: return count >= 1;
    default: return count == PointCount(element.type);
    }
}

void ElementPainter::PaintPoly(const ElementRecord& element) {
    pen_.ForeColor(Colour(element.mainColor));
    PutPen(element, element.lineClosed && element.fillColor >= 0);

    const ScreenPointBuffer buffer(element.points.size());
    ToScreen(element.points, buffer.Points());
    // An editor's element is output without its last point.
    const std::size_t kept =
        rules_.source == PaintSource::Element ? element.points.size() - 1 : element.points.size();
    const std::span<const qmath::Point> output = buffer.Points().first(kept);
    if (element.lineClosed)
        surface_.Polygon(output);
    else
        surface_.Polyline(output);
}

void ElementPainter::PaintRound(const ElementRecord& element) {
    const bool isCircle = element.type == ElementType::Circle;
    pen_.ForeColor(Colour(element.mainColor));
    PutPen(element, isCircle && element.fillColor >= 0);

    const std::size_t count = PointCount(element.type);
    const ScreenPointBuffer buffer(4);
    const std::span<qmath::Point> points = buffer.Points();
    const std::span<const qmath::Point> own(element.points);
    ToScreen(own.first(1), points.first(1));
    const std::int32_t radius = transformation_.LengthToScreen(rules_.placement.MapLength(element.radius));
    const qmath::Rect box = SquareAround(points[0], radius);
    ToScreen(own.subspan(1, count - 1), points.subspan(2, count - 1));
    points[0] = {box.left, box.top};
    points[1] = {box.right, box.bottom};
    if (isCircle)
        surface_.Ellipse(box);
    else
        PutArc(element, box, points[2], points[3]);
}

/// What the element says about its sweep counts, not what is left of it in pixels: the GDI draws the whole circle
/// when both rays are the same.
void ElementPainter::PutArc(const ElementRecord& arc, const qmath::Rect& box, qmath::Point start,
                            qmath::Point end) {
    const qmath::Arc own{arc.points[0], arc.points[1], arc.points[2]};
    if (own.IsFullTurn())
        return surface_.Arc(box, start, start);
    if (start == end && own.IsBelowHalfTurn()) {
        // A line leaves out its last pixel.
        const std::array<qmath::Point, 2> pixel{start, {base::CheckedAdd(start.x, 1), start.y}};
        return surface_.Polyline(pixel);
    }
    surface_.Arc(box, start, end);
}

void ElementPainter::PaintText(const ElementRecord& element) {
    pen_.ForeColor(Colour(element.mainColor));
    const bool copyMode = InCopyMode();
    surface_.SetTextAlign(element.textAlign);
    // An editor's element keeps its background even where that is not painted.
    const bool keepsBackground = copyMode || rules_.source == PaintSource::Element;
    surface_.SetBkMode(keepsBackground ? element.textBkMode : kBkModeTransparent);

    if (element.font)
        font_.Select(FontFor(element));
    else
        font_.Release();
    const ScreenPointBuffer buffer(1);
    ToScreen(std::span(element.points).first(1), buffer.Points());
    if (copyMode)
        surface_.WriteText(buffer.Points()[0], element.text);
    else
        surface_.WriteTextAsPath(buffer.Points()[0], element.text);
}

/// Only texts depend on it, so only they make the surface be asked.
bool ElementPainter::InCopyMode() {
    if (!rules_.copyMode)
        rules_.copyMode = surface_.DrawMode() == kDrawModeCopy;
    return *rules_.copyMode;
}

void ElementPainter::PutPen(const ElementRecord& element, bool filled) {
    pen_.DrawWidth(std::max(1, transformation_.LengthToScreen(element.lineWidth)));
    if (filled) {
        pen_.DrawStyle(element.lineWidth < 1 ? kDrawStyleInvisible : kDrawStyleInsideSolid);
        pen_.FillColor(Colour(element.fillColor));
        pen_.FillStyle(kFillStyleSolid);
    } else {
        pen_.DrawStyle(kDrawStyleSolid);
        pen_.FillColor(kBlack);
        pen_.FillStyle(kFillStyleTransparent);
    }
}

base::FontRequest ElementPainter::FontFor(const ElementRecord& element) const {
    base::FontRequest request;
    request.escapement =
        base::RoundToLong(qmath::RadToDeg(rules_.placement.Angle() + element.textAngle) * 10.0);
    request.height = FontHeight(element);
    request.bold = element.font->bold;
    request.italic = element.font->italic;
    request.underline = element.font->underline;
    request.strikethrough = element.font->strikethrough;
    request.name = element.font->name;
    return request;
}

/// Divided and multiplied as a double and rounded once at the end; at least one pixel.
std::int32_t ElementPainter::FontHeight(const ElementRecord& element) const {
    const std::int16_t size = base::RoundToInteger(element.font->size);
    double height = transformation_.FontSizeToScreen(kFontFactor, size);
    if (rules_.source == PaintSource::SymbolRecord && HasFlaggedSize(element))
        height /= kFlaggedSizeDivisor;
    return std::max(1, base::RoundToLong(height * rules_.textFactor));
}

void ElementPainter::ToScreen(std::span<const qmath::Point> points, std::span<qmath::Point> screen) const {
    rules_.placement.Map(points, screen.data());
    transformation_.PointsToScreen(screen.first(points.size()));
}

} // namespace qsymbol
