#include "symbol_group.h"

#include <cmath>
#include <numbers>

SymbolGroup MakeGroup(const std::vector<PlacedSymbol>& symbols, POINT base) {
    SymbolGroup group{base, {}};
    for (const PlacedSymbol& placed : symbols)
        group.members.push_back({{placed.at.x - base.x, placed.at.y - base.y}, Radians(placed)});
    return group;
}

std::vector<PlacedSymbol> TurnedAbout(std::vector<PlacedSymbol> symbols, POINT about, int degrees) {
    const double sine = std::sin(Radians({{}, {}, static_cast<double>(degrees)}));
    const double cosine = std::cos(Radians({{}, {}, static_cast<double>(degrees)}));
    for (PlacedSymbol& symbol : symbols) {
        const double x = static_cast<double>(symbol.at.x) - about.x;
        const double y = static_cast<double>(symbol.at.y) - about.y;
        symbol.at = {about.x + std::lround(x * cosine + y * sine),
                     about.y + std::lround(y * cosine - x * sine)};
        symbol.angle = DegreesOf(Radians({{}, {}, symbol.angle + degrees}));
    }
    return symbols;
}

double DegreesOf(double radians) {
    constexpr double kParts = 1'000'000; // what a plan file keeps
    double degrees = std::fmod(radians * 180 / std::numbers::pi, 360.0);
    if (degrees < 0)
        degrees += 360;
    degrees = std::round(degrees * kParts) / kParts;
    return degrees == 360 ? 0 : degrees;
}
