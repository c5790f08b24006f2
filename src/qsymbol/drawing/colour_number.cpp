#include "qsymbol/drawing/colour_number.h"

#include "qsymbol/export/colour_table.h"

#include <limits>

namespace qsymbol {

namespace {

/// Squared, the channels weighed by what the eye makes of them.
int DistanceOf(std::int32_t a, std::int32_t b) {
    const auto square = [&](int shift) {
        const int difference = (a >> shift & 255) - (b >> shift & 255);
        return difference * difference;
    };
    return 3 * square(0) + 6 * square(8) + square(16);
}

} // namespace

int ColourNumbers::NearestTo(std::int32_t colour) {
    const auto [entry, isNew] = known_.try_emplace(colour, 0);
    if (!isNew)
        return entry->second;
    int least = std::numeric_limits<int>::max();
    for (int number = 1; number <= 255; ++number) {
        const int distance = DistanceOf(colour, ColourOfNumber(number, ColourUse::Plan));
        if (distance < least) {
            least = distance;
            entry->second = number;
        }
    }
    return entry->second;
}

} // namespace qsymbol
