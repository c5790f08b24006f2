#pragma once

#include "com/dispatch_invoke.h"
#include "com/dispatch_table.h"
#include "com/error_info.h"
#include "com/module.h"
#include "com/own_object.h"

#include <ocidl.h>

#include <atomic>
#include <new>

namespace com {

/// What every public class shares: identity, life, late binding, error support and class information.
///
/// Face is the class itself (its __uuidof is the class id), Interface its dual default interface.
template <class Face, class Interface>
class DualObject : public Interface, public ISupportErrorInfo, public IProvideClassInfo2 {
public:
    DualObject() { TheModule().ObjectMade(); }
    DualObject(const DualObject&) = delete;
    DualObject& operator=(const DualObject&) = delete;

    /// A new object with one reference, which the caller owns.
    static ComPtr<Face> Create() { return ComPtr<Face>::Attach(new Face()); }

    /// Class factory entry.
    static HRESULT CreateInstance(REFIID iid, void** object) noexcept {
        try {
            return Create()->QueryInterface(iid, object);
        } catch (...) {
            return ReportCurrentException(__uuidof(Interface));
        }
    }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr)
            return E_POINTER;
        *object = nullptr;
        if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(Interface) ||
            iid == PrivateId<Face>())
            *object = static_cast<Interface*>(this);
        else if (iid == IID_ISupportErrorInfo)
            *object = static_cast<ISupportErrorInfo*>(this);
        else if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2)
            *object = static_cast<IProvideClassInfo2*>(this);
        else
            return QueryMore(iid, object);
        this->AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete static_cast<Face*>(this);
        return left;
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (count == nullptr)
            return E_POINTER;
        *count = 1;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        if (info == nullptr)
            return E_POINTER;
        *info = nullptr;
        if (index != 0)
            return DISP_E_BADINDEX;
        return Guard(__uuidof(Interface), [&] { *info = ComPtr<ITypeInfo>(Table().TypeInfo()).Detach(); });
    }
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        if (reserved != IID_NULL)
            return DISP_E_UNKNOWNINTERFACE;
        HRESULT status = E_FAIL;
        const HRESULT guarded =
            Guard(__uuidof(Interface), [&] { status = Table().IdsOfNames(names, count, ids); });
        return FAILED(guarded) ? guarded : status;
    }
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* argumentError) override {
        if (result != nullptr)
            VariantInit(result);
        if (reserved != IID_NULL)
            return DISP_E_UNKNOWNINTERFACE;
        HRESULT status = E_FAIL;
        const HRESULT guarded = Do([&] {
            status = InvokeMember(Table(), static_cast<Interface*>(this), id, locale, flags, arguments,
                                  result, exception, argumentError);
        });
        return FAILED(guarded) ? FailedInvoke(guarded, exception) : status;
    }

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override {
        return iid == __uuidof(Interface) ? S_OK : S_FALSE;
    }

    STDMETHODIMP GetClassInfo(ITypeInfo** info) override {
        if (info == nullptr)
            return E_POINTER;
        *info = nullptr;
        return Guard(__uuidof(Interface),
                     [&] { Check(TheModule().TypeLibrary().GetTypeInfoOfGuid(__uuidof(Face), info)); });
    }
    STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override {
        if (guid == nullptr)
            return E_POINTER;
        if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID)
            return E_INVALIDARG;
        *guid = GUID_NULL; // no events
        return S_OK;
    }

protected:
    virtual ~DualObject() { TheModule().ObjectGone(); }

    /// Questions for interfaces that only some classes have.
    virtual HRESULT QueryMore(REFIID, void**) { return E_NOINTERFACE; }

    /// Runs the body of a method: no exception leaves it, and the object lives until its end, whatever a host
    /// does meanwhile.
    template <class Body>
    HRESULT Do(Body&& body) noexcept {
        const ComPtr<Interface> self(static_cast<Interface*>(this));
        return Guard(__uuidof(Interface), std::forward<Body>(body));
    }
    /// The same for a method that asks nobody, so that nobody can let go of the object meanwhile.
    template <class Body>
    static HRESULT Compute(Body&& body) noexcept {
        return Guard(__uuidof(Interface), std::forward<Body>(body));
    }
    /// Runs the body of a method and stores its result; a failure leaves nothing there.
    template <class Result, class Body>
    HRESULT Return(Result* place, Body&& body) noexcept {
        return Do([&] {
            Result& result = Out(place);
            result = Result{};
            result = body();
        });
    }

private:
    static const DispatchTable& Table() {
        static const DispatchTable table(__uuidof(Interface));
        return table;
    }

    std::atomic<ULONG> references_ = 1;
};

} // namespace com
