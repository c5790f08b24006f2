#pragma once

#include "support/failure.h"
#include "support/foreign_object.h"

#include <QSymbol.h>

#include <functional>
#include <string>
#include <vector>

namespace support {

/// How a symbol was asked to draw itself at a place.
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

/// A symbol of a host's own making: the interface, and another object behind it. It knows its name and its
/// size and can be drawn; each can be told to fail.
class ForeignSymbol final : public ForeignObject<_CSymbol> {
public:
    static Ref<ForeignSymbol> Create(const std::wstring& name, LONG width = 100, LONG height = 100) {
        return Ref<ForeignSymbol>::Attach(new ForeignSymbol(name, width, height));
    }

    /// "Name", "Width", "Height", "Draw" or "Draw2PBox" fails from now on.
    void Fail(const std::string& member, const Failure& failure) {
        failing_ = member;
        failure_ = failure;
    }
    /// Questions for interfaces that it does not have fail in this way from now on.
    void RefuseQuestions(const Failure& failure) { refusal_ = failure; }

    const std::vector<ForeignDraw>& Draws() const { return draws_; }
    /// Called when it is to draw itself into a box.
    void OnFit(std::function<void(IDispatch* box)> action) { fit_ = std::move(action); }
    int Fits() const { return fits_; }

    STDMETHODIMP get_Name(BSTR* result) override;
    STDMETHODIMP get_Width(LONG* result) override;
    STDMETHODIMP get_Height(LONG* result) override;
    STDMETHODIMP Draw(LONG lLogX, LONG lLogY, double dAngle, IDispatch* ctrl, _CTrans* Trans,
                      double dSymPrinterFaktor, double dSymBSFaktor, LONG* lMarkColor) override;
    STDMETHODIMP Draw2PBox(IDispatch* PBox) override;

    // Nothing else is asked of it.
    STDMETHODIMP get_FilePath(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP put_FilePath(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_RefX(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_RefY(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP put_Width(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP put_Height(LONG) override { return E_NOTIMPL; }
    STDMETHODIMP CreateNew(LONG, LONG, LONG, LONG, _CSymElementColl*) override { return E_NOTIMPL; }
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

    HRESULT Unknown() override { return refusal_ != Failure{} ? Throw(refusal_) : E_NOINTERFACE; }
    HRESULT Done(const std::string& member) const { return member == failing_ ? Throw(failure_) : S_OK; }

    std::wstring name_;
    LONG width_;
    LONG height_;
    std::string failing_;
    Failure failure_;
    Failure refusal_;
    std::vector<ForeignDraw> draws_;
    std::function<void(IDispatch*)> fit_;
    int fits_ = 0;
};

} // namespace support
