#include "automation/qsymbol/host_symbol.h"

#include "automation/qsymbol/host_surface.h"
#include "automation/qsymbol/host_transformation.h"
#include "qsymbol/draw/symbol_drawing.h"

#include <utility>

namespace {

constexpr qsymbol::DrawFactors kUnscaled{.printer = 1, .screen = 1};

} // namespace

std::shared_ptr<const HostSymbol> HostSymbol::Share(_CSymbol* symbol) {
    if (symbol == nullptr)
        return nullptr;
    auto shared = std::make_shared<HostSymbol>();
    shared->symbol_ = com::ComPtr<_CSymbol>(symbol);
    const HRESULT status = symbol->QueryInterface(__uuidof(CSymbol), shared->own_.PutVoid());
    if (status != E_NOINTERFACE)
        com::Check(status);
    return shared;
}

void HostSymbol::Draw(const qsymbol::SymbolPosition& place, qsymbol::Surface& surface,
                      const qsymbol::Transformation& transformation) const {
    if (own_) {
        const std::shared_ptr<const qsymbol::Symbol> value = own_->Value();
        qsymbol::DrawSymbol(*value, place, surface, transformation, kUnscaled);
        return;
    }
    // In this library every surface and every transformation is a host's.
    IDispatch& control = static_cast<HostSurface&>(surface).Control();
    _CTrans& trans = static_cast<const HostTransformation&>(transformation).Trans();
    LONG noMark = -1;
    com::Check(symbol_->Draw(place.at.x, place.at.y, place.angle, &control, &trans, kUnscaled.printer,
                             kUnscaled.screen, &noMark));
}

std::shared_ptr<const qsymbol::DrawableSymbol> HostSymbol::Copy() const {
    qsymbol::Symbol copy;
    qsymbol::CopySymbol(copy, *com::Own<CSymbol>(symbol_.Get())->Value());
    return Share(CSymbol::CreateFrom(std::move(copy)).Get());
}
