#pragma once

#include "qsymbol/model/symbol.h"

#include <QSymbol.h>

// Reading public symbol objects; any implementation of the interface will do. The caller holds them.

/// All elements of a collection as records.
qsymbol::ElementList ToRecords(_CSymElementColl& elements);

/// What a copy of a symbol takes over: path, reference point and elements. One of this library's is copied
/// as it is; any other one, ours of another apartment among them, is asked for them.
qsymbol::Symbol CopyOf(_CSymbol& symbol);
