#include "com.h"

#include "text.h"

namespace {

std::wstring SystemText(HRESULT status) {
    wchar_t buffer[512];
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                  static_cast<DWORD>(status), 0, buffer, 512, nullptr);
    while (length > 0 && buffer[length - 1] <= L' ')
        --length;
    return {buffer, length};
}

/// Source and description as the called object left them.
std::wstring CalledObjectsText(HRESULT status) {
    Ptr<IErrorInfo> info;
    if (GetErrorInfo(0, info.Put()) != S_OK)
        return SystemText(status);
    Bstr source, description;
    info->GetSource(source.Put());
    info->GetDescription(description.Put());
    return source.Text() + L": " + description.Text();
}

std::wstring NumberText(HRESULT status) {
    // Numbers that automation objects raise themselves are packed as 0x800A0000 + number.
    if ((static_cast<unsigned long>(status) & 0xFFFF0000UL) == 0x800A0000UL)
        return L" (Fehler " + std::to_wstring(status & 0xFFFF) + L")";
    wchar_t buffer[32];
    wsprintfW(buffer, L" (HRESULT 0x%08lX)", status);
    return buffer;
}

/// What to do about libraries that do not load; empty for any other failure.
std::wstring MissingLibraryText(HRESULT status) {
    const std::wstring bits = std::to_wstring(sizeof(void*) * 8);
    const std::wstring libraries = L"QMath.dll, QSymbol.dll und QPlan.dll";
    if (status == REGDB_E_CLASSNOTREG)
        return libraries + L" sind für Programme mit " + bits +
               L" Bit nicht registriert. In ihrem Ordner, für jede: regsvr32 QMath.dll";
    // The last one is Wine's word for it; the libraries themselves never say so.
    if (status == HRESULT_FROM_WIN32(ERROR_MOD_NOT_FOUND) || status == CO_E_DLLNOTFOUND ||
        status == E_ACCESSDENIED)
        return libraries + L" gehören in den Ordner dieses Programms; mindestens eine fehlt dort.";
    if (status == HRESULT_FROM_WIN32(ERROR_BAD_EXE_FORMAT))
        return libraries + L" sind nicht die für " + bits +
               L" Bit. Dieses Programm braucht die aus dem Ordner " +
               (sizeof(void*) == 8 ? L"x64." : L"x86.");
    return {};
}

} // namespace

ComThread::ComThread() {
    Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
}

ComThread::~ComThread() {
    CoUninitialize();
}

void Check(HRESULT status, const std::wstring& what) {
    if (SUCCEEDED(status))
        return;
    std::wstring message = what.empty() ? L"" : what + L": ";
    if (const std::wstring missing = MissingLibraryText(status); !missing.empty())
        message += missing;
    else
        message += CalledObjectsText(status) + NumberText(status);
    throw Failure{message};
}
