#pragma once

#include "cli/run.h"

#include <string>
#include <vector>

namespace cli {

/// Runs the program with its arguments (UTF-8, without its name). The exit status: 0 all well, 1 a file
/// failed or there are findings or differences, 2 wrong usage.
int RunProgram(const std::vector<std::string>& arguments, const System& system);

} // namespace cli
