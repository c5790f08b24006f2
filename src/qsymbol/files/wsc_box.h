#pragma once

#include "base/checked.h"
#include "qmath/point.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace qsymbol {

/// A place in an import file: logical units as doubles, y upwards.
struct WscPlace {
    double x = 0;
    double y = 0;
};

/// The place in the symbol of this height, whose y grows downwards; rounded half to even. Error 6.
inline qmath::Point ToSymbol(WscPlace place, std::int32_t height) {
    return {base::RoundToLong(place.x), base::RoundToLong(height - place.y)};
}

/// The bounding box of an ellipse in an import file, and what is made of the ellipse.
struct WscBox {
    /// Points of an ellipse's outline; the last one is the first one again.
    static constexpr std::size_t kEllipsePoints = 21;
    /// Points of a sector's outline: those of its arc, then the centre.
    static constexpr std::size_t kSectorPoints = 22;

    WscPlace first;
    WscPlace second;

    /// Width and height differ by a logical unit at most.
    bool IsSquare() const;
    WscPlace Centre() const;
    double RadiusX() const;
    double RadiusY() const;

    /// The outline, counter-clockwise from the right-hand end. Error 6 outside 32 bits.
    void Ellipse(std::span<qmath::Point, kEllipsePoints> outline, std::int32_t height) const;
    /// The sector between the rays from the centre through two places, counter-clockwise from the first;
    /// the whole ellipse when the rays are the same. Error 6 outside 32 bits.
    void Sector(WscPlace from, WscPlace to, std::span<qmath::Point, kSectorPoints> outline,
                std::int32_t height) const;

private:
    /// The angle in the ellipse's own parameter at which the ray through a place leaves it.
    double ParameterOf(WscPlace place) const;
};

} // namespace qsymbol
