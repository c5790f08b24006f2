#include "automation/qsymbol/CSymTool.h"

#include "automation/qsymbol/host_symbol.h"
#include "automation/qsymbol/host_target.h"
#include "automation/qsymbol/library.h"

CSymTool::CSymTool() {
    library::EnsureResources();
}

STDMETHODIMP CSymTool::get_Ready(VARIANT_BOOL* value) {
    return Return(value, [&] { return tool_.Ready() ? VARIANT_TRUE : VARIANT_FALSE; });
}

STDMETHODIMP CSymTool::get_SymRefCount(LONG* value) {
    return Return(value, [&] { return tool_.SymRefCount(); });
}

STDMETHODIMP CSymTool::AddSymref(LONG lObjId, LONG lDeltaX, LONG lDeltaY, double dAngle, _CSymbol* Sym) {
    return Do([&] { tool_.AddSymref(lObjId, {lDeltaX, lDeltaY}, dAngle, HostSymbol::Share(Sym)); });
}

STDMETHODIMP CSymTool::Draw(IDispatch* pb, _CTrans* Trans) {
    return Do([&] {
        HostTarget target(pb, Trans, point_);
        tool_.Draw(target);
    });
}

STDMETHODIMP CSymTool::GetObjIdByPos(LONG lPos, LONG* value) {
    return Return(value, [&] { return tool_.GetObjIdByPos(lPos); });
}

STDMETHODIMP CSymTool::GetSymrefDataById(LONG lObjId, LONG* lX, LONG* lY, double* dAngle) {
    return Do([&] { Hand(tool_.GetSymrefDataById(lObjId), lX, lY, dAngle); });
}

STDMETHODIMP CSymTool::GetSymrefDataByPos(LONG lPos, LONG* lObjId, LONG* lX, LONG* lY, double* dAngle) {
    return Do([&] {
        LONG& objectId = com::Out(lObjId);
        const std::optional<qsymbol::SymbolPosition> place = tool_.GetSymrefDataByPos(lPos);
        Hand(place, lX, lY, dAngle);
        if (place)
            objectId = tool_.GetObjIdByPos(lPos);
    });
}

void CSymTool::Hand(const std::optional<qsymbol::SymbolPosition>& place, LONG* lX, LONG* lY, double* dAngle) {
    LONG& x = com::Out(lX);
    LONG& y = com::Out(lY);
    double& angle = com::Out(dAngle);
    if (!place)
        return;
    x = place->at.x;
    y = place->at.y;
    angle = place->angle;
}

STDMETHODIMP CSymTool::KeyUp(SHORT iKeyCode, SHORT /*iShift*/, IDispatch* pb, _CTrans* Trans) {
    return Do(library::ReportAndSwallow(u"CSymTool.KeyUp", [&] {
        HostTarget target(pb, Trans, point_);
        tool_.KeyUp(iKeyCode, target);
    }));
}

STDMETHODIMP CSymTool::MouseDown(float sX, float sY, IDispatch* pb, _CTrans* Trans) {
    return Do(library::ReportAndSwallow(u"CSymTool.MouseDown", [&] {
        HostTarget target(pb, Trans, point_);
        tool_.MouseDown({sX, sY}, target);
    }));
}

STDMETHODIMP CSymTool::MouseDownReal(LONG lX, LONG lY, IDispatch* pb, _CTrans* Trans,
                                     VARIANT_BOOL* bSymRelativ) {
    return Do(library::ReportAndSwallow(u"CSymTool.MouseDown", [&] {
        HostTarget target(pb, Trans, point_);
        const bool relative = bSymRelativ != nullptr && *bSymRelativ != VARIANT_FALSE;
        tool_.MouseDownReal({lX, lY}, relative, target);
    }));
}

STDMETHODIMP CSymTool::MouseMove(float sScreenX, float sScreenY, IDispatch* pb, _CTrans* Trans) {
    return Do(library::ReportAndSwallow(u"CSymTool.MouseMove", [&] {
        HostTarget target(pb, Trans, point_);
        tool_.MouseMove({sScreenX, sScreenY}, target);
    }));
}

STDMETHODIMP CSymTool::SetMoveStartPos(LONG lX, LONG lY) {
    return Do(library::ReportAndSwallow(u"CSymTool.SetMoveStartPos", [&] {
        tool_.SetMoveStartPos({lX, lY});
    }));
}
