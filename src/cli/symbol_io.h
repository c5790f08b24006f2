#pragma once

#include "cli/run.h"
#include "qsymbol/model/symbol.h"

#include <optional>
#include <string>

namespace cli {

/// What reading a symbol file gave.
struct Reading {
    qsymbol::Symbol symbol;
    std::optional<std::u16string> notice; ///< why a foreign file was not read to its end
};

/// Reads a symbol file of any format under these number conventions; foreign files have their own. Errors
/// of qsymbol::ReadFromFile.
Reading ReadSymbolFile(const std::u16string& path, const base::RegionalSettings& settings,
                       const System& system);

/// The symbol of a file. Error 3501 with the notice's text for a foreign file that was not read to its end.
qsymbol::Symbol ReadSymbol(const std::u16string& path, const base::RegionalSettings& settings,
                           const System& system);
/// The same under the run's conventions.
qsymbol::Symbol ReadSymbol(const std::u16string& path, const Run& run);

/// The bytes that the libraries would write for this symbol into a file of this name. Error 3503 for an
/// extension that cannot be written.
std::string Compose(const qsymbol::Symbol& symbol, const std::u16string& path, const Run& run);

} // namespace cli
