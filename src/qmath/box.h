#pragma once

#include <limits>

namespace qmath {

/// An axis-parallel box before rounding; its edges belong to it. It starts out empty and grows.
struct Box {
    double left = std::numeric_limits<double>::infinity();
    double top = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double bottom = -std::numeric_limits<double>::infinity();

    bool IsEmpty() const { return left > right; }
    double Width() const { return IsEmpty() ? 0 : right - left; }
    double Height() const { return IsEmpty() ? 0 : bottom - top; }

    /// Takes in a point with so much around it.
    void Include(double x, double y, double reach = 0) {
        left = left < x - reach ? left : x - reach;
        top = top < y - reach ? top : y - reach;
        right = right > x + reach ? right : x + reach;
        bottom = bottom > y + reach ? bottom : y + reach;
    }
    void Include(const Box& other) {
        left = left < other.left ? left : other.left;
        top = top < other.top ? top : other.top;
        right = right > other.right ? right : other.right;
        bottom = bottom > other.bottom ? bottom : other.bottom;
    }

    friend bool operator==(const Box&, const Box&) = default;
};

} // namespace qmath
