#pragma once

#include "base/code_page.h"
#include "base/file_system.h"
#include "base/regional_settings.h"
#include "qsymbol/frame/resource_strings.h"
#include "qsymbol/frame/user_prompt.h"

namespace qsymbol {

/// Everything outside the symbol that reading and writing its file needs. The referenced objects outlive it.
struct FileEnvironment {
    base::FileSystem& files;
    const base::CodePage& codePage;
    base::RegionalSettings regional;
    const ResourceStrings& strings;
    UserPrompt& prompt;
};

} // namespace qsymbol
