#pragma once

#include "cli/run.h"
#include "cli/source_file.h"
#include "qsymbol/model/symbol.h"

#include <functional>
#include <string>
#include <vector>

namespace cli {

/// A file that is made of many symbols.
struct OneTarget {
    std::u16string path;
    std::function<void(const SourceFile&, const qsymbol::Symbol&)> add;
    std::function<std::string()> compose;
    std::string_view noun; ///< what a symbol becomes in it
};

/// Claims the target, adds the symbols of all sources, writes the target and tells how many there are. A source that
/// fails is told of and left out; where all of them fail nothing is written.
void WriteOneTarget(const OneTarget& target, const std::vector<std::string>& sources, Run& run);

} // namespace cli
