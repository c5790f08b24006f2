#include "automation/qmath/CPt.h"

com::ComPtr<CPt> CPt::CreateFrom(const qmath::Point& point) {
    com::ComPtr<CPt> pt = Create();
    pt->point_ = point;
    return pt;
}

STDMETHODIMP CPt::get_X(LONG* value) {
    return Return(value, [&] { return point_.x; });
}

STDMETHODIMP CPt::put_X(LONG value) {
    return Do([&] { point_.x = value; });
}

STDMETHODIMP CPt::get_Y(LONG* value) {
    return Return(value, [&] { return point_.y; });
}

STDMETHODIMP CPt::put_Y(LONG value) {
    return Do([&] { point_.y = value; });
}
