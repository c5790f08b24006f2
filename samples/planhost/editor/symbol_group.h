#pragma once

#include "../plan_file.h"

#include <vector>

/// A placed symbol as a member of a group that is moved and turned as one.
struct GroupMember {
    POINT delta;  ///< from the group's base point, in units
    double angle; ///< its own, in radians
};

struct SymbolGroup {
    POINT base;
    std::vector<GroupMember> members;
};

/// base: in units.
SymbolGroup MakeGroup(const std::vector<PlacedSymbol>& symbols, POINT base);

/// The symbols turned as one about a point, in degrees.
std::vector<PlacedSymbol> TurnedAbout(std::vector<PlacedSymbol> symbols, POINT about, int degrees);

/// The library's radians as the plan's degrees: from 0 to below 360, to the millionth.
double DegreesOf(double radians);
