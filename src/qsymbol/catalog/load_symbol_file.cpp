#include "qsymbol/catalog/load_symbol_file.h"

#include "base/error.h"
#include "qsymbol/files/symbol_file.h"

#include <new>
#include <optional>
#include <utility>

namespace qsymbol {

namespace {

constexpr std::int32_t kMessageStart = 11105;
constexpr std::int32_t kMessageEnd = 11106;

/// Reads the file at the symbol's path. The description of the error that ended it, or nothing.
std::optional<std::u16string> TryRead(Symbol& symbol, const FileEnvironment& environment) {
    try {
        ReadFromFile(symbol, environment);
        return std::nullopt;
    } catch (const base::Error& error) {
        return error.Description();
    } catch (const std::bad_alloc&) {
        return std::u16string(base::Description(base::RunTimeError::OutOfMemory));
    }
}

std::u16string FailureMessage(const std::u16string& path, const std::u16string& description,
                              const messages::ResourceStrings& strings) {
    const std::u16string start = strings.LoadResString(kMessageStart);
    const std::u16string failure =
        start.empty() ? u"Das Symbol \"" + path + u"\" konnte nicht geladen werden."
                      : start + u" \"" + path + u"\" " + strings.LoadResString(kMessageEnd) + u".";
    return failure + u"\r\n" + description;
}

} // namespace

bool LoadSymbolFile(std::u16string path, CatalogSink& sink, const FileEnvironment& environment) {
    Symbol symbol;
    symbol.filePath = std::move(path);
    for (;;) {
        const std::optional<std::u16string> failure = TryRead(symbol, environment);
        if (!failure) {
            sink.Add(std::move(symbol));
            return true;
        }
        ResetContent(symbol); // gives its memory back before the user takes his time
        switch (environment.prompt.AskAbortRetryIgnore(
            FailureMessage(symbol.filePath, *failure, environment.strings))) {
        case messages::FailureChoice::Abort: return false;
        case messages::FailureChoice::Retry: break;
        case messages::FailureChoice::Ignore: return true;
        }
    }
}

} // namespace qsymbol
