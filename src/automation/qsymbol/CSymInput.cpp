#include "automation/qsymbol/CSymInput.h"

#include "automation/qsymbol/host_symbol.h"
#include "automation/qsymbol/host_target.h"
#include "automation/qsymbol/library.h"

namespace {

constexpr LONG kNoPosition = -1;

} // namespace

CSymInput::CSymInput() {
    library::EnsureResources();
}

com::ComPtr<CSymInput> CSymInput::CreateFor(_CSymbol& symbol) {
    com::ComPtr<CSymInput> input = Create();
    input->tool_.Init(HostSymbol::Share(&symbol));
    return input;
}

STDMETHODIMP CSymInput::get_Angle(double* value) {
    return Return(value, [&] { return tool_.Angle(); });
}

STDMETHODIMP CSymInput::put_Angle(double value) {
    return Do([&] { tool_.SetAngle(value); });
}

STDMETHODIMP CSymInput::get_PosX(LONG* value) {
    return Return(value, [&] { return tool_.Position() ? tool_.Position()->x : kNoPosition; });
}

STDMETHODIMP CSymInput::get_PosY(LONG* value) {
    return Return(value, [&] { return tool_.Position() ? tool_.Position()->y : kNoPosition; });
}

STDMETHODIMP CSymInput::get_Ready(VARIANT_BOOL* value) {
    return Return(value, [&] { return tool_.Ready() ? VARIANT_TRUE : VARIANT_FALSE; });
}

STDMETHODIMP CSymInput::Draw(IDispatch* pb, _CTrans* Trans) {
    return Do([&] {
        HostTarget target(pb, Trans, point_);
        tool_.Draw(target);
    });
}

STDMETHODIMP CSymInput::KeyUp(SHORT iKeyCode, SHORT iShift, IDispatch* pb, _CTrans* Trans) {
    return Do(library::ReportAndSwallow(u"CSymInput.KeyUp", [&] {
        HostTarget target(pb, Trans, point_);
        tool_.KeyUp(iKeyCode, iShift, target);
    }));
}

STDMETHODIMP CSymInput::MouseDown(float sScreenX, float sScreenY, IDispatch* pb, _CTrans* Trans) {
    return Do(library::ReportAndSwallow(u"CSymInput.MouseDown", [&] {
        HostTarget target(pb, Trans, point_);
        tool_.MouseDown({sScreenX, sScreenY}, target);
    }));
}

STDMETHODIMP CSymInput::MouseMove(float sScreenX, float sScreenY, IDispatch* pb, _CTrans* Trans) {
    return Do(library::Swallow([&] {
        HostTarget target(pb, Trans, point_);
        tool_.MouseMove({sScreenX, sScreenY}, target);
    }));
}

STDMETHODIMP CSymInput::SetOldLogPos(LONG lX, LONG lY) {
    return Do([&] { tool_.SetOldLogPos({lX, lY}); });
}
