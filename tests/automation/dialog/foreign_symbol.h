#pragma once

#include "support/failure.h"
#include "support/ref.h"

#include <QSymbol.h>

#include <functional>
#include <string>

namespace dialog {

/// A symbol of the host's own in a catalogue. The dialog asks for name and size and lets it draw; each can be
/// told to fail.
class ForeignSymbol final : public _CSymbol {
public:
    static support::Ref<ForeignSymbol> Create(const std::wstring& name, LONG width = 100, LONG height = 100) {
        return support::Ref<ForeignSymbol>::Attach(new ForeignSymbol(name, width, height));
    }

    /// "Name", "Width", "Height" or "Draw2PBox" fails from now on.
    void Fail(const std::string& member, const support::Failure& failure) {
        failing_ = member;
        failure_ = failure;
    }
    void OnDraw(std::function<void(IDispatch* box)> action) { draw_ = std::move(action); }
    int Draws() const { return draws_; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    STDMETHODIMP get_Name(BSTR* result) override;
    STDMETHODIMP get_Width(LONG* result) override;
    STDMETHODIMP get_Height(LONG* result) override;
    STDMETHODIMP Draw2PBox(IDispatch* box) override;

    STDMETHODIMP get_FilePath(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP put_FilePath(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_RefX(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_RefY(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_Width(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP put_Height(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP CreateNew(LONG, LONG, LONG, LONG, _CSymElementColl*) override { return E_NOTIMPL; }
    STDMETHODIMP Draw(LONG, LONG, double, IDispatch*, _CTrans*, double, double, LONG*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP DxfExport(LONG, LONG, double, LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP CatchPt(float*, float*, LONG*, LONG*, LONG, LONG, double, _CTrans*, SHORT,
                         VARIANT_BOOL*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP GetBoundingRect(LONG, LONG, double, _CRect**) override { return E_NOTIMPL; }
    STDMETHODIMP GetSymElements(_CSymElementColl**) override { return E_NOTIMPL; }
    STDMETHODIMP ObjIdentByPt(LONG, LONG, double, _CTrans*, LONG, LONG, VARIANT_BOOL*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP ObjIdentByRect(LONG, LONG, double, _CTrans*, _CRect*, VARIANT_BOOL*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP ReadFromFile() override { return E_NOTIMPL; }
    STDMETHODIMP Write2File() override { return E_NOTIMPL; }
    STDMETHODIMP put_Etagenbreite(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP DxfExportSym(LONG, LONG, double, BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP GetColor2ColNr(SHORT, VARIANT_BOOL, LONG*) override { return E_NOTIMPL; }

private:
    ForeignSymbol(std::wstring name, LONG width, LONG height)
        : name_(std::move(name)), width_(width), height_(height) {}
    virtual ~ForeignSymbol() = default;
    HRESULT Done(const std::string& member) const;

    ULONG references_ = 1;
    std::wstring name_;
    LONG width_;
    LONG height_;
    std::string failing_;
    support::Failure failure_;
    std::function<void(IDispatch*)> draw_;
    int draws_ = 0;
};

} // namespace dialog
