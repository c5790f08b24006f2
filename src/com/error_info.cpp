#include "com/error_info.h"

#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/foreign_error.h"
#include "com/module.h"

#include <windows.h>

#include <oleauto.h>

#include <new>

namespace com {

namespace {

/// Sets the thread's error info; an empty source becomes the library's name.
void SetErrorInfo(REFIID iid, std::u16string_view source, std::u16string_view description) noexcept {
    try {
        ComPtr<ICreateErrorInfo> create;
        if (FAILED(CreateErrorInfo(create.Put())))
            return;
        create->SetGUID(iid);
        create->SetSource(Bstr(source.empty() ? TheModule().Name() : source).Get());
        create->SetDescription(Bstr(description).Get());
        if (const ComPtr<IErrorInfo> info = create.As<IErrorInfo>())
            ::SetErrorInfo(0, info.Get());
    } catch (...) {
        ::SetErrorInfo(0, nullptr);
    }
}

} // namespace

base::Error CurrentError() {
    try {
        throw;
    } catch (const base::Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return base::Error(static_cast<std::int32_t>(base::RunTimeError::OutOfMemory), {},
                           std::u16string(base::Description(base::RunTimeError::OutOfMemory)));
    } catch (...) {
        return base::Error::FromStatus(static_cast<std::uint32_t>(E_UNEXPECTED), {}, u"Unerwarteter Fehler");
    }
}

HRESULT ReportCurrentException(REFIID iid) noexcept {
    try {
        const base::Error error = CurrentError();
        SetErrorInfo(iid, error.Source(), error.Description());
        return static_cast<HRESULT>(error.Status());
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

void ThrowSystemFailure(HRESULT status) {
    if (status == E_OUTOFMEMORY)
        throw std::bad_alloc();
    throw ForeignError(status, {}, {});
}

} // namespace com
