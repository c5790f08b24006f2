#pragma once

namespace qsymbol {

/// Sine and cosine of an angle.
struct Turn {
    double angle = 0;
    double sine = 0;
    double cosine = 1;
};

/// Those of the last angle are kept for each thread: a host draws and tests many symbols at the same few angles, and the two
/// functions cost as much as all the rest of a hit test.
const Turn& TurnBy(double angle);

} // namespace qsymbol
