#pragma once

namespace qmath {

/// A direction or a position before rounding.
struct Vector {
    double x = 0;
    double y = 0;

    friend bool operator==(const Vector&, const Vector&) = default;
};

} // namespace qmath
