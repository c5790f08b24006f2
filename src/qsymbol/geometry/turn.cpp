#include "qsymbol/geometry/turn.h"

#include <cmath>

namespace qsymbol {

const Turn& TurnBy(double angle) {
    thread_local Turn last;
    if (angle != last.angle)
        last = {angle, std::sin(angle), std::cos(angle)};
    return last;
}

} // namespace qsymbol
