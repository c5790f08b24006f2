#pragma once

#include "qsymbol/files/file_environment.h"

#include <string>

namespace qsymbol {

/// True when a writer may go on: there is no file of that path, or the user says Yes to overwriting it.
bool MayOverwrite(const std::u16string& path, const FileEnvironment& environment);

} // namespace qsymbol
