#pragma once

#include "base/code_page.h"
#include "base/regional_settings.h"
#include "messages/resource_strings.h"

namespace qsymbol {

/// What turning a symbol into bytes and back depends on besides the two. The referenced objects outlive it, the code
/// page also the symbols that are read by it: their elements are taken from the file's bytes when they are looked at.
struct FormatRules {
    const base::CodePage& codePage;
    const base::RegionalSettings& regional;
    const messages::ResourceStrings& strings;
};

} // namespace qsymbol
