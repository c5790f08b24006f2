#include "automation/qsymbol/host_symbol.h"

#include "automation/qsymbol/host_target.h"
#include "automation/qsymbol/last_factors.h"
#include "qsymbol/draw/symbol_drawing.h"

#include <utility>

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

void HostSymbol::Draw(const qsymbol::SymbolPosition& place, qsymbol::DrawingTarget& target) const {
    if (own_) {
        const std::shared_ptr<const qsymbol::Symbol> value = own_->Value();
        last_factors::Keep(qsymbol::kUnscaled);
        qsymbol::DrawSymbol(*value, place, target.OpenSurface(), target.OpenTransformation(),
                            qsymbol::kUnscaled);
        return;
    }
    LONG noMark = -1;
    const qsymbol::HostObjects& host = target.Host();
    com::Check(symbol_->Draw(place.at.x, place.at.y, place.angle, host.control, host.trans,
                             qsymbol::kUnscaled.printer, qsymbol::kUnscaled.screen, &noMark));
}

std::shared_ptr<const qsymbol::DrawableSymbol> HostSymbol::Copy() const {
    qsymbol::Symbol copy;
    qsymbol::CopySymbol(copy, *com::Own<CSymbol>(symbol_.Get())->Value());
    return Share(CSymbol::CreateFrom(std::move(copy)).Get());
}
