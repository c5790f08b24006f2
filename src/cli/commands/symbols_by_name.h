#pragma once

#include "cli/run.h"
#include "qplan/model/symbol_source.h"

#include <string>
#include <unordered_map>

namespace cli {

/// The symbol files of a catalogue as the source of a plan. A file is read when the plan names its symbol.
class SymbolsByName final : public qplan::SymbolSource {
public:
    /// The first file of a name counts, whatever the case. Error 53 for a folder that is not there, 75 for a file.
    SymbolsByName(const std::u16string& folder, const Run& run);

    /// Errors of ReadSymbol as FailureOf the symbol's file.
    std::shared_ptr<const qplan::PlacedSymbol> Find(std::u16string_view name) override;
    std::uint64_t Edition() const override { return 0; }

private:
    struct Entry {
        std::u16string path;
        std::shared_ptr<const qplan::PlacedSymbol> symbol; ///< once it was asked for
    };

    const Run& run_;
    std::unordered_map<std::u16string, Entry> entries_; ///< by name in upper case
};

} // namespace cli
