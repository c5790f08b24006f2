#include "automation/qplan/CPlacement.h"

#include "automation/qplan/CPlan.h"
#include "com/bstr.h"

com::ComPtr<CPlacement> CPlacement::CreateFor(CPlan& plan, std::int32_t id) {
    com::ComPtr<CPlacement> placement = Create();
    placement->plan_ = com::ComPtr<CPlan>(&plan);
    placement->id_ = id;
    return placement;
}

const qplan::Placement& CPlacement::Placed() const {
    const qplan::Placement* const placed = plan_->Value().ById(id_);
    if (placed == nullptr)
        base::Raise(base::RunTimeError::ObjectNotSet);
    return *placed;
}

void CPlacement::Move(const qsymbol::SymbolPosition& position) {
    plan_->Value().Move(id_, position);
}

STDMETHODIMP CPlacement::get_Id(LONG* value) {
    return Return(value, [&] { return id_; });
}

STDMETHODIMP CPlacement::get_SymbolName(BSTR* value) {
    return Return(value, [&] { return com::NewBstr(plan_->Value().NameOf(Placed())); });
}

STDMETHODIMP CPlacement::get_Symbol(_CSymbol** value) {
    return Return(value, [&] {
        const auto symbol = plan_->Value().SymbolOf(Placed());
        return com::ComPtr<_CSymbol>(&static_cast<const SymbolObject&>(*symbol).Object()).Detach();
    });
}

STDMETHODIMP CPlacement::get_LogX(LONG* value) {
    return Return(value, [&] { return Placed().position.at.x; });
}

STDMETHODIMP CPlacement::put_LogX(LONG value) {
    return Do([&] {
        const qsymbol::SymbolPosition& old = Placed().position;
        Move({{value, old.at.y}, old.angle});
    });
}

STDMETHODIMP CPlacement::get_LogY(LONG* value) {
    return Return(value, [&] { return Placed().position.at.y; });
}

STDMETHODIMP CPlacement::put_LogY(LONG value) {
    return Do([&] {
        const qsymbol::SymbolPosition& old = Placed().position;
        Move({{old.at.x, value}, old.angle});
    });
}

STDMETHODIMP CPlacement::get_Angle(double* value) {
    return Return(value, [&] { return Placed().position.angle; });
}

STDMETHODIMP CPlacement::put_Angle(double value) {
    return Do([&] { Move({Placed().position.at, value}); });
}
