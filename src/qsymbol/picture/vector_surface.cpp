#include "qsymbol/picture/vector_surface.h"

#include "qmath/math_util.h"
#include "qsymbol/draw/surface_constants.h"
#include "qsymbol/picture/arc_bounds.h"
#include "qsymbol/picture/font_metrics.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace qsymbol {

namespace {

/// Colours of the system carry a flag above their three bytes.
constexpr std::int32_t kColourBits = 0xFFFFFF;
constexpr std::int32_t kBkModeOpaque = 2;
/// A pen of one unit is what a width of 0 becomes.
constexpr std::int32_t kHairline = 1;

// Text alignment, as the GDI numbers it.
constexpr std::int32_t kSideBits = 6;
constexpr std::int32_t kRight = 2;
constexpr std::int32_t kCentre = 6;
constexpr std::int32_t kLineBits = 24;
constexpr std::int32_t kTop = 0;
constexpr std::int32_t kBottom = 8;
constexpr std::int32_t kRightToLeft = 256;

TextSide SideOf(std::int32_t flags) {
    switch (flags & kSideBits) {
    case kCentre: return TextSide::Centre;
    case kRight: return TextSide::Right;
    default: return TextSide::Left;
    }
}

/// How far the base line lies below the anchor, in em sizes.
double DropOf(std::int32_t flags, const FontMetrics& metrics) {
    switch (flags & kLineBits) {
    case kTop: return metrics.ascent;
    case kBottom: return -metrics.descent;
    default: return 0;
    }
}

/// The font of a surface on which none was selected: the standard one of text elements, 6 points.
const base::FontRequest& StandardFont() {
    static const base::FontRequest font{.height = 212, .name = u"Arial"};
    return font;
}

qmath::Vector CentreOf(const qmath::Rect& box) {
    return {(static_cast<double>(box.left) + box.right) / 2, (static_cast<double>(box.top) + box.bottom) / 2};
}

double RadiusOf(const qmath::Rect& box) {
    return std::abs(static_cast<double>(box.right) - box.left) / 2;
}

/// In [0, 2π), y growing upwards.
double Direction(qmath::Vector centre, qmath::Point point) {
    return qmath::VectorAngle(point.x - centre.x, centre.y - point.y);
}

/// The vector (right, down) of a text's own line, turned into the picture.
qmath::Vector Turned(double right, double down, double degrees) {
    const double angle = qmath::DegToRad(degrees);
    return {right * std::cos(angle) + down * std::sin(angle),
            down * std::cos(angle) - right * std::sin(angle)};
}

} // namespace

std::int32_t VectorSurface::DrawMode() {
    return kDrawModeCopy;
}

void VectorSurface::Line(qmath::Point from, qmath::Point to) {
    Poly(std::array{from, to}, false);
}

void VectorSurface::Polygon(std::span<const qmath::Point> points) {
    if (points.size() > 2 && points.front() == points.back())
        points = points.first(points.size() - 1);
    Poly(points, true);
}

void VectorSurface::Polyline(std::span<const qmath::Point> points) {
    Poly(points, false);
}

void VectorSurface::Poly(std::span<const qmath::Point> points, bool closed) {
    const Paint paint = CurrentPaint(closed);
    if (points.size() < 2 || (!paint.line && !paint.fill))
        return;
    for (const qmath::Point point : points)
        bounds_.Include(point.x, point.y, paint.width / 2);
    OnPoly(points, closed, paint);
}

void VectorSurface::Ellipse(const qmath::Rect& box) {
    const Paint paint = CurrentPaint(true);
    const double radius = RadiusOf(box);
    if (!(radius > 0) || (!paint.line && !paint.fill))
        return;
    // A pen that draws inside stays within the box; one as wide as the circle leaves nothing but itself.
    const bool inside = drawStyle_ == kDrawStyleInsideSolid && paint.line;
    const double reach = inside ? 0 : paint.width / 2;
    const qmath::Vector centre = CentreOf(box);
    bounds_.Include(centre.x, centre.y, radius + reach);
    if (!inside || paint.width <= 0)
        return OnCircle(centre, radius, paint);
    Paint fill;
    fill.fill = paint.fill;
    if (paint.width >= 2 * radius) {
        fill.fill = paint.line;
        return OnCircle(centre, radius, fill);
    }
    OnCircle(centre, radius - paint.width / 2, paint);
}

void VectorSurface::Arc(const qmath::Rect& box, qmath::Point start, qmath::Point end) {
    const Paint paint = CurrentPaint(false);
    const qmath::Vector centre = CentreOf(box);
    const double radius = RadiusOf(box);
    if (!(radius > 0) || !paint.line)
        return;
    const double from = Direction(centre, start);
    const double to = Direction(centre, end);
    const double sweep = to > from ? to - from : to - from + qmath::kTwoPi;
    // Seen with y downwards the arc grows from its end back to its start.
    bounds_.Include(ArcBounds(centre, radius, -(from + sweep), sweep, paint.width / 2));
    OnArc(centre, radius, from, sweep, paint);
}

void VectorSurface::WriteText(qmath::Point anchor, std::u16string_view text) {
    const base::FontRequest& font = font_ ? *font_ : StandardFont();
    const FontMetrics& metrics = MetricsOf(font.name);
    const double degrees = font.escapement / 10.0;
    const qmath::Vector drop = Turned(0, DropOf(textAlign_, metrics) * font.height, degrees);
    const PictureText placed{.baseline = {anchor.x + drop.x, anchor.y + drop.y},
                             .side = SideOf(textAlign_),
                             .degrees = degrees,
                             .width = TextWidth(text, font),
                             .opaque = bkMode_ == kBkModeOpaque,
                             .rightToLeft = (textAlign_ & kRightToLeft) != 0,
                             .colour = foreColor_ & kColourBits,
                             .font = &font,
                             .text = text};
    IncludeText(placed, metrics.ascent * font.height, metrics.descent * font.height);
    OnText(placed);
}

void VectorSurface::WriteTextAsPath(qmath::Point anchor, std::u16string_view text) {
    WriteText(anchor, text);
}

void VectorSurface::IncludeText(const PictureText& text, double ascent, double descent) {
    const double part = text.side == TextSide::Left ? 0 : text.side == TextSide::Centre ? 0.5 : 1;
    const double left = -part * text.width;
    for (const double x : {left, left + text.width})
        for (const double y : {-ascent, descent}) {
            const qmath::Vector corner = Turned(x, y, text.degrees);
            bounds_.Include(text.baseline.x + corner.x, text.baseline.y + corner.y);
        }
}

Paint VectorSurface::CurrentPaint(bool mayFill) const {
    Paint paint;
    if (drawStyle_ != kDrawStyleInvisible) {
        paint.line = foreColor_ & kColourBits;
        paint.width = drawWidth_ <= kHairline ? 0 : drawWidth_;
    }
    if (mayFill && fillStyle_ == kFillStyleSolid)
        paint.fill = fillColor_ & kColourBits;
    return paint;
}

} // namespace qsymbol
