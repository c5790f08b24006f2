#pragma once

#include "com/dual_object.h"
#include "qplan/model/placement.h"

#include <QPlan.h>

class CPlan;

/// Public class CPlacement: a placed symbol, known by its plan and its id.
class CPlacement final : public com::DualObject<CPlacement, _CPlacement> {
public:
    static com::ComPtr<CPlacement> CreateFor(CPlan& plan, std::int32_t id);

    STDMETHODIMP get_Id(LONG* value) override;
    STDMETHODIMP get_SymbolName(BSTR* value) override;
    STDMETHODIMP get_Symbol(_CSymbol** value) override;
    STDMETHODIMP get_LogX(LONG* value) override;
    STDMETHODIMP put_LogX(LONG value) override;
    STDMETHODIMP get_LogY(LONG* value) override;
    STDMETHODIMP put_LogY(LONG value) override;
    STDMETHODIMP get_Angle(double* value) override;
    STDMETHODIMP put_Angle(double value) override;

private:
    /// Error 91 when the plan has removed it.
    const qplan::Placement& Placed() const;
    void Move(const qsymbol::SymbolPosition& position);

    com::ComPtr<CPlan> plan_;
    std::int32_t id_ = 0;
};
