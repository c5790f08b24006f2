#pragma once

#include <string>
#include <vector>

namespace platform {

/// The arguments of the process without the program's name, as UTF-8.
std::vector<std::string> CommandLine();

/// Standard output and errors carry bytes as they are written; a console shows them as UTF-8 until the
/// process ends.
void UseUtf8Console();

/// True when standard errors are shown in a console.
bool ErrorsGoToAConsole();

} // namespace platform
