// window_reader DESKTOP: tells what the windows of a desktop say. Each line read from the standard input is
// answered by one line for every visible window, top-level windows from the front to the back, each followed
// by its controls, and an empty line. Fields are separated by tabs, UTF-8:
//   window  class  text left top right bottom    the client area, in pixels of the screen
//   control class  text left top right bottom    the whole; the text of a list box is the number of the entry
//   part    number text                          of the status bar before it
// The line "dots NUMBER left top right bottom" tells the front window before that its screen has so many dots to the inch
// now, and that its client area is to be there.

#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

namespace {

constexpr UINT kPatience = 2000; // milliseconds for a window's answer

std::string Utf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr),
                      '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()),
                        nullptr, nullptr);
    for (char& byte : bytes) {
        if (byte == '\t' || byte == '\r' || byte == '\n')
            byte = ' ';
    }
    return bytes;
}

LRESULT Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kPatience, &answer);
    return static_cast<LRESULT>(answer);
}

std::wstring ClassOf(HWND window) {
    wchar_t name[256];
    return {name, static_cast<std::size_t>(GetClassNameW(window, name, 256))};
}

std::wstring TextOf(HWND window) {
    wchar_t text[1024];
    return {text, static_cast<std::size_t>(Ask(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text)))};
}

void Print(const char* kind, HWND window, const RECT& place) {
    const std::wstring text =
        ClassOf(window) == L"ListBox" ? std::to_wstring(Ask(window, LB_GETCURSEL, 0, 0)) : TextOf(window);
    std::printf("%s\t%s\t%s\t%ld\t%ld\t%ld\t%ld\n", kind, Utf8(ClassOf(window)).c_str(), Utf8(text).c_str(),
                place.left, place.top, place.right, place.bottom);
}

/// The parts' texts are written into the memory of the window's own process.
void PrintParts(HWND bar) {
    constexpr std::size_t kSize = 1024;
    DWORD processId = 0;
    GetWindowThreadProcessId(bar, &processId);
    const HANDLE process = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ, FALSE, processId);
    void* there = VirtualAllocEx(process, nullptr, kSize * sizeof(wchar_t), MEM_COMMIT, PAGE_READWRITE);
    const LRESULT parts = there != nullptr ? Ask(bar, SB_GETPARTS, 0, 0) : 0;
    for (LRESULT i = 0; i < parts; ++i) {
        wchar_t text[kSize] = L"";
        if (LOWORD(Ask(bar, SB_GETTEXTLENGTHW, i, 0)) < kSize) {
            Ask(bar, SB_GETTEXTW, i, reinterpret_cast<LPARAM>(there));
            ReadProcessMemory(process, there, text, sizeof text, nullptr);
        }
        text[kSize - 1] = L'\0';
        std::printf("part\t%d\t%s\n", static_cast<int>(i), Utf8(text).c_str());
    }
    VirtualFreeEx(process, there, 0, MEM_RELEASE);
    CloseHandle(process);
}

BOOL CALLBACK PrintControl(HWND control, LPARAM) {
    if (!IsWindowVisible(control))
        return TRUE;
    RECT place;
    GetWindowRect(control, &place);
    Print("control", control, place);
    if (ClassOf(control) == STATUSCLASSNAMEW)
        PrintParts(control);
    return TRUE;
}

BOOL CALLBACK PrintWindow(HWND window, LPARAM) {
    if (!IsWindowVisible(window))
        return TRUE;
    RECT place;
    GetClientRect(window, &place);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&place), 2);
    Print("window", window, place);
    EnumChildWindows(window, PrintControl, 0);
    return TRUE;
}

BOOL CALLBACK TakeFirstVisible(HWND window, LPARAM first) {
    if (!IsWindowVisible(window))
        return TRUE;
    *reinterpret_cast<HWND*>(first) = window;
    return FALSE;
}

/// The rectangle of the message is read in the window's own process.
void TellDots(HDESK desktop, std::istringstream numbers) {
    constexpr UINT kDotsChanged = 0x02E0; // WM_DPICHANGED
    HWND window = nullptr;
    EnumDesktopWindows(desktop, TakeFirstVisible, reinterpret_cast<LPARAM>(&window));
    WORD dots = 0;
    RECT place{};
    numbers >> dots >> place.left >> place.top >> place.right >> place.bottom;
    AdjustWindowRectEx(&place, static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)),
                       GetMenu(window) != nullptr,
                       static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE)));
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    const HANDLE process = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, processId);
    void* there = VirtualAllocEx(process, nullptr, sizeof place, MEM_COMMIT, PAGE_READWRITE);
    WriteProcessMemory(process, there, &place, sizeof place, nullptr);
    Ask(window, kDotsChanged, MAKEWPARAM(dots, dots), reinterpret_cast<LPARAM>(there));
    VirtualFreeEx(process, there, 0, MEM_RELEASE);
    CloseHandle(process);
}

} // namespace

int wmain(int count, wchar_t** values) {
    const HDESK desktop =
        count == 2 ? OpenDesktopW(values[1], 0, FALSE, GENERIC_READ | GENERIC_WRITE) : nullptr;
    if (desktop == nullptr || !SetThreadDesktop(desktop)) {
        std::fprintf(stderr, "window_reader: no such desktop\n");
        return 1;
    }
    for (std::string line; std::getline(std::cin, line);) {
        constexpr std::string_view kDots = "dots ";
        if (line.starts_with(kDots))
            TellDots(desktop, std::istringstream(line.substr(kDots.size())));
        EnumDesktopWindows(desktop, PrintWindow, 0);
        std::printf("\n");
        std::fflush(stdout);
    }
    return 0;
}
