#include "symbol_group.h"

#include <cmath>
#include <numbers>

SymbolGroup MakeGroup(const std::vector<PlacedSymbol>& symbols, const std::vector<std::size_t>& places) {
    SymbolGroup group{symbols[places.front()].at, {}};
    for (const std::size_t place : places) {
        const PlacedSymbol& placed = symbols[place];
        const POINT delta{placed.at.x - group.base.x, placed.at.y - group.base.y};
        group.members.push_back({place, delta, Radians(placed)});
    }
    return group;
}

double DegreesOf(double radians) {
    constexpr double kParts = 1'000'000; // what a plan file keeps
    double degrees = std::fmod(radians * 180 / std::numbers::pi, 360.0);
    if (degrees < 0)
        degrees += 360;
    degrees = std::round(degrees * kParts) / kParts;
    return degrees == 360 ? 0 : degrees;
}
