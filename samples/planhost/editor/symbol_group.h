#pragma once

#include "../plan_file.h"

#include <vector>

/// A placed symbol as a member of a group that is moved and turned as one.
struct GroupMember {
    std::size_t place; ///< in the plan
    POINT delta;       ///< from the group's base point, in units
    double angle;      ///< its own, in radians
};

/// The base point is the insertion point of the first member.
struct SymbolGroup {
    POINT base;
    std::vector<GroupMember> members;
};

/// places: of at least one symbol.
SymbolGroup MakeGroup(const std::vector<PlacedSymbol>& symbols, const std::vector<std::size_t>& places);

/// The library's radians as the plan's degrees: from 0 to below 360, to the millionth.
double DegreesOf(double radians);
