#pragma once

#include "automation/objects/published_symbol.h"

/// What a copy of a symbol takes over: path, reference point and elements. One of this library's is copied
/// as it is; any other one, ours of another apartment among them, is asked for them. The caller holds it.
qsymbol::Symbol CopyOf(_CSymbol& symbol);
