#pragma once

#include "qplan/model/placed_symbol.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace qplan {

/// Seam: the catalogue that a plan takes its symbols from.
class SymbolSource {
public:
    virtual ~SymbolSource() = default;

    /// The symbol of a name, in any case of letters; nullptr when there is none. The same object for the same symbol each
    /// time.
    virtual std::shared_ptr<const PlacedSymbol> Find(std::u16string_view name) = 0;

    /// A number that is another one after a change of any symbol that this source ever gave out. Cheap: asked by every
    /// call of a plan, which looks at the symbols' own editions only when this one has moved. A source that cannot
    /// know moves it each time.
    virtual std::uint64_t Edition() const = 0;
};

} // namespace qplan
