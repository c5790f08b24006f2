#pragma once

#include "base/error.h"

#include <unknwn.h>

#include <string_view>

namespace com {

/// Turns the exception being handled, whatever it is, into a status code and sets the thread's error info.
HRESULT ReportCurrentException(REFIID iid) noexcept;

/// The exception being handled as an error; std::bad_alloc is 7, any other foreign exception E_UNEXPECTED.
base::Error CurrentError();

/// Throws the failure of a function of the system: its status with the system's text; E_OUTOFMEMORY is 7.
[[noreturn]] void ThrowSystemFailure(HRESULT status);

/// Goes on when a function of the system was successful. Objects are called through Call.
inline void Check(HRESULT status) {
    if (FAILED(status))
        ThrowSystemFailure(status);
}

/// Runs a face method: no exception leaves it, every failure carries error info.
template <class Body>
HRESULT Guard(REFIID iid, Body&& body) noexcept {
    try {
        body();
        return S_OK;
    } catch (...) {
        return ReportCurrentException(iid);
    }
}

/// The place for a result; throws E_POINTER when the caller gave none.
template <class T>
T& Out(T* place) {
    if (place == nullptr)
        throw base::Error::FromStatus(static_cast<std::uint32_t>(E_POINTER), {},
                                      u"Ein Zeiger für das Ergebnis fehlt");
    return *place;
}

/// An object argument that must be set; error 91 otherwise.
template <class T>
T& Required(T* object) {
    if (object == nullptr)
        base::Raise(base::RunTimeError::ObjectNotSet);
    return *object;
}

} // namespace com
