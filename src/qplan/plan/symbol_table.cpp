#include "qplan/plan/symbol_table.h"

#include "base/error.h"

#include <algorithm>
#include <utility>

namespace qplan {

namespace {

std::shared_ptr<const PlacedSymbol> Find(SymbolSource& source, std::u16string_view name) {
    std::shared_ptr<const PlacedSymbol> symbol = source.Find(name);
    if (symbol == nullptr)
        base::Raise(base::RunTimeError::InvalidCall);
    return symbol;
}

SymbolTable::Entry EntryOf(std::u16string name, std::shared_ptr<const PlacedSymbol> symbol) {
    // The edition first: a change in between is seen the next time.
    const std::uint64_t edition = symbol->Edition();
    const SymbolReach reach = symbol->Reach();
    return {std::move(name), std::move(symbol), edition, reach};
}

} // namespace

void SymbolTable::SetSource(std::shared_ptr<SymbolSource> source) {
    if (source != nullptr && source != source_) {
        std::vector<Entry> entries;
        const std::uint64_t before = changes_;
        entries.reserve(entries_.size());
        // NOLINTNEXTLINE(modernize-loop-convert): a host's source may add entries while it is asked
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            std::u16string name = entries_[i].name;
            entries.push_back(EntryOf(name, Find(*source, name)));
        }
        if (changes_ != before) // a host's source has changed the plan meanwhile
            base::Raise(base::RunTimeError::InvalidCall);
        entries_ = std::move(entries);
        mostPixels_ = 0;
        mostLength_ = 0;
        for (const Entry& entry : entries_)
            NoteMost(entry.reach);
        sourceEdition_ = source->Edition();
    }
    source_ = std::move(source);
    ++changes_;
}

std::uint32_t SymbolTable::Take(std::u16string_view name) {
    if (source_ == nullptr)
        base::Raise(base::RunTimeError::ObjectNotSet);
    const std::shared_ptr<SymbolSource> held = source_; // it may be exchanged while it is asked
    std::shared_ptr<const PlacedSymbol> symbol = Find(*held, name);
    std::u16string key(name);
    const auto known = byName_.find(key);
    if (known != byName_.end() && entries_[known->second].symbol == symbol)
        return known->second;
    Entry entry = EntryOf(key, std::move(symbol));
    const auto at = static_cast<std::uint32_t>(entries_.size());
    NoteMost(entry.reach);
    entries_.push_back(std::move(entry));
    ++changes_;
    byName_[std::move(key)] = at;
    return at;
}

void SymbolTable::Clear() {
    entries_ = {};
    byName_ = {};
    mostPixels_ = 0;
    mostLength_ = 0;
    ++changes_;
}

void SymbolTable::NoteMost(const SymbolReach& reach) const {
    mostPixels_ = std::max(mostPixels_, reach.pixels);
    mostLength_ = std::max(mostLength_, reach.length);
}

bool SymbolTable::Refresh() const {
    if (source_ != nullptr) {
        const std::uint64_t edition = source_->Edition();
        if (edition == sourceEdition_)
            return false;
        sourceEdition_ = edition;
    }
    bool moved = false;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const std::shared_ptr<const PlacedSymbol> symbol = entries_[i].symbol;
        const std::uint64_t edition = symbol->Edition();
        // Asking may change the plan, each time.
        const auto isStillThere = [&] { return i < entries_.size() && entries_[i].symbol == symbol; };
        if (!isStillThere())
            return true;
        if (edition == entries_[i].edition)
            continue;
        const SymbolReach reach = symbol->Reach();
        if (!isStillThere())
            return true;
        moved |= reach.box != entries_[i].reach.box;
        NoteMost(reach);
        entries_[i].edition = edition;
        entries_[i].reach = reach;
        ++changes_;
    }
    return moved;
}

} // namespace qplan
