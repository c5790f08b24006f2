#pragma once

#include "com/object_call.h"

#include <unknwn.h>

// What the libraries of this product tell each other about their objects, past the published interfaces. All of it is
// values, so two builds in one process do each other no harm; a change of form is a new id. Nothing marshals these
// interfaces: to another apartment an object of ours is like one of the host's.

/// What all symbols of one QSymbol.dll have in common.
struct ISymbolLibrary : IUnknown {
    /// Tells one library from another; nothing is there.
    virtual const void* STDMETHODCALLTYPE Id() = 0;
    /// Another number after a change of any symbol of the library.
    virtual ULONGLONG STDMETHODCALLTYPE Edition() = 0;
    /// The screen factor of this thread's last drawing.
    virtual double STDMETHODCALLTYPE ScreenFactor() = 0;
    /// Does what every drawing begins with.
    virtual void STDMETHODCALLTYPE KeepFactors(double printer, double screen) = 0;
};
__CRT_UUID_DECL(ISymbolLibrary, 0xd5082302, 0x037e, 0x4291, 0xa0, 0x94, 0xdf, 0x38, 0x57, 0xbf, 0xc2, 0x01)

/// A symbol by value.
struct ISymbolValue : IUnknown {
    /// The object's default interface, without a reference of its own.
    virtual void* STDMETHODCALLTYPE Object() = 0;
    virtual HRESULT STDMETHODCALLTYPE Library(ISymbolLibrary** library) = 0;
    virtual ULONGLONG STDMETHODCALLTYPE Edition() = 0;
    /// qsymbol::PackSymbol of what the symbol is now, from CoTaskMemAlloc.
    virtual HRESULT STDMETHODCALLTYPE Content(BYTE** bytes, ULONG* count) = 0;
};
__CRT_UUID_DECL(ISymbolValue, 0x0bf2bbd1, 0x7a95, 0x4bce, 0xa9, 0x37, 0x53, 0x1d, 0xe0, 0x2b, 0xcb, 0xf7)

/// A transformation by value.
struct ITransformValue : IUnknown {
    virtual void* STDMETHODCALLTYPE Object() = 0;
    virtual void STDMETHODCALLTYPE Get(double* scale, LONG* offsetX, LONG* offsetY) = 0;
};
__CRT_UUID_DECL(ITransformValue, 0x282b4077, 0xaf41, 0x4583, 0x82, 0x46, 0xfa, 0xec, 0x0a, 0xa1, 0xcf, 0xca)

/// An object by value when it is one of this product's; empty for any other. Passes on what the object says when it is
/// asked, unless that it does not know the question. The caller holds the object.
template <class Value, class Interface>
com::ComPtr<Value> ValueOf(Interface& object) {
    constexpr IID kNobody = {0xaa4e9478, 0xb70e, 0x429e, {0xb7, 0x67, 0x16, 0xbb, 0xbe, 0x8e, 0x63, 0xfa}};
    com::ComPtr<IUnknown> anything;
    com::Query(object, kNobody, anything.PutVoid());
    if (anything) // it says yes to every question
        return {};
    com::ComPtr<Value> value;
    com::Query(object, __uuidof(Value), value.PutVoid());
    // One that hands its questions on to one of ours is another one.
    return value && value->Object() == &object ? value : com::ComPtr<Value>();
}
