#include "qsymbol/draw/bounds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <complex>
#include <random>

namespace {

using qmath::Rect;
using qsymbol::GetBoundingRect;
using qsymbol::Symbol;

Symbol Box(std::int32_t width, std::int32_t height, qmath::Point reference = {}) {
    Symbol symbol;
    symbol.width = width;
    symbol.height = height;
    symbol.refX = reference.x;
    symbol.refY = reference.y;
    return symbol;
}

TEST(Bounds, AgreeWithComplexNumbers) {
    std::mt19937 random(61);
    std::uniform_int_distribution<std::int32_t> world(-1000000, 1000000);
    std::uniform_int_distribution<std::int32_t> size(0, 50000);
    std::uniform_real_distribution<double> angle(-7, 7);
    const std::array<double, 4> factors{0, 1, 0.37, 2.5};
    for (int i = 0; i < 5000; ++i) {
        const Symbol box = Box(size(random), size(random), {size(random), size(random)});
        const qsymbol::SymbolPosition position{.at = {world(random), world(random)}, .angle = angle(random)};
        const double factor = factors[static_cast<std::size_t>(i) % factors.size()];
        const double scale = factor == 0 ? 1 : factor;
        double left = 1e18;
        double top = 1e18;
        double right = -1e18;
        double bottom = -1e18;
        for (const int corner : {0, 1, 2, 3}) {
            const std::complex<double> own((corner & 1) * box.width - box.refX,
                                           (corner >> 1) * box.height - box.refY);
            const std::complex<double> placed = std::complex<double>(position.at.x, position.at.y) +
                                                scale * own * std::polar(1.0, -position.angle);
            left = std::min(left, placed.real());
            right = std::max(right, placed.real());
            top = std::min(top, placed.imag());
            bottom = std::max(bottom, placed.imag());
        }
        const Rect bounds = GetBoundingRect(box, position, factor);
        ASSERT_NEAR(bounds.left, left, 0.5 + 1e-6) << i;
        ASSERT_NEAR(bounds.top, top, 0.5 + 1e-6) << i;
        ASSERT_NEAR(bounds.right, right, 0.5 + 1e-6) << i;
        ASSERT_NEAR(bounds.bottom, bottom, 0.5 + 1e-6) << i;
    }
}

} // namespace
