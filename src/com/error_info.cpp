#include "com/error_info.h"

#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/module.h"

#include <windows.h>

#include <oleauto.h>

#include <new>

namespace com {

namespace {

/// The system's own text for a status code, without its line end.
std::u16string SystemText(HRESULT status) {
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        static_cast<DWORD>(status), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::u16string result(reinterpret_cast<const char16_t*>(text), length);
    LocalFree(text);
    while (!result.empty() && (result.back() == u'\r' || result.back() == u'\n' || result.back() == u' '))
        result.pop_back();
    return result.empty() ? std::u16string(u"Automatisierungsfehler") : result;
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

void ThrowPendingError(HRESULT status) {
    ComPtr<IErrorInfo> info;
    Bstr source;
    Bstr description;
    if (GetErrorInfo(0, info.Put()) == S_OK && info) {
        info->GetSource(source.Put());
        info->GetDescription(description.Put());
    }
    if (status == E_OUTOFMEMORY)
        throw std::bad_alloc();
    std::u16string text(description.View());
    throw base::Error::FromStatus(static_cast<std::uint32_t>(status), std::u16string(source.View()),
                                  text.empty() ? SystemText(status) : std::move(text));
}

} // namespace com
