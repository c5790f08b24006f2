#pragma once

#include "qplan/model/symbol_source.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qplan {

/// The symbols that a plan uses, each once for every name that it was placed under, and how far they reach.
class SymbolTable {
public:
    struct Entry {
        std::u16string name;
        std::shared_ptr<const PlacedSymbol> symbol;
        std::uint64_t edition = 0; ///< for which the reach holds
        SymbolReach reach;
    };

    const std::shared_ptr<SymbolSource>& Source() const { return source_; }
    /// Finds all symbols in another source. Error 5, nothing changed, when one is missing.
    void SetSource(std::shared_ptr<SymbolSource> source);

    /// The entry for a name, as the source has it now. Error 91 without a source, 5 for an unknown name.
    std::uint32_t Take(std::u16string_view name);
    void Clear();

    const Entry& operator[](std::uint32_t entry) const { return entries_[entry]; }
    std::size_t Size() const { return entries_.size(); }
    /// The most that drawing any of them adds, see SymbolReach.
    double MostPixels() const { return mostPixels_; }
    double MostLength() const { return mostLength_; }

    /// Asks for what has changed. True when a symbol reaches elsewhere now.
    bool Refresh() const;
    /// Raised whenever a symbol is another one or has changed.
    std::uint64_t Changes() const { return changes_; }

private:
    void NoteMost(const SymbolReach& reach) const;

    std::shared_ptr<SymbolSource> source_;
    // What is known of the symbols; the questions of a plan bring it up to date.
    mutable std::vector<Entry> entries_;
    mutable std::uint64_t sourceEdition_ = 0;
    mutable double mostPixels_ = 0;
    mutable double mostLength_ = 0;
    mutable std::uint64_t changes_ = 0;
    std::unordered_map<std::u16string, std::uint32_t> byName_; ///< as it was written
};

} // namespace qplan
