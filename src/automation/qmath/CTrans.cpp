#include "automation/qmath/CTrans.h"

#include "automation/shared/library_values.h"
#include "automation/shared/point_access.h"
#include "com/unknown_object.h"

#include <new>

namespace {

class TransformValue final : public com::UnknownObject<ITransformValue> {
public:
    explicit TransformValue(CTrans& trans) : trans_(&trans) {}

    void* STDMETHODCALLTYPE Object() override { return static_cast<_CTrans*>(trans_.Get()); }
    void STDMETHODCALLTYPE Get(double* scale, LONG* offsetX, LONG* offsetY) override {
        *scale = trans_->Value().Scale();
        *offsetX = trans_->Value().OffsetX();
        *offsetY = trans_->Value().OffsetY();
    }

private:
    com::ComPtr<CTrans> trans_;
};

} // namespace

HRESULT CTrans::QueryMore(REFIID iid, void** object) {
    if (iid != __uuidof(ITransformValue))
        return E_NOINTERFACE;
    ITransformValue* const value = new (std::nothrow) TransformValue(*this);
    *object = value;
    return value == nullptr ? E_OUTOFMEMORY : S_OK;
}

STDMETHODIMP CTrans::SetScale(double scale) {
    return Do([&] { transform_.SetScale(scale); });
}

STDMETHODIMP CTrans::SetOffsetX(LONG value) {
    return Do([&] { transform_.SetOffsetX(value); });
}

STDMETHODIMP CTrans::SetOffsetY(LONG value) {
    return Do([&] { transform_.SetOffsetY(value); });
}

STDMETHODIMP CTrans::WorldToScreen(LONG* x, LONG* y) {
    return Compute([&] { // the workhorse of all drawing
        const qmath::Point pixel = transform_.WorldToScreen({com::Out(x), com::Out(y)});
        *x = pixel.x;
        *y = pixel.y;
    });
}

STDMETHODIMP CTrans::PtWorldToScreen(_CPt** pt) {
    return Do([&] {
        const com::ComPtr<_CPt> point(com::Out(pt));
        SetPoint(point.Get(), transform_.WorldToScreen(GetPoint(point.Get())));
    });
}

STDMETHODIMP CTrans::LengthToScreen(LONG* length) {
    return Do([&] {
        LONG& value = com::Out(length);
        value = transform_.LengthToScreen(value);
    });
}

STDMETHODIMP CTrans::FontSizeToScreen(double factor, SHORT size, LONG* value) {
    return Return(value, [&] { return transform_.FontSizeToScreen(factor, size); });
}

STDMETHODIMP CTrans::PtScreenToWorld(_CPt** pt) {
    return Do([&] {
        const com::ComPtr<_CPt> point(com::Out(pt));
        SetPoint(point.Get(), transform_.ScreenToWorld(GetPoint(point.Get())));
    });
}

STDMETHODIMP CTrans::get_Scale(double* value) {
    return Return(value, [&] { return transform_.Scale(); });
}

STDMETHODIMP CTrans::get_OffsetX(LONG* value) {
    return Return(value, [&] { return transform_.OffsetX(); });
}

STDMETHODIMP CTrans::get_OffsetY(LONG* value) {
    return Return(value, [&] { return transform_.OffsetY(); });
}
