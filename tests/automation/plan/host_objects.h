#pragma once

#include "support/automation_test.h"
#include "support/foreign_object.h"
#include "support/shapes.h"

#include <QPlan.h>

#include <cmath>
#include <functional>
#include <map>
#include <string>

namespace plan {

using support::Ref;

/// A symbol of a host's own making that does what another one does; it can be told to do something before.
class HostSymbol final : public support::ForeignObject<_CSymbol> {
public:
    static Ref<HostSymbol> Create(Ref<_CSymbol> inner) {
        return Ref<HostSymbol>::Attach(new HostSymbol(std::move(inner)));
    }
    void OnCall(std::function<void()> action) { action_ = std::move(action); }
    void Fail(const support::Failure& failure) { failure_ = failure; }
    int Draws() const { return draws_; }

    STDMETHODIMP get_FilePath(BSTR* r) override { return inner_->get_FilePath(r); }
    STDMETHODIMP put_FilePath(BSTR v) override { return inner_->put_FilePath(v); }
    STDMETHODIMP get_Name(BSTR* r) override { return inner_->get_Name(r); }
    STDMETHODIMP get_RefX(LONG* r) override { return inner_->get_RefX(r); }
    STDMETHODIMP get_RefY(LONG* r) override { return inner_->get_RefY(r); }
    STDMETHODIMP get_Width(LONG* r) override { return inner_->get_Width(r); }
    STDMETHODIMP get_Height(LONG* r) override { return inner_->get_Height(r); }
    STDMETHODIMP put_Width(LONG v) override { return inner_->put_Width(v); }
    STDMETHODIMP put_Height(LONG v) override { return inner_->put_Height(v); }
    STDMETHODIMP CreateNew(LONG x, LONG y, LONG w, LONG h, _CSymElementColl* e) override {
        return inner_->CreateNew(x, y, w, h, e);
    }
    STDMETHODIMP Draw(LONG x, LONG y, double a, IDispatch* c, _CTrans* t, double p, double s,
                      LONG* m) override {
        ++draws_;
        return After(inner_->Draw(x, y, a, c, t, p, s, m));
    }
    STDMETHODIMP DxfExport(LONG, LONG, double, LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP CatchPt(float* x, float* y, LONG* wx, LONG* wy, LONG lx, LONG ly, double a, _CTrans* t,
                         SHORT r, VARIANT_BOOL* v) override {
        return After(inner_->CatchPt(x, y, wx, wy, lx, ly, a, t, r, v));
    }
    STDMETHODIMP Draw2PBox(IDispatch*) override { return E_NOTIMPL; }
    STDMETHODIMP GetBoundingRect(LONG x, LONG y, double a, _CRect** r) override {
        return After(inner_->GetBoundingRect(x, y, a, r));
    }
    STDMETHODIMP GetSymElements(_CSymElementColl** r) override { return inner_->GetSymElements(r); }
    STDMETHODIMP ObjIdentByPt(LONG x, LONG y, double a, _CTrans* t, LONG sx, LONG sy,
                              VARIANT_BOOL* v) override {
        return After(inner_->ObjIdentByPt(x, y, a, t, sx, sy, v));
    }
    STDMETHODIMP ObjIdentByRect(LONG x, LONG y, double a, _CTrans* t, _CRect* r, VARIANT_BOOL* v) override {
        return After(inner_->ObjIdentByRect(x, y, a, t, r, v));
    }
    STDMETHODIMP ReadFromFile() override { return E_NOTIMPL; }
    STDMETHODIMP Write2File() override { return E_NOTIMPL; }
    STDMETHODIMP put_Etagenbreite(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP DxfExportSym(LONG, LONG, double, BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP GetColor2ColNr(SHORT, VARIANT_BOOL, LONG*) override { return E_NOTIMPL; }

private:
    explicit HostSymbol(Ref<_CSymbol> inner) : inner_(std::move(inner)) {}
    HRESULT After(HRESULT status) const {
        const std::function<void()> action = action_;
        const support::Failure failure = failure_;
        if (action)
            action();
        return failure == support::Failure{} ? status : support::Throw(failure);
    }

    Ref<_CSymbol> inner_;
    std::function<void()> action_;
    support::Failure failure_;
    int draws_ = 0;
};

/// A catalogue of a host's own making. It finds names as they are written.
class HostCatalogue final : public support::ForeignObject<_CSymbolColl> {
public:
    static Ref<HostCatalogue> Create() { return Ref<HostCatalogue>::Attach(new HostCatalogue); }
    std::map<std::wstring, Ref<_CSymbol>> symbols;
    std::function<void()> onFind;

    STDMETHODIMP get_ItemByIndex(BSTR name, _CSymbol** result) override {
        const Ref<HostCatalogue> alive(this);
        const auto found = symbols.find(std::wstring(name, SysStringLen(name)));
        *result = found == symbols.end() ? nullptr : found->second.Get();
        if (*result != nullptr)
            (*result)->AddRef();
        if (onFind)
            onFind();
        return S_OK;
    }
    // Nothing else is asked of it.
    STDMETHODIMP get_Count(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_ItemByPos(LONG, _CSymbol**) override { return E_NOTIMPL; }
    STDMETHODIMP get_NewEnum(IUnknown**) override { return E_NOTIMPL; }
    STDMETHODIMP Clear() override { return E_NOTIMPL; }
    STDMETHODIMP ItemDa(BSTR, VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP Append(_CSymbol*) override { return E_NOTIMPL; }
    STDMETHODIMP AppendRef(_CSymbol**) override { return E_NOTIMPL; }
    STDMETHODIMP RemoveOnPos(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP RemoveOnIndex(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP ReadListe(BSTR, IDispatch*, VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP ReadKatalog(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP GetSymInput(BSTR, _CSymInput**) override { return E_NOTIMPL; }
    STDMETHODIMP SelectSymNameDlg(BSTR, BSTR*) override { return E_NOTIMPL; }
};

/// A transformation of a host's own making that turns and mirrors what it shows.
class TurningTrans final : public support::ForeignObject<_CTrans> {
public:
    static Ref<_CTrans> Create(double scale) { return Ref<_CTrans>::Attach(new TurningTrans(scale)); }

    STDMETHODIMP WorldToScreen(LONG* x, LONG* y) override {
        const double worldX = *x;
        const double worldY = *y;
        *x = std::lround((kCosine * worldX - kSine * worldY) / scale_) + kMiddle;
        *y = std::lround((-kSine * worldX - kCosine * worldY) / scale_) + kMiddle;
        return S_OK;
    }
    STDMETHODIMP PtWorldToScreen(_CPt** pt) override {
        POINT at = support::At(*pt);
        WorldToScreen(&at.x, &at.y);
        return Put(*pt, at);
    }
    STDMETHODIMP PtScreenToWorld(_CPt** pt) override {
        const POINT at = support::At(*pt);
        const double x = (at.x - kMiddle) * scale_;
        const double y = (at.y - kMiddle) * scale_;
        return Put(*pt, {std::lround(kCosine * x - kSine * y), std::lround(-kSine * x - kCosine * y)});
    }
    STDMETHODIMP LengthToScreen(LONG* length) override {
        return *length = std::lround(*length / scale_), S_OK;
    }
    STDMETHODIMP FontSizeToScreen(double factor, SHORT size, LONG* result) override {
        return *result = std::max(1L, std::lround(size * factor * 25.4 / 72 / scale_)), S_OK;
    }
    STDMETHODIMP SetScale(double) override { return E_NOTIMPL; }
    STDMETHODIMP SetOffsetX(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP SetOffsetY(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP get_Scale(double*) override { return E_NOTIMPL; }
    STDMETHODIMP get_OffsetX(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_OffsetY(LONG*) override { return E_NOTIMPL; }

private:
    static constexpr double kCosine = 0.8;
    static constexpr double kSine = 0.6;
    static constexpr LONG kMiddle = 120;

    explicit TurningTrans(double scale) : scale_(scale) {}
    static HRESULT Put(_CPt* pt, POINT at) { return pt->put_X(at.x), pt->put_Y(at.y); }

    double scale_;
};

} // namespace plan
