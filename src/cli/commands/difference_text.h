#pragma once

#include "cli/commands/json_output.h"
#include "qsymbol/compare/catalogue_difference.h"

#include <string>

namespace cli {

/// A difference for people: the symbol's name, and under it a line for each change, lengths in millimetres.
std::string AsText(const qsymbol::CatalogueDifference& difference);

/// A difference for programs: an array with an object for each change, lengths in 1/100 mm.
Json AsJson(const qsymbol::CatalogueDifference& difference);

} // namespace cli
