#include "support/foreign_symbol.h"

#include "support/dispatch.h"

#include <oleauto.h>

namespace support {

STDMETHODIMP ForeignSymbol::get_Name(BSTR* result) {
    *result = SysAllocStringLen(name_.data(), static_cast<UINT>(name_.size()));
    return Done("Name");
}

STDMETHODIMP ForeignSymbol::get_Width(LONG* result) {
    *result = width_;
    return Done("Width");
}

STDMETHODIMP ForeignSymbol::get_Height(LONG* result) {
    *result = height_;
    return Done("Height");
}

STDMETHODIMP ForeignSymbol::Draw(LONG lLogX, LONG lLogY, double dAngle, IDispatch* ctrl, _CTrans* Trans,
                                 double dSymPrinterFaktor, double dSymBSFaktor, LONG* lMarkColor) {
    const LONG mode = Dispatch(ctrl).Get(L"DrawMode").value.Long();
    draws_.push_back({lLogX, lLogY, dAngle, ctrl, Trans, dSymPrinterFaktor, dSymBSFaktor, *lMarkColor, mode});
    return Done("Draw");
}

STDMETHODIMP ForeignSymbol::Draw2PBox(IDispatch* PBox) {
    const Ref<ForeignSymbol> alive(this);
    ++fits_;
    if (const auto action = fit_)
        action(PBox);
    return Done("Draw2PBox");
}

} // namespace support
