#include "automation/qplan/shared_symbol.h"

#include "base/error.h"
#include "qsymbol/model/symbol_content.h"

using qsymbol::SymbolPosition;

std::shared_ptr<const SharedSymbol> SharedSymbol::Take(_CSymbol& symbol, com::ComPtr<ISymbolValue> value) {
    std::shared_ptr<SharedSymbol> taken(new SharedSymbol(symbol, std::move(value)));
    return taken->TakeOver() ? taken : nullptr;
}

bool SharedSymbol::TakeOver() const {
    const std::uint64_t edition = value_->Edition();
    BYTE* bytes = nullptr;
    ULONG count = 0;
    com::Call(*value_.Get(), &ISymbolValue::Content, &bytes, &count);
    const std::unique_ptr<BYTE, decltype(&CoTaskMemFree)> owner(bytes, CoTaskMemFree);
    auto symbol = qsymbol::UnpackSymbol({reinterpret_cast<const char*>(bytes), count});
    if (!symbol)
        return false;
    own_ = std::make_shared<const qplan::OwnSymbol>(*std::move(symbol));
    edition_ = edition;
    return true;
}

std::uint64_t SharedSymbol::Edition() const {
    if (value_->Edition() != edition_)
        TakeOver();
    return edition_;
}

bool SharedSymbol::IsHitAt(const SymbolPosition& position, const qplan::View& view,
                           qmath::Point screen) const {
    const auto held = own_;
    return held->IsHitAt(position, view, screen);
}

bool SharedSymbol::IsHitBy(const SymbolPosition& position, const qplan::View& view,
                           const qmath::Rect& screen) const {
    const auto held = own_;
    return held->IsHitBy(position, view, screen);
}

std::optional<qsymbol::CaughtPoint> SharedSymbol::CatchPt(const SymbolPosition& position,
                                                          const qplan::View& view, float x, float y,
                                                          std::int16_t range) const {
    const auto held = own_;
    return held->CatchPt(position, view, x, y, range);
}

qmath::Rect SharedSymbol::Bounds(const SymbolPosition& position, double screenFactor) const {
    return own_->Bounds(position, screenFactor);
}

void SharedSymbol::Draw(const SymbolPosition& position, qsymbol::Surface& surface,
                        const qsymbol::Transformation& transformation, const qsymbol::DrawFactors& factors,
                        std::int32_t markColor) const {
    const auto held = own_;
    held->Draw(position, surface, transformation, factors, markColor);
}

std::shared_ptr<const qsymbol::Symbol> SharedSymbol::Value() const {
    Edition();
    return own_->Value();
}
