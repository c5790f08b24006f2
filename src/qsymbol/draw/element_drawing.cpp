#include "qsymbol/draw/element_drawing.h"

#include "base/checked.h"
#include "qsymbol/draw/element_painter.h"
#include "qsymbol/draw/surface_constants.h"

#include <cstdint>

namespace qsymbol {

namespace {

constexpr std::int32_t kHandleReach = 3;
constexpr std::int32_t kHandleSize = 2 * kHandleReach + 1;

} // namespace

void DrawElement(const ElementRecord& element, Surface& surface, const Transformation& transformation) {
    ElementPainter(surface, transformation, PaintRules()).Paint(element);
}

void DrawElements(std::size_t count, const std::function<ElementRecord(std::size_t)>& element,
                  Surface& surface, const Transformation& transformation) {
    if (count == 0)
        return;
    surface.PutDrawMode(kDrawModeCopy);
    PaintRules rules;
    rules.copyMode = true;
    ElementPainter painter(surface, transformation, rules);
    for (std::size_t i = 0; i < count; ++i)
        painter.Paint(element(i));
}

void DrawTracker(std::span<const qmath::Point> points, Surface& surface,
                 const Transformation& transformation) {
    for (qmath::Point point : points) {
        transformation.WorldToScreen(point);
        surface.Invert({base::CheckedSub(point.x, kHandleReach), base::CheckedSub(point.y, kHandleReach)},
                       kHandleSize, kHandleSize);
    }
}

} // namespace qsymbol
