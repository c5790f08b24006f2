#include "com/foreign_error.h"

#include "com/com_ptr.h"
#include "platform/wide/wide_text.h"

#include <memory>
#include <utility>

namespace com {

namespace {

constexpr std::u16string_view kAutomationError = u"Automatisierungsfehler";

struct LocalDeleter {
    void operator()(wchar_t* text) const { LocalFree(text); }
};

/// The system's own text for a status code, without its line end.
std::u16string SystemText(HRESULT status) {
    if (status == E_OUTOFMEMORY)
        return std::u16string(base::Description(base::RunTimeError::OutOfMemory));
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        static_cast<DWORD>(status), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const std::unique_ptr<wchar_t, LocalDeleter> owner(text);
    std::u16string_view result = platform::Utf16({text, length});
    while (!result.empty() && (result.back() == u'\r' || result.back() == u'\n' || result.back() == u' '))
        result.remove_suffix(1);
    return std::u16string(result.empty() ? kAutomationError : result);
}

} // namespace

ThreadErrorInfo::ThreadErrorInfo() {
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, info.Put()) != S_OK || !info)
        return;
    info->GetSource(source.Put());
    info->GetDescription(description.Put());
    info->GetHelpFile(helpFile.Put());
    info->GetHelpContext(&helpContext);
}

ExceptionInfo::~ExceptionInfo() {
    SysFreeString(info_.bstrSource);
    SysFreeString(info_.bstrDescription);
    SysFreeString(info_.bstrHelpFile);
}

void ExceptionInfo::FillIn() {
    if (const auto fillIn = std::exchange(info_.pfnDeferredFillIn, nullptr))
        fillIn(&info_);
}

HRESULT ExceptionInfo::Status() {
    FillIn();
    if (info_.wCode != 0)
        return static_cast<HRESULT>(base::NumberedStatus(info_.wCode));
    return FAILED(info_.scode) ? info_.scode : DISP_E_EXCEPTION;
}

base::Error ExceptionInfo::Error() {
    const HRESULT status = Status();
    const std::u16string_view description = View(info_.bstrDescription);
    return ForeignError(status, View(info_.bstrSource), description.empty() ? kAutomationError : description);
}

base::Error ForeignError(HRESULT status, std::u16string_view source, std::u16string_view description) {
    return base::Error::FromStatus(static_cast<std::uint32_t>(status), std::u16string(source),
                                   description.empty() ? SystemText(status) : std::u16string(description));
}

} // namespace com
