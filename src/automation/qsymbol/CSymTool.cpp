#include "automation/qsymbol/CSymTool.h"

#include "automation/qsymbol/library.h"

STDMETHODIMP CSymTool::get_Ready(VARIANT_BOOL* /*result*/) {
    return Do([] { library::NotImplemented(u"CSymTool.Ready"); });
}

STDMETHODIMP CSymTool::get_SymRefCount(LONG* /*result*/) {
    return Do([] { library::NotImplemented(u"CSymTool.SymRefCount"); });
}

STDMETHODIMP CSymTool::AddSymref(LONG /*lObjId*/, LONG /*lDeltaX*/, LONG /*lDeltaY*/, double /*dAngle*/,
                                 _CSymbol* /*Sym*/) {
    return Do([] { library::NotImplemented(u"CSymTool.AddSymref"); });
}

STDMETHODIMP CSymTool::Draw(IDispatch* /*pb*/, _CTrans* /*Trans*/) {
    return Do([] { library::NotImplemented(u"CSymTool.Draw"); });
}

STDMETHODIMP CSymTool::GetObjIdByPos(LONG /*lPos*/, LONG* /*result*/) {
    return Do([] { library::NotImplemented(u"CSymTool.GetObjIdByPos"); });
}

STDMETHODIMP CSymTool::GetSymrefDataById(LONG /*lObjId*/, LONG* /*lX*/, LONG* /*lY*/, double* /*dAngle*/) {
    return Do([] { library::NotImplemented(u"CSymTool.GetSymrefDataById"); });
}

STDMETHODIMP CSymTool::GetSymrefDataByPos(LONG /*lPos*/, LONG* /*lObjId*/, LONG* /*lX*/, LONG* /*lY*/,
                                          double* /*dAngle*/) {
    return Do([] { library::NotImplemented(u"CSymTool.GetSymrefDataByPos"); });
}

STDMETHODIMP CSymTool::KeyUp(SHORT /*iKeyCode*/, SHORT /*iShift*/, IDispatch* /*pb*/, _CTrans* /*Trans*/) {
    return Do([] { library::NotImplemented(u"CSymTool.KeyUp"); });
}

STDMETHODIMP CSymTool::MouseDown(float /*sX*/, float /*sY*/, IDispatch* /*pb*/, _CTrans* /*Trans*/) {
    return Do([] { library::NotImplemented(u"CSymTool.MouseDown"); });
}

STDMETHODIMP CSymTool::MouseDownReal(LONG /*lX*/, LONG /*lY*/, IDispatch* /*pb*/, _CTrans* /*Trans*/,
                                     VARIANT_BOOL* /*bSymRelativ*/) {
    return Do([] { library::NotImplemented(u"CSymTool.MouseDownReal"); });
}

STDMETHODIMP CSymTool::MouseMove(float /*sScreenX*/, float /*sScreenY*/, IDispatch* /*pb*/,
                                 _CTrans* /*Trans*/) {
    return Do([] { library::NotImplemented(u"CSymTool.MouseMove"); });
}

STDMETHODIMP CSymTool::SetMoveStartPos(LONG /*lX*/, LONG /*lY*/) {
    return Do([] { library::NotImplemented(u"CSymTool.SetMoveStartPos"); });
}
