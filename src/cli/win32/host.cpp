#include "cli/host.h"

#include "platform/win32/ansi_code_page.h"
#include "platform/win32/console.h"
#include "platform/win32/user_settings.h"
#include "platform/win32/win32_file_system.h"

namespace cli {

std::vector<std::string> Arguments(int, char**) {
    // What the C run-time was given has lost all characters beyond the ANSI code page.
    return platform::CommandLine();
}

void PrepareStreams() {
    platform::UseUtf8Console();
}

bool ErrorsGoToATerminal() {
    return platform::ErrorsGoToAConsole();
}

std::unique_ptr<base::FileSystem> SystemFiles() {
    return std::make_unique<platform::Win32FileSystem>();
}

std::unique_ptr<base::CodePage> SystemCodePage() {
    return std::make_unique<platform::AnsiCodePage>();
}

base::RegionalSettings UserSettings() {
    return platform::UserSettings();
}

} // namespace cli
