#include "cli/symbol_io.h"

#include "cli/kept_notice.h"
#include "cli/no_strings.h"
#include "cli/paths.h"
#include "qsymbol/files/library_error.h"
#include "qsymbol/files/symbol_file.h"

namespace cli {

Reading ReadSymbolFile(const std::u16string& path, const base::RegionalSettings& settings,
                       const System& system) {
    const NoStrings strings;
    KeptNotice prompt;
    // Foreign files write decimals with a point whatever the user does; the reader wants to be told of
    // a comma.
    const qsymbol::FileEnvironment environment{system.files, system.codePage,
                                               Extension(path) == u"wsc" ? CommaSettings() : settings,
                                               strings, prompt};
    Reading reading;
    reading.symbol.filePath = path;
    ReadFromFile(reading.symbol, environment);
    reading.notice = std::move(prompt.notice);
    return reading;
}

qsymbol::Symbol ReadSymbol(const std::u16string& path, const base::RegionalSettings& settings,
                           const System& system) {
    Reading reading = ReadSymbolFile(path, settings, system);
    if (reading.notice)
        throw base::Error(static_cast<std::int32_t>(qsymbol::LibraryError::NotASymbolFile), u"",
                          *reading.notice);
    return std::move(reading.symbol);
}

qsymbol::Symbol ReadSymbol(const std::u16string& path, const Run& run) {
    return ReadSymbol(path, run.Settings(), run.OnSystem());
}

std::string Compose(const qsymbol::Symbol& symbol, const std::u16string& path, const Run& run) {
    const NoStrings strings;
    const base::RegionalSettings settings = run.Settings();
    return EncodeSymbol(symbol, path, {run.OnSystem().codePage, settings, strings});
}

} // namespace cli
