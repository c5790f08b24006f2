#include "drawing/placed_symbol.h"

#include <numbers>

namespace drawing {

void PlacedSymbolTest::SetFactors(double printer, double screen) {
    // Kept even when there is nothing to draw.
    EXPECT_OK(support::NewSymbol()->Draw(0, 0, 0, nullptr, nullptr, printer, screen, nullptr));
}

double PlacedSymbolTest::RandomAngle() {
    if (Random(0, 3) == 0)
        return static_cast<double>(Random(-4, 4)) * std::numbers::pi / 2;
    return std::uniform_real_distribution<double>(-10, 10)(random);
}

double PlacedSymbolTest::RandomFactor() {
    constexpr double kFactors[] = {0, 1, 0.5, 2, 1.7};
    return kFactors[Random(0, 4)];
}

Place PlacedSymbolTest::RandomPlace(double factor) {
    return {{Random(-500, 500), Random(-500, 500)},
            {Random(-5000, 5000), Random(-5000, 5000)},
            RandomAngle(),
            factor == 0 ? 1 : factor};
}

View PlacedSymbolTest::RandomView() {
    return {std::uniform_real_distribution<double>(0.5, 20)(random), Random(-3000, 3000),
            Random(-3000, 3000)};
}

std::vector<POINT> WorldBox(const Place& place, LONG width, LONG height) {
    return {World(place, {0, 0}), World(place, {width, 0}), World(place, {width, height}),
            World(place, {0, height})};
}

std::vector<POINT> PixelBox(const Place& place, const View& view, LONG width, LONG height) {
    std::vector<POINT> pixels = WorldBox(place, width, height);
    for (POINT& point : pixels)
        point = Pixel(view, point);
    return pixels;
}

} // namespace drawing
