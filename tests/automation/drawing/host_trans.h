#pragma once

#include "support/failure.h"
#include "support/foreign_object.h"

#include <QMath.h>

#include <functional>
#include <string>

namespace drawing {

/// A transformation of the host's own: one pixel a unit, in both directions. It can be told to fail in one of
/// its operations or to do something there.
class HostTrans final : public support::ForeignObject<_CTrans> {
public:
    static support::Ref<HostTrans> Create() { return support::Ref<HostTrans>::Attach(new HostTrans); }

    void Fail(const std::string& operation, const support::Failure& failure) {
        failing_ = operation;
        failure_ = failure;
    }
    /// Without error information.
    void FailWordless(const std::string& operation, HRESULT status) {
        Fail(operation, {status, {}, {}});
        wordless_ = true;
    }
    void OnCall(std::function<void()> action) { action_ = std::move(action); }

    STDMETHODIMP SetScale(double) override { return E_NOTIMPL; }
    STDMETHODIMP SetOffsetX(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP SetOffsetY(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP WorldToScreen(LONG*, LONG*) override { return Done("WorldToScreen"); }
    STDMETHODIMP PtWorldToScreen(_CPt**) override { return Done("PtWorldToScreen"); }
    STDMETHODIMP LengthToScreen(LONG*) override { return Done("LengthToScreen"); }
    STDMETHODIMP FontSizeToScreen(double, SHORT size, LONG* result) override {
        *result = size;
        return Done("FontSizeToScreen");
    }
    STDMETHODIMP PtScreenToWorld(_CPt**) override { return Done("PtScreenToWorld"); }
    STDMETHODIMP get_Scale(double* result) override { return *result = 1, S_OK; }
    STDMETHODIMP get_OffsetX(LONG* result) override { return *result = 0, S_OK; }
    STDMETHODIMP get_OffsetY(LONG* result) override { return *result = 0, S_OK; }

private:
    HostTrans() = default;
    HRESULT Done(const std::string& operation) const;

    std::string failing_;
    bool wordless_ = false;
    support::Failure failure_;
    std::function<void()> action_;
};

} // namespace drawing
