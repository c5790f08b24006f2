#pragma once

#include "qsymbol/drawing/drawing_unit.h"

#include <CLI/App.hpp>

#include <map>
#include <string>

namespace cli {

/// The option --units of commands that write drawings.
inline void AddUnits(CLI::App& command, qsymbol::DrawingUnit& unit) {
    const std::map<std::string, qsymbol::DrawingUnit> units = {{"mm", qsymbol::DrawingUnit::Millimetre},
                                                               {"cm", qsymbol::DrawingUnit::Centimetre},
                                                               {"m", qsymbol::DrawingUnit::Metre}};
    command.add_option("--units", unit, "What a unit of the drawing measures; mm without it")
        ->transform(CLI::CheckedTransformer(units).description(""))
        ->type_name("mm|cm|m");
}

} // namespace cli
