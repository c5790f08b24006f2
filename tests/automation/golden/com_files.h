#pragma once

#include "golden/host.h"
#include "support/number_settings.h"
#include "support/temp_folder.h"

#include <optional>

namespace golden {

/// The files of a case, in a folder of its own, and the user's regional settings.
class ComFiles {
public:
    ComFiles() : settings_(std::in_place, L",", L".") {}
    ComFiles(const ComFiles&) = delete;
    ~ComFiles();

    /// False for a command that is none about files.
    bool Do(const Step& step, Lines& outputs);
    std::wstring PathOf(const std::string& name) const;
    /// The text without this folder's path.
    std::wstring WithoutFolder(std::wstring text) const;

private:
    support::TempFolder folder_;
    std::vector<std::wstring> inner_; ///< folders within the folder
    std::optional<support::NumberSettings> settings_;
};

} // namespace golden
