#pragma once

#include "com/dual_object.h"

#include <QSymbol.h>

/// Public class CSymTool: places a group of symbol references. Its members come with a later version.
class CSymTool final : public com::DualObject<CSymTool, _CSymTool> {
public:
    STDMETHODIMP get_Ready(VARIANT_BOOL* result) override;
    STDMETHODIMP get_SymRefCount(LONG* result) override;
    STDMETHODIMP AddSymref(LONG lObjId, LONG lDeltaX, LONG lDeltaY, double dAngle, _CSymbol* Sym) override;
    STDMETHODIMP Draw(IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP GetObjIdByPos(LONG lPos, LONG* result) override;
    STDMETHODIMP GetSymrefDataById(LONG lObjId, LONG* lX, LONG* lY, double* dAngle) override;
    STDMETHODIMP GetSymrefDataByPos(LONG lPos, LONG* lObjId, LONG* lX, LONG* lY, double* dAngle) override;
    STDMETHODIMP KeyUp(SHORT iKeyCode, SHORT iShift, IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP MouseDown(float sX, float sY, IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP MouseDownReal(LONG lX, LONG lY, IDispatch* pb, _CTrans* Trans,
                               VARIANT_BOOL* bSymRelativ) override;
    STDMETHODIMP MouseMove(float sScreenX, float sScreenY, IDispatch* pb, _CTrans* Trans) override;
    STDMETHODIMP SetMoveStartPos(LONG lX, LONG lY) override;
};
