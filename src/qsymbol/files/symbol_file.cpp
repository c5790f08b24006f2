#include "qsymbol/files/symbol_file.h"

#include "base/file_content.h"
#include "base/whole_file.h"
#include "qsymbol/files/library_error.h"
#include "qsymbol/files/symbol_format.h"

namespace qsymbol {

namespace {

const SymbolFormat& ReadableFormat(std::u16string_view path, const FormatRules& rules) {
    const SymbolFormat* const format = FormatOf(path);
    if (format == nullptr)
        Raise(LibraryError::NotASymbolFile, u"CSymbol.ReadFromFile", rules.strings);
    return *format;
}

const SymbolFormat& WritableFormat(std::u16string_view path, const FormatRules& rules) {
    const SymbolFormat* const format = FormatOf(path);
    if (format == nullptr || format->compose == nullptr)
        Raise(LibraryError::InvalidExtension, u"CSymbol.Write2File", rules.strings);
    return *format;
}

/// True when a writer may go on: there is no file of that path, or the user says Yes to overwriting it.
bool MayOverwrite(const std::u16string& path, const FileEnvironment& environment) {
    if (!environment.files.FileExists(path))
        return true;
    const std::u16string question = u"Datei " + path + u" existiert schon. Soll sie überschrieben werden ?";
    return environment.prompt.AskYesNo(question, u"Symboleditor");
}

} // namespace

void ReadFromFile(Symbol& symbol, const FileEnvironment& environment) {
    const SymbolFormat& format = ReadableFormat(symbol.filePath, environment);
    ResetContent(symbol);
    const base::FileContent content(environment.files, symbol.filePath, format.reach);
    const std::u16string notice = format.parse(symbol, content.Bytes(), environment);
    if (!notice.empty())
        environment.prompt.Notice(notice);
}

void Write2File(const Symbol& symbol, const FileEnvironment& environment) {
    const SymbolFormat& format = WritableFormat(symbol.filePath, environment);
    if (MayOverwrite(symbol.filePath, environment))
        base::WriteInPlace(environment.files, symbol.filePath, format.compose(symbol, environment),
                           format.tail);
}

std::u16string DecodeSymbol(Symbol& symbol, std::string_view bytes, const FormatRules& rules) {
    const SymbolFormat& format = ReadableFormat(symbol.filePath, rules);
    ResetContent(symbol);
    return format.parse(symbol, bytes, rules);
}

std::string EncodeSymbol(const Symbol& symbol, std::u16string_view path, const FormatRules& rules) {
    return WritableFormat(path, rules).compose(symbol, rules);
}

} // namespace qsymbol
