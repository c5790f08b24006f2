#include "automation/qsymbol/library.h"

#include "com/error_info.h"
#include "com/module.h"
#include "platform/win32/ansi_code_page.h"
#include "platform/win32/message_box_prompt.h"
#include "platform/win32/resource_library.h"
#include "platform/win32/user_settings.h"
#include "platform/win32/win32_file_system.h"

#include <memory>
#include <string>

namespace library {

namespace {

/// Made when the first class that needs it initialises it, by whichever thread; never released.
platform::ResourceLibrary& Resources() {
    static platform::ResourceLibrary& reader = *[] {
        auto opened = std::make_unique<platform::ResourceLibrary>();
        opened->OpenResourceFile(com::TheModule().Folder(), L"QRes.dll");
        return opened.release();
    }();
    return reader;
}

} // namespace

void EnsureResources() {
    Resources();
}

messages::UserPrompt& Prompt() {
    static platform::MessageBoxPrompt prompt;
    return prompt;
}

base::FileSystem& Files() {
    static platform::Win32FileSystem files;
    return files;
}

const base::CodePage& CodePage() {
    static const platform::AnsiCodePage codePage;
    return codePage;
}

qsymbol::FileEnvironment FileEnvironmentNow() {
    return {.files = Files(),
            .codePage = CodePage(),
            .regional = platform::UserSettings(),
            .strings = Resources(),
            .prompt = Prompt()};
}

void ReportCurrentError(std::u16string_view source) noexcept {
    try {
        Prompt().ReportError(std::u16string(source) + u"\r\n" + com::CurrentError().Description());
    } catch (...) {
        return; // not even memory for the message: there is nothing left to tell it with
    }
}

} // namespace library
