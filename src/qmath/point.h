#pragma once

#include <cstdint>

namespace qmath {

/// A point in logical units or in pixels; laid out like the GDI's POINT.
struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

} // namespace qmath
