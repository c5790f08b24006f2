#pragma once

#include "base/error.h"

#include <optional>
#include <string>

namespace cli {

/// A symbol file that a run looks at.
struct SourceFile {
    std::u16string path;
    std::u16string folder;              ///< the subfolder below the PATH that it was found in, "" right there
    std::optional<base::Error> failure; ///< why there is nothing to read under this path
};

} // namespace cli
