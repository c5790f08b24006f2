#pragma once

#include "com/bstr.h"
#include "com/com_ptr.h"

#include <windows.h>

#include <oleauto.h>

#include <utility>

namespace com {

/// Throws what a call on an object has just failed with: its status, and the source and the description that
/// it left where it answers for them on this interface.
[[noreturn]] void ThrowFailure(IUnknown& object, REFIID iid, HRESULT status);

/// Calls a method of an object that may be a host's own; the successful status. A failure is thrown, and no
/// error of an earlier call is taken for this one's. The caller holds the object.
template <class Interface, class Base, class... Parameters, class... Arguments>
HRESULT Call(Interface& object, HRESULT (STDMETHODCALLTYPE Base::*method)(Parameters...),
             Arguments&&... arguments) {
    ::SetErrorInfo(0, nullptr);
    const HRESULT status = (object.*method)(std::forward<Arguments>(arguments)...);
    if (FAILED(status))
        ThrowFailure(object, __uuidof(Interface), status);
    return status;
}

/// Reads a property of an object through its accessor.
template <class T, class Interface, class Base>
T Get(Interface& object, HRESULT (STDMETHODCALLTYPE Base::*accessor)(T*)) {
    T value{};
    Call(object, accessor, &value);
    return value;
}

/// Reads an object that an object holds; empty for Nothing.
template <class T, class Interface, class Base>
ComPtr<T> Get(Interface& object, HRESULT (STDMETHODCALLTYPE Base::*accessor)(T**)) {
    ComPtr<T> value;
    Call(object, accessor, value.Put());
    return value;
}

/// Reads a text of an object.
template <class Interface, class Base>
std::u16string GetText(Interface& object, HRESULT (STDMETHODCALLTYPE Base::*accessor)(BSTR*)) {
    Bstr value;
    Call(object, accessor, value.Put());
    return Text(value.Get());
}

/// Asks an object for another interface; nothing when it does not know it. Other failures are thrown.
template <class Interface>
void Query(Interface& object, REFIID iid, void** place) {
    ::SetErrorInfo(0, nullptr);
    const HRESULT status = object.QueryInterface(iid, place);
    if (FAILED(status) && status != E_NOINTERFACE)
        ThrowFailure(object, __uuidof(Interface), status);
}

} // namespace com
