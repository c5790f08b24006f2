#pragma once

#include "catalogue.h"
#include "plan_file.h"

#include <QMath.h>

#include <vector>

/// What the user points at in the picture of a plan, in pixels: one of them or a rectangle.
struct PointedAt {
    RECT pixels;
    bool isPoint;
};

bool IsSymbolAt(const PointedAt& place, const PlacedSymbol& placed, _CSymbol& symbol,
                _CTrans& transformation);

/// Which placed symbols lie there, by their places in the plan: at a point the topmost alone, below a
/// rectangle all. symbols: those of the plan, in its order.
std::vector<std::size_t> SymbolsAt(const PointedAt& place, const Plan& plan,
                                   const std::vector<Ptr<_CSymbol>>& symbols, _CTrans& transformation);
