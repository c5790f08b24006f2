#pragma once

#include "cli/commands/choice.h"
#include "qsymbol/drawing/drawing_unit.h"

namespace cli {

/// The option --units of commands that write drawings.
inline void AddUnits(CLI::App& command, qsymbol::DrawingUnit& unit) {
    using qsymbol::DrawingUnit;
    AddChoice<DrawingUnit>(
        command, "--units", unit,
        {{"mm", DrawingUnit::Millimetre}, {"cm", DrawingUnit::Centimetre}, {"m", DrawingUnit::Metre}},
        "What a unit of the drawing measures; mm without it");
}

} // namespace cli
