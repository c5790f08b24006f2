#pragma once

#include "platform/posix/fixed_regional_settings.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/windows_1252.h"
#include "qsymbol/files/file_environment.h"
#include "qsymbol/files/symbol_format.h"
#include "support/memory_file_system.h"
#include "support/scripted_prompt.h"
#include "support/string_table.h"

namespace support {

/// Everything that reading and writing symbol files needs, on a file system in memory or on the real one.
struct TestEnvironment {
    MemoryFileSystem memory;
    platform::PosixFileSystem disk;
    platform::Windows1252 codePage;
    base::RegionalSettings regional = platform::GermanSettings();
    StringTable strings;
    ScriptedPrompt prompt;

    /// The files in memory; the folder "plan" exists there.
    qsymbol::FileEnvironment InMemory() {
        memory.folders.insert(u"plan");
        return {memory, codePage, regional, strings, prompt};
    }
    /// Fills the symbol as reading a file of these bytes would; a notice goes to the prompt.
    void Parse(decltype(qsymbol::SymbolFormat::parse) parse, qsymbol::Symbol& symbol,
               std::string_view bytes) {
        ResetContent(symbol);
        const std::u16string notice = parse(symbol, bytes, InMemory());
        if (!notice.empty())
            prompt.Notice(notice);
    }
    qsymbol::FileEnvironment OnDisk() { return {disk, codePage, regional, strings, prompt}; }
};

} // namespace support
