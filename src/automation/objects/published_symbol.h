#pragma once

#include "qsymbol/model/symbol.h"

#include <QSymbol.h>

// Reading symbol objects through their published interface; any implementation will do. The caller holds them.

/// All elements of a collection as records.
qsymbol::ElementList ToRecords(_CSymElementColl& elements);

/// What a copy of a symbol takes over: path, reference point and elements.
qsymbol::Symbol ReadPublished(_CSymbol& symbol);
