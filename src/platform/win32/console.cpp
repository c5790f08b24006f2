#include "platform/win32/console.h"

#include "base/utf8.h"
#include "platform/wide/wide_text.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <shellapi.h>

namespace platform {

namespace {

UINT codePageBefore = 0;

void RestoreCodePage() {
    SetConsoleOutputCP(codePageBefore);
}

} // namespace

std::vector<std::string> CommandLine() {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count),
                                                              &LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; words != nullptr && i < count; ++i)
        arguments.push_back(base::ToUtf8(Utf16(words.get()[i])));
    return arguments;
}

void UseUtf8Console() {
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    codePageBefore = GetConsoleOutputCP();
    // The code page is the console's own and outlives the program.
    if (codePageBefore != 0 && SetConsoleOutputCP(CP_UTF8) != FALSE)
        std::atexit(RestoreCodePage);
}

bool ErrorsGoToAConsole() {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != FALSE;
}

} // namespace platform
