#pragma once

#include "base/error.h"
#include "qsymbol/check/finding.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace qsymbol {

/// "unreadable": reading the file gave this error.
Finding Unreadable(const base::Error& error);

/// "import-stopped": a foreign file was read up to a figure that cannot be imported; the notice says which.
Finding ImportStopped(std::u16string_view notice);

/// Finds "duplicate-name": a second file of one format and one name, whatever the case of its letters, which a
/// catalogue filled from these files would refuse.
class FileNames {
public:
    /// Takes a file in. A finding when there was another one before it.
    std::optional<Finding> Add(const std::u16string& path);

private:
    std::unordered_map<std::u16string, std::u16string> paths_; ///< by name and extension in one case
};

} // namespace qsymbol
