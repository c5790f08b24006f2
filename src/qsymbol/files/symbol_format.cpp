#include "qsymbol/files/symbol_format.h"

#include "base/letter_case.h"
#include "qmath/str_util.h"
#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/text_writer.h"
#include "qsymbol/files/wsc_reader.h"

#include <array>

namespace qsymbol {

namespace {

using base::Tail;

constexpr std::array kFormats = {
    SymbolFormat{u"syt", ParseText, ComposeText, TextReach, Tail::Cut},
    SymbolFormat{u"wsc", ParseWsc, nullptr, WscReach, Tail::Cut},
    SymbolFormat{u"syb", ParseBinary, ComposeBinary, BinaryReach, Tail::Keep},
};

} // namespace

const SymbolFormat* FormatOf(std::u16string_view path) {
    const std::u16string extension = base::LowerCase(qmath::GetExtension(path));
    for (const SymbolFormat& format : kFormats)
        if (format.extension == extension)
            return &format;
    return nullptr;
}

} // namespace qsymbol
