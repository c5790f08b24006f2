#pragma once

#include "qsymbol/draw/kept_font.h"
#include "qsymbol/draw/paint_rules.h"
#include "qsymbol/draw/surface_pen.h"
#include "qsymbol/geometry/transformation.h"
#include "qsymbol/model/element_record.h"

#include <cstdint>
#include <span>

namespace qsymbol {

/// Draws elements by type within one draw call; the only place that knows how each type is drawn.
///
/// Errors of surface and transformation end the call, as does error 6 where a pixel leaves the 32-bit range.
class ElementPainter {
public:
    ElementPainter(Surface& surface, const Transformation& transformation, const PaintRules& rules)
        : surface_(surface), transformation_(transformation), rules_(rules), pen_(surface), font_(surface) {}

    /// Draws nothing for an unknown type or a number of points that the type cannot have.
    void Paint(const ElementRecord& element);

private:
    bool CanBePainted(const ElementRecord& element) const;
    void PaintPoly(const ElementRecord& element);
    void PaintRound(const ElementRecord& element);
    void PutArc(const ElementRecord& arc, const qmath::Rect& box, qmath::Point start, qmath::Point end);
    void PaintText(const ElementRecord& element);
    bool InCopyMode();
    void PutPen(const ElementRecord& element, bool filled);
    std::int32_t Colour(std::int32_t own) const { return rules_.markColor >= 0 ? rules_.markColor : own; }
    base::FontRequest FontFor(const ElementRecord& element) const;
    std::int32_t FontHeight(const ElementRecord& element) const;
    void ToScreen(std::span<const qmath::Point> points, std::span<qmath::Point> screen) const;

    Surface& surface_;
    const Transformation& transformation_;
    PaintRules rules_;
    SurfacePen pen_;
    KeptFont font_;
};

} // namespace qsymbol
