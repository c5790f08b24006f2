#pragma once

#include "base/code_page.h"
#include "base/file_system.h"
#include "base/regional_settings.h"
#include "messages/resource_strings.h"
#include "messages/user_prompt.h"

namespace qsymbol {

/// Everything outside the symbol that reading and writing its file needs. The referenced objects outlive it.
struct FileEnvironment {
    base::FileSystem& files;
    const base::CodePage& codePage;
    base::RegionalSettings regional;
    const messages::ResourceStrings& strings;
    messages::UserPrompt& prompt;
};

} // namespace qsymbol
