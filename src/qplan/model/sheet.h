#pragma once

#include "qmath/point.h"
#include "qmath/rect.h"

#include <cstdint>
#include <string>
#include <vector>

namespace qplan {

struct Floor {
    std::int32_t colour = 0; ///< packed RGB
    qmath::Rect area;
};

struct Wall {
    qmath::Point from, to; ///< the middle line, of some length
    std::int32_t thickness = 0;
};

struct Room {
    std::u16string name;
    qmath::Point middle;
};

/// Lines of a plan file that are no symbols, as they stand there with their ends, UTF-8.
struct KeptText {
    std::int32_t before = 0; ///< they stand before the symbol of this id and later ones
    std::string lines;
};

/// What there is of a plan beside its symbols. Lengths in millimetres, y downwards.
struct Sheet {
    std::u16string title;
    std::int32_t width = 0; ///< 0: no sheet; the plan has symbols alone
    std::int32_t height = 0;
    std::vector<Floor> floors;
    std::vector<Wall> walls;
    std::vector<Room> rooms;
    std::vector<KeptText>
        kept; ///< of the file that it was read from; empty: the file is made from the values above
};

/// Logical units in a millimetre of the sheet.
inline constexpr std::int32_t kUnitsPerMillimetre = 100;

} // namespace qplan
