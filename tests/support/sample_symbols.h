#pragma once

#include "qsymbol/model/symbol.h"

#include <string>

namespace support {

/// A closed rectangle, a circle and a text: 3.00 x 2.00 with the reference point in the middle.
qsymbol::Symbol WashRoom();
/// The ten lines of its text file under German settings.
std::string WashRoomText();

/// A symbol with every element type and an odd value in every field.
qsymbol::Symbol EveryField();

} // namespace support
