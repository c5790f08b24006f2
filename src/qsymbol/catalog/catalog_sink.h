#pragma once

#include "qsymbol/model/symbol.h"

namespace qsymbol {

/// Seam: the collection that a catalogue loader fills.
class CatalogSink {
public:
    virtual ~CatalogSink() = default;

    /// Adds the symbol under its name. Error 457 when the name is taken.
    virtual void Add(Symbol&& symbol) = 0;
};

} // namespace qsymbol
