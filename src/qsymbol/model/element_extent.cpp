#include "qsymbol/model/element_extent.h"

#include "qmath/arc.h"

#include <cmath>

namespace qsymbol {

namespace {

/// What a line covers on either side. A filled circle keeps its line inside, as the GDI's inside frame does; the
/// thinnest pen, a pixel wide on every surface, has no width here.
double HalfPen(const ElementRecord& element) {
    const bool keepsInside = element.type == ElementType::Circle && element.fillColor >= 0;
    return element.lineWidth < 1 || keepsInside ? 0 : element.lineWidth / 2.0;
}

/// The rim's point in a direction.
void IncludeRim(qmath::Box& box, const ElementRecord& arc, double dx, double dy) {
    const double radius = std::abs(static_cast<double>(arc.radius)) / std::hypot(dx, dy);
    box.Include(arc.points[0].x + radius * dx, arc.points[0].y + radius * dy, HalfPen(arc));
}

void IncludeArc(qmath::Box& box, const ElementRecord& arc) {
    const qmath::Arc shape{arc.points[0], arc.points[1], arc.points[2]};
    for (const qmath::Way end : {shape.StartRay(), shape.EndRay()})
        IncludeRim(box, arc, static_cast<double>(end.x), static_cast<double>(end.y));
    for (const qmath::Way axis : {qmath::Way{1, 0}, {0, -1}, {-1, 0}, {0, 1}})
        if (shape.Covers(axis))
            IncludeRim(box, arc, static_cast<double>(axis.x), static_cast<double>(axis.y));
}

void Include(qmath::Box& box, const ElementRecord& element) {
    const double pen = HalfPen(element);
    switch (element.type) {
    case ElementType::Poly:
        for (const qmath::Point point : element.points)
            box.Include(point.x, point.y, pen);
        return;
    case ElementType::Circle:
        return box.Include(element.points[0].x, element.points[0].y,
                           std::abs(static_cast<double>(element.radius)) + pen);
    case ElementType::Arc: return IncludeArc(box, element);
    case ElementType::Text:
        if (!element.text.empty())
            box.Include(element.points[0].x, element.points[0].y);
        return;
    case ElementType::Undefined: return; // GCOVR_EXCL_LINE: without its points it does not come here
    }
}

} // namespace

bool HasItsPoints(const ElementRecord& element) {
    switch (element.type) {
    case ElementType::Arc: return element.points.size() >= 3;
    case ElementType::Undefined: return false;
    default: return !element.points.empty();
    }
}

ElementExtent ExtentOf(std::span<const ElementRecord> elements) {
    ElementExtent extent;
    for (const ElementRecord& element : elements) {
        for (const qmath::Point point : element.points)
            extent.points.Include(point.x, point.y);
        if (HasItsPoints(element))
            Include(extent.drawn, element);
    }
    return extent;
}

} // namespace qsymbol
