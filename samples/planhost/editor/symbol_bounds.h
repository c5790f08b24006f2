#pragma once

#include "../catalogue.h"
#include "../plan_file.h"

#include <array>
#include <map>
#include <string>

/// What a symbol covers, in units from its insertion point, before it is turned.
struct SymbolBounds {
    RECT figure; ///< lines and areas; the nominal size where there are none
    RECT drawn;  ///< with all texts, generously
};

/// The bounds of catalogue symbols, each worked out from its elements when it is first asked for.
class BoundsOfSymbols {
public:
    const SymbolBounds& Of(const std::wstring& name, _CSymbol& symbol);
    void Clear() { known_.clear(); }

private:
    std::map<std::wstring, SymbolBounds> known_;
};

/// The corners of a rectangle about the insertion point when the symbol is placed, in the plan's units.
std::array<POINT, 4> PlacedCorners(const RECT& bounds, const PlacedSymbol& placed);

/// The upright rectangle around points.
RECT Around(const std::array<POINT, 4>& points);

/// The smallest rectangle around both.
RECT Joined(const RECT& one, const RECT& other);

/// Whether two rectangles share a point.
bool Touch(const RECT& one, const RECT& other);
