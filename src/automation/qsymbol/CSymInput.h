#pragma once

#include "com/dual_object.h"
#include "qsymbol/tools/symbol_input.h"

#include <QSymbol.h>

/// Public class CSymInput: places one symbol. Only a catalogue makes one.
class CSymInput final : public com::DualObject<CSymInput, _CSymInput> {
public:
    CSymInput();

    /// A tool for a symbol, which it shares with its owner.
    static com::ComPtr<CSymInput> CreateFor(_CSymbol& symbol);

    STDMETHODIMP get_Angle(double* value) override;
    STDMETHODIMP put_Angle(double value) override;
    STDMETHODIMP get_PosX(LONG* value) override;
    STDMETHODIMP get_PosY(LONG* value) override;
    STDMETHODIMP get_Ready(VARIANT_BOOL* value) override;
    STDMETHODIMP Draw(IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP KeyUp(SHORT iKeyCode, SHORT iShift, IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP MouseDown(float sScreenX, float sScreenY, IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP MouseMove(float sScreenX, float sScreenY, IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP SetOldLogPos(LONG lX, LONG lY) override;

private:
    qsymbol::SymbolInput tool_;
    com::ComPtr<_CPt> point_; ///< for the conversion of mouse positions
};
