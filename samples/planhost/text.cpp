#include "text.h"

#include <windows.h>

namespace {

void WriteLine(DWORD device, std::wstring text) {
    text += L"\r\n";
    const HANDLE handle = GetStdHandle(device);
    DWORD written = 0;
    DWORD mode = 0;
    if (GetConsoleMode(handle, &mode)) {
        WriteConsoleW(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
        return;
    }
    const std::string bytes = ToUtf8(text);
    WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

} // namespace

std::wstring FromUtf8(std::string_view bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, nullptr, 0), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, text.data(), static_cast<int>(text.size()));
    return text;
}

std::string ToUtf8(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    std::string bytes(WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    return bytes;
}

void PrintLine(std::wstring text) {
    WriteLine(STD_OUTPUT_HANDLE, std::move(text));
}

void PrintErrorLine(std::wstring text) {
    WriteLine(STD_ERROR_HANDLE, std::move(text));
}
