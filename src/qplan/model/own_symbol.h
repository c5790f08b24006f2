#pragma once

#include "qplan/model/placed_symbol.h"

#include <utility>

namespace qplan {

/// A symbol value of our own in a plan.
class OwnSymbol final : public PlacedSymbol {
public:
    explicit OwnSymbol(qsymbol::Symbol symbol) { Put(std::move(symbol)); }

    /// Gives it another content.
    void Put(qsymbol::Symbol symbol);

    std::uint64_t Edition() const override { return edition_; }
    SymbolReach Reach() const override { return ReachOf(*symbol_); }
    bool IsHitAt(const qsymbol::SymbolPosition& position, const View& view,
                 qmath::Point screen) const override;
    bool IsHitBy(const qsymbol::SymbolPosition& position, const View& view,
                 const qmath::Rect& screen) const override;
    std::optional<qsymbol::CaughtPoint> CatchPt(const qsymbol::SymbolPosition& position, const View& view,
                                                float x, float y, std::int16_t range) const override;
    qmath::Rect Bounds(const qsymbol::SymbolPosition& position, double screenFactor) const override;
    void Draw(const qsymbol::SymbolPosition& position, qsymbol::Surface& surface,
              const qsymbol::Transformation& transformation, const qsymbol::DrawFactors& factors,
              std::int32_t markColor) const override;
    std::shared_ptr<const qsymbol::Symbol> Value() const override { return symbol_; }

private:
    std::shared_ptr<const qsymbol::Symbol> symbol_;
    std::uint64_t edition_ = 0;
};

} // namespace qplan
