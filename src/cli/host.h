#pragma once

#include "base/code_page.h"
#include "base/file_system.h"
#include "base/regional_settings.h"

#include <memory>
#include <string>
#include <vector>

/// Seam: what the program asks of the system that it runs on. One implementation a platform.
namespace cli {

/// The program's arguments without its own name, as UTF-8.
std::vector<std::string> Arguments(int count, char** values);

/// Lets the standard streams carry bytes as they are, and a console show them as UTF-8.
void PrepareStreams();

/// True when the error stream is a terminal, where somebody may watch.
bool ErrorsGoToATerminal();

std::unique_ptr<base::FileSystem> SystemFiles();
std::unique_ptr<base::CodePage> SystemCodePage();

/// The user's number conventions.
base::RegionalSettings UserSettings();

} // namespace cli
