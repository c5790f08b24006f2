#pragma once

#include "base/file_content.h"
#include "base/whole_file.h"
#include "qsymbol/files/format_rules.h"
#include "qsymbol/model/symbol.h"

#include <string>
#include <string_view>

namespace qsymbol {

/// A file format: bytes in, bytes out, and how its files are opened. No function touches a file or the user.
struct SymbolFormat {
    std::u16string_view extension; ///< lower case, without the dot

    /// Fills a symbol without content. Gives the notice that the user is to see, "" for none. After an error
    /// the symbol holds what was read before it.
    std::u16string (*parse)(Symbol& symbol, std::string_view bytes, const FormatRules& rules);

    /// The bytes of the symbol's file; nullptr: files of this format are read only.
    std::string (*compose)(const Symbol& symbol, const FormatRules& rules);

    base::Reach reach; ///< how much of a file its reader needs
    base::Tail tail;   ///< what becomes of the rest of a longer file that is overwritten
};

/// The format of a path's extension in any case; nullptr for an unknown one.
const SymbolFormat* FormatOf(std::u16string_view path);

} // namespace qsymbol
