#include "automation/qsymbol/host_symbol.h"

#include "automation/qsymbol/host_target.h"
#include "automation/qsymbol/last_factors.h"
#include "automation/qsymbol/symbol_access.h"
#include "qsymbol/draw/symbol_drawing.h"

#include <utility>

std::shared_ptr<const HostSymbol> HostSymbol::Share(_CSymbol* symbol) {
    if (symbol == nullptr)
        return nullptr;
    auto shared = std::make_shared<HostSymbol>();
    shared->symbol_ = com::ComPtr<_CSymbol>(symbol);
    shared->own_ = com::Own<CSymbol>(*symbol);
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
    com::Call(*symbol_, &_CSymbol::Draw, place.at.x, place.at.y, place.angle, host.control.Get(),
              host.trans.Get(), qsymbol::kUnscaled.printer, qsymbol::kUnscaled.screen, &noMark);
}

std::shared_ptr<const qsymbol::DrawableSymbol> HostSymbol::Copy() const {
    return Share(CSymbol::CreateFrom(CopyOf(*symbol_.Get())).Get());
}
