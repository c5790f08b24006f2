#pragma once

#include "com/dual_object.h"
#include "qsymbol/tools/symbol_tool.h"

#include <QSymbol.h>

#include <optional>

/// Public class CSymTool: places or moves a group of symbol references.
class CSymTool final : public com::DualObject<CSymTool, _CSymTool> {
public:
    CSymTool();

    STDMETHODIMP get_Ready(VARIANT_BOOL* value) override;
    STDMETHODIMP get_SymRefCount(LONG* value) override;
    STDMETHODIMP AddSymref(LONG lObjId, LONG lDeltaX, LONG lDeltaY, double dAngle, _CSymbol* Sym) override;
    STDMETHODIMP Draw(IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP GetObjIdByPos(LONG lPos, LONG* value) override;
    STDMETHODIMP GetSymrefDataById(LONG lObjId, LONG* lX, LONG* lY, double* dAngle) override;
    STDMETHODIMP GetSymrefDataByPos(LONG lPos, LONG* lObjId, LONG* lX, LONG* lY, double* dAngle) override;
    STDMETHODIMP KeyUp(SHORT iKeyCode, SHORT iShift, IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP MouseDown(float sX, float sY, IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP MouseDownReal(LONG lX, LONG lY, IDispatch* pb, _CTrans* Trans,
                               VARIANT_BOOL* bSymRelativ) override;
    STDMETHODIMP MouseMove(float sScreenX, float sScreenY, IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP SetMoveStartPos(LONG lX, LONG lY) override;

private:
    /// Stores a place in the caller's variables; without one they keep their values.
    static void Hand(const std::optional<qsymbol::SymbolPosition>& place, LONG* lX, LONG* lY, double* dAngle);

    qsymbol::SymbolTool tool_;
    com::ComPtr<_CPt> point_; ///< for the conversion of mouse positions
};
