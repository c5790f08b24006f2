#include "automation/qplan/host_plan_symbol.h"

#include "automation/objects/host_surface.h"
#include "automation/objects/math_objects.h"
#include "automation/objects/published_symbol.h"
#include "automation/qplan/plan_transformation.h"
#include "automation/shared/point_access.h"
#include "com/object_call.h"
#include "qsymbol/draw/symbol_drawing.h"

using qsymbol::SymbolPosition;

namespace {

/// Every call of the face looks through the host's own transformation.
_CTrans& TransOf(const qplan::View& view) {
    return static_cast<const PlanTransformation&>(view.transformation).Object();
}

} // namespace

bool HostPlanSymbol::IsHitAt(const SymbolPosition& position, const qplan::View& view,
                             qmath::Point screen) const {
    VARIANT_BOOL isHit = VARIANT_FALSE;
    com::Call(Object(), &_CSymbol::ObjIdentByPt, position.at.x, position.at.y, position.angle, &TransOf(view),
              screen.x, screen.y, &isHit);
    return isHit != VARIANT_FALSE;
}

bool HostPlanSymbol::IsHitBy(const SymbolPosition& position, const qplan::View& view,
                             const qmath::Rect& screen) const {
    VARIANT_BOOL isHit = VARIANT_FALSE;
    com::Call(Object(), &_CSymbol::ObjIdentByRect, position.at.x, position.at.y, position.angle,
              &TransOf(view), math_objects::NewRect(screen).Get(), &isHit);
    return isHit != VARIANT_FALSE;
}

std::optional<qsymbol::CaughtPoint> HostPlanSymbol::CatchPt(const SymbolPosition& position,
                                                            const qplan::View& view, float x, float y,
                                                            std::int16_t range) const {
    VARIANT_BOOL isCaught = VARIANT_FALSE;
    LONG worldX = 0;
    LONG worldY = 0;
    com::Call(Object(), &_CSymbol::CatchPt, &x, &y, &worldX, &worldY, position.at.x, position.at.y,
              position.angle, &TransOf(view), range, &isCaught);
    if (isCaught == VARIANT_FALSE)
        return std::nullopt;
    // Not every implementation moves the cursor onto the point.
    qsymbol::CaughtPoint caught{{worldX, worldY}, {worldX, worldY}};
    view.transformation.WorldToScreen(caught.screen);
    return caught;
}

qmath::Rect HostPlanSymbol::Bounds(const SymbolPosition& position, double /*screenFactor*/) const {
    com::ComPtr<_CRect> bounds;
    com::Call(Object(), &_CSymbol::GetBoundingRect, position.at.x, position.at.y, position.angle,
              bounds.InOut());
    return GetRect(bounds.Get());
}

void HostPlanSymbol::Draw(const SymbolPosition& position, qsymbol::Surface& surface,
                          const qsymbol::Transformation& transformation, const qsymbol::DrawFactors& factors,
                          std::int32_t markColor) const {
    const auto* const control = dynamic_cast<const HostSurface*>(&surface);
    const auto* const trans = dynamic_cast<const PlanTransformation*>(&transformation);
    if (control == nullptr || trans == nullptr) // a file of another format
        return DrawSymbol(*Value(), position, surface, transformation, factors, markColor);
    LONG mark = markColor;
    com::Call(Object(), &_CSymbol::Draw, position.at.x, position.at.y, position.angle, &control->Control(),
              &trans->Object(), factors.printer, factors.screen, &mark);
}

std::shared_ptr<const qsymbol::Symbol> HostPlanSymbol::Value() const {
    auto symbol = std::make_shared<qsymbol::Symbol>(ReadPublished(Object()));
    symbol->width = com::Get(Object(), &_CSymbol::get_Width);
    symbol->height = com::Get(Object(), &_CSymbol::get_Height);
    return symbol;
}
