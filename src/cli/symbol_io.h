#pragma once

#include "cli/run.h"
#include "qsymbol/files/element_visit.h"
#include "qsymbol/model/symbol.h"

#include <cstdint>
#include <string>

namespace cli {

/// What reading a symbol file gave.
struct Reading {
    qsymbol::Symbol symbol;
    std::u16string notice;   ///< why a foreign file was not read to its end; "" when it was
    std::uint64_t bytes = 0; ///< how large the file is
};

/// Reads a symbol file of any format under these number conventions; foreign files have their own. Shows the elements
/// of a file that was read to its end to `work`, if there is any. Errors of qsymbol::ReadFromFile.
Reading ReadSymbolFile(const std::u16string& path, const base::RegionalSettings& settings,
                       const System& system, const qsymbol::ElementWork& work = {});

/// The same with error 3501 and the notice's text for a foreign file that was not read to its end.
Reading ReadWholeSymbolFile(const std::u16string& path, const base::RegionalSettings& settings,
                            const System& system, const qsymbol::ElementWork& work = {});

/// The symbol of a file under the run's conventions; errors of ReadWholeSymbolFile.
qsymbol::Symbol ReadSymbol(const std::u16string& path, const Run& run);

/// The bytes that the libraries would write for this symbol into a file of this name. Error 3503 for an
/// extension that cannot be written.
std::string Compose(const qsymbol::Symbol& symbol, const std::u16string& path, const Run& run);

} // namespace cli
