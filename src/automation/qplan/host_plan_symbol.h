#pragma once

#include "automation/qplan/symbol_object.h"

/// A symbol of the host's own making, or one of ours in another apartment: it is asked itself, each time.
class HostPlanSymbol final : public SymbolObject {
public:
    explicit HostPlanSymbol(_CSymbol& symbol) : SymbolObject(symbol) {}

    /// Another one each time: it may have changed.
    std::uint64_t Edition() const override { return ++asked_; }
    qplan::SymbolReach Reach() const override { return qplan::SymbolReach::Unlimited(); }
    bool IsHitAt(const qsymbol::SymbolPosition& position, const qplan::View& view,
                 qmath::Point screen) const override;
    bool IsHitBy(const qsymbol::SymbolPosition& position, const qplan::View& view,
                 const qmath::Rect& screen) const override;
    std::optional<qsymbol::CaughtPoint> CatchPt(const qsymbol::SymbolPosition& position,
                                                const qplan::View& view, float x, float y,
                                                std::int16_t range) const override;
    qmath::Rect Bounds(const qsymbol::SymbolPosition& position, double screenFactor) const override;
    void Draw(const qsymbol::SymbolPosition& position, qsymbol::Surface& surface,
              const qsymbol::Transformation& transformation, const qsymbol::DrawFactors& factors,
              std::int32_t markColor) const override;
    /// What its published members tell.
    std::shared_ptr<const qsymbol::Symbol> Value() const override;

private:
    mutable std::uint64_t asked_ = 0;
};
