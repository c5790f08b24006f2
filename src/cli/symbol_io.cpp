#include "cli/symbol_io.h"

#include "base/file_content.h"
#include "cli/no_strings.h"
#include "cli/paths.h"
#include "qsymbol/files/library_error.h"
#include "qsymbol/files/symbol_file.h"
#include "qsymbol/files/symbol_format.h"

namespace cli {

namespace {

/// How large the file is that has these bytes. Of a large one less may have been read, down to this much.
std::uint64_t SizeOf(std::string_view bytes, const std::u16string& path, const System& system) {
    constexpr std::size_t kReadAtOnce = 1U << 20;
    return bytes.size() < kReadAtOnce ? bytes.size() : system.files.Open(path, base::OpenMode::Read)->Size();
}

} // namespace

Reading ReadSymbolFile(const std::u16string& path, const base::RegionalSettings& settings,
                       const System& system, const qsymbol::ElementWork& work) {
    const NoStrings strings;
    const qsymbol::SymbolFormat* const format = qsymbol::FormatOf(path);
    // Foreign files write decimals with a point whatever the user does; the reader wants to be told of
    // a comma.
    const bool isForeign = format != nullptr && format->compose == nullptr;
    const base::RegionalSettings regional = isForeign ? CommaSettings() : settings;
    const qsymbol::FormatRules rules{system.codePage, regional, strings};
    const base::FileContent content(system.files, path, format == nullptr ? nullptr : format->reach);
    Reading reading;
    reading.symbol.filePath = path;
    reading.notice = DecodeSymbol(reading.symbol, content.Bytes(), rules);
    reading.bytes = SizeOf(content.Bytes(), path, system);
    if (work && reading.notice.empty())
        VisitElements(reading.symbol, content.Bytes(), rules, work);
    return reading;
}

Reading ReadWholeSymbolFile(const std::u16string& path, const base::RegionalSettings& settings,
                            const System& system, const qsymbol::ElementWork& work) {
    Reading reading = ReadSymbolFile(path, settings, system, work);
    if (!reading.notice.empty())
        throw base::Error(static_cast<std::int32_t>(qsymbol::LibraryError::NotASymbolFile), u"",
                          reading.notice);
    return reading;
}

qsymbol::Symbol ReadSymbol(const std::u16string& path, const Run& run) {
    return ReadWholeSymbolFile(path, run.Settings(), run.OnSystem()).symbol;
}

std::string Compose(const qsymbol::Symbol& symbol, const std::u16string& path, const Run& run) {
    const NoStrings strings;
    const base::RegionalSettings settings = run.Settings();
    return EncodeSymbol(symbol, path, {run.OnSystem().codePage, settings, strings});
}

} // namespace cli
