#pragma once

#include "base/code_page.h"

#include <string>
#include <string_view>

namespace qsymbol {

/// A text as the value of a DXF group: one line in the code page.
///
/// Control characters below 32 and the caret itself take caret form (`^J`, `^M`, `^ `); other control characters and
/// what the code page lacks take the form `\U+XXXX`, one for each UTF-16 unit. Readers take lines of about a
/// thousand bytes, so a longer value is cut behind the last character that fits.
std::string DxfText(std::u16string_view text, const base::CodePage& codePage);

} // namespace qsymbol
