#include "automation/qmath/CRect.h"

STDMETHODIMP CRect::get_Left(LONG* value) {
    return Return(value, [&] { return left_; });
}

STDMETHODIMP CRect::put_Left(LONG value) {
    return Do([&] { left_ = value; });
}

STDMETHODIMP CRect::get_Top(LONG* value) {
    return Return(value, [&] { return top_; });
}

STDMETHODIMP CRect::put_Top(LONG value) {
    return Do([&] { top_ = value; });
}

STDMETHODIMP CRect::get_Right(LONG* value) {
    return Return(value, [&] { return right_; });
}

STDMETHODIMP CRect::put_Right(LONG value) {
    return Do([&] { right_ = value; });
}

STDMETHODIMP CRect::get_Bottom(LONG* value) {
    return Return(value, [&] { return bottom_; });
}

STDMETHODIMP CRect::put_Bottom(LONG value) {
    return Do([&] { bottom_ = value; });
}
