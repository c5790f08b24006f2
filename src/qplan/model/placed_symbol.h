#pragma once

#include "qmath/point.h"
#include "qmath/rect.h"
#include "qplan/model/symbol_reach.h"
#include "qplan/model/view.h"
#include "qsymbol/draw/snapping.h"
#include "qsymbol/draw/surface.h"
#include "qsymbol/geometry/draw_factors.h"
#include "qsymbol/geometry/symbol_position.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace qplan {

/// Seam: a symbol as a plan uses it, one of our own (OwnSymbol) or an object of the host.
///
/// Every answer is the one that the symbol gives alone; errors pass through the plan unchanged. The plan holds its symbols by shared
/// pointers also during a call, and stands it that a call changes the plan.
class PlacedSymbol {
public:
    virtual ~PlacedSymbol() = default;

    /// A number that is another one after every change of the symbol. Asked only when the edition of the source has
    /// moved.
    virtual std::uint64_t Edition() const = 0;
    /// Asked again after the edition has changed.
    virtual SymbolReach Reach() const = 0;

    virtual bool IsHitAt(const qsymbol::SymbolPosition& position, const View& view,
                         qmath::Point screen) const = 0;
    virtual bool IsHitBy(const qsymbol::SymbolPosition& position, const View& view,
                         const qmath::Rect& screen) const = 0;
    virtual std::optional<qsymbol::CaughtPoint> CatchPt(const qsymbol::SymbolPosition& position,
                                                        const View& view, float x, float y,
                                                        std::int16_t range) const = 0;
    /// Of the outline box in world coordinates.
    virtual qmath::Rect Bounds(const qsymbol::SymbolPosition& position, double screenFactor) const = 0;
    virtual void Draw(const qsymbol::SymbolPosition& position, qsymbol::Surface& surface,
                      const qsymbol::Transformation& transformation, const qsymbol::DrawFactors& factors,
                      std::int32_t markColor) const = 0;

    /// The content, for files of other formats; made from the published members where the symbol is a host's. Never
    /// null.
    virtual std::shared_ptr<const qsymbol::Symbol> Value() const = 0;
};

} // namespace qplan
