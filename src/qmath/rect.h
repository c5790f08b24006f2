#pragma once

#include <cstdint>

namespace qmath {

/// An axis-parallel rectangle; left and top hold the smaller values. Its edges belong to it.
struct Rect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace qmath
