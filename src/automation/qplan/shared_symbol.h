#pragma once

#include "automation/qplan/symbol_object.h"
#include "automation/shared/library_values.h"
#include "qplan/model/own_symbol.h"

#include <memory>

/// A symbol of our own library: its value, taken over anew when it has changed.
class SharedSymbol final : public SymbolObject {
public:
    /// Empty when the object is of another form than this library reads.
    static std::shared_ptr<const SharedSymbol> Take(_CSymbol& symbol, com::ComPtr<ISymbolValue> value);

    std::uint64_t Edition() const override;
    qplan::SymbolReach Reach() const override { return own_->Reach(); }
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
    std::shared_ptr<const qsymbol::Symbol> Value() const override;

private:
    SharedSymbol(_CSymbol& symbol, com::ComPtr<ISymbolValue> value)
        : SymbolObject(symbol), value_(std::move(value)) {}

    /// False when the bytes are of another form.
    bool TakeOver() const;

    com::ComPtr<ISymbolValue> value_;
    // Replaced as a whole: what draws holds the one that it began with.
    mutable std::shared_ptr<const qplan::OwnSymbol> own_;
    mutable std::uint64_t edition_ = 0;
};
