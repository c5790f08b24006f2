#pragma once

#include "base/file_system.h"
#include "messages/user_prompt.h"
#include "qsymbol/files/format_rules.h"

namespace qsymbol {

/// Everything outside the symbol that reading and writing its file needs. The referenced objects outlive it.
struct FileEnvironment {
    base::FileSystem& files;
    const base::CodePage& codePage;
    base::RegionalSettings regional;
    const messages::ResourceStrings& strings;
    messages::UserPrompt& prompt;

    /// What the formats need of it; valid as long as the environment.
    operator FormatRules() const { return {codePage, regional, strings}; } // NOLINT: it is a part of it
};

} // namespace qsymbol
