#pragma once

#include "support/ref.h"

#include <oaidl.h>

namespace support {

/// What objects of a host's own making share: identity, life, and that they answer for their errors. They are
/// called by their vtable only.
template <class Interface>
class ForeignObject : public Interface, public ISupportErrorInfo {
public:
    /// The object sets error information but does not answer for it, like one that knows nothing of it.
    void AnswerForNothing() { answers_ = false; }

    /// It gives itself for an interface that it does not have, or for every one.
    void ClaimToBe(REFIID id) { claimed_ = id; }
    void ClaimToBeAnything() { claimsAll_ = true; }
    /// What it is not asked itself, another object is asked.
    void HandQuestionsOnTo(IUnknown* other) { other_ = Ref<IUnknown>(other); }

    ForeignObject() = default;
    ForeignObject(const ForeignObject&) = delete;
    ForeignObject& operator=(const ForeignObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        if (id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(Interface) || id == claimed_ ||
            (claimsAll_ && id != IID_ISupportErrorInfo))
            *object = static_cast<Interface*>(this);
        else if (id == IID_ISupportErrorInfo && answers_)
            *object = static_cast<ISupportErrorInfo*>(this);
        else if (other_)
            return other_->QueryInterface(id, object);
        else
            return *object = nullptr, Unknown();
        this->AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override {
        return id == __uuidof(Interface) ? S_OK : S_FALSE;
    }

protected:
    virtual ~ForeignObject() = default;

    /// The answer to the question for an interface that the object does not have.
    virtual HRESULT Unknown() { return E_NOINTERFACE; }

private:
    bool answers_ = true;
    IID claimed_{};
    bool claimsAll_ = false;
    Ref<IUnknown> other_;
    ULONG references_ = 1;
};

} // namespace support
