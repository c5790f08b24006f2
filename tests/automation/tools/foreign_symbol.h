#pragma once

#include "support/failure.h"
#include "support/ref.h"

#include <QSymbol.h>

#include <string>
#include <vector>

namespace tools {

/// How a symbol was asked to draw itself.
struct ForeignDraw {
    LONG x;
    LONG y;
    double angle;
    IDispatch* control;
    _CTrans* trans;
    double printerFactor;
    double screenFactor;
    LONG mark;
    LONG mode; ///< the control's DrawMode then
};

/// A symbol of a host's own making: the interface, and another object behind it.
class ForeignSymbol final : public _CSymbol {
public:
    static support::Ref<ForeignSymbol> Create(const std::wstring& name) {
        return support::Ref<ForeignSymbol>::Attach(new ForeignSymbol(name));
    }

    const std::vector<ForeignDraw>& Draws() const { return draws_; }
    /// Draw fails from now on.
    void Fail(const support::Failure& failure) { failure_ = failure; }
    /// Questions for interfaces that it does not have fail in this way from now on.
    void RefuseQuestions(HRESULT status, const std::wstring& description) {
        refusal_ = {status, L"Fremd", description};
    }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP get_Name(BSTR* result) override;
    STDMETHODIMP Draw(LONG lLogX, LONG lLogY, double dAngle, IDispatch* ctrl, _CTrans* Trans,
                      double dSymPrinterFaktor, double dSymBSFaktor, LONG* lMarkColor) override;

    // Nothing else is asked of it.
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP get_FilePath(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP put_FilePath(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_RefX(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_RefY(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_Width(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_Height(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_Width(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP put_Height(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP CreateNew(LONG, LONG, LONG, LONG, _CSymElementColl*) override { return E_NOTIMPL; }
    STDMETHODIMP DxfExport(LONG, LONG, double, LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP CatchPt(float*, float*, LONG*, LONG*, LONG, LONG, double, _CTrans*, SHORT,
                         VARIANT_BOOL*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP Draw2PBox(IDispatch*) override { return E_NOTIMPL; }
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
    explicit ForeignSymbol(std::wstring name) : name_(std::move(name)) {}
    virtual ~ForeignSymbol() = default;

    ULONG references_ = 1;
    std::wstring name_;
    std::vector<ForeignDraw> draws_;
    support::Failure failure_;
    support::Failure refusal_;
};

} // namespace tools
