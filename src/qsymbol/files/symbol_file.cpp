#include "qsymbol/files/symbol_file.h"

#include "base/letter_case.h"
#include "qmath/str_util.h"
#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/library_error.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/text_writer.h"
#include "qsymbol/files/wsc_reader.h"

#include <array>

namespace qsymbol {

namespace {

struct Format {
    std::u16string_view extension;
    void (*read)(Symbol&, const FileEnvironment&);
    void (*write)(const Symbol&, const FileEnvironment&); ///< nullptr: import only
};

constexpr std::array kFormats = {
    Format{u"syt", ReadFromTxtFile, Write2TxtFile},
    Format{u"wsc", ReadFromWSCFile, nullptr},
    Format{u"syb", ReadFromBinFile, Write2BinFile},
};

/// The format of a path's extension in any case; nullptr for an unknown one.
const Format* FormatOf(std::u16string_view path) {
    const std::u16string extension = base::LowerCase(qmath::GetExtension(path));
    for (const Format& format : kFormats)
        if (format.extension == extension)
            return &format;
    return nullptr;
}

} // namespace

void ReadFromFile(Symbol& symbol, const FileEnvironment& environment) {
    const Format* const format = FormatOf(symbol.filePath);
    if (format == nullptr)
        Raise(LibraryError::NotASymbolFile, u"CSymbol.ReadFromFile", environment.strings);
    format->read(symbol, environment);
}

void Write2File(const Symbol& symbol, const FileEnvironment& environment) {
    const Format* const format = FormatOf(symbol.filePath);
    if (format == nullptr || format->write == nullptr)
        Raise(LibraryError::InvalidExtension, u"CSymbol.Write2File", environment.strings);
    format->write(symbol, environment);
}

} // namespace qsymbol
