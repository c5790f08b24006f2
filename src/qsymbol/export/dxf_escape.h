#pragma once

#include <string>

namespace qsymbol {

/// One unit of UTF-16 as DXF files write what must not or cannot stand there itself: control characters below 32 and the
/// caret in caret form (`^J`, `^M`, `^ `), everything else as `\U+XXXX`.
std::string DxfEscape(char16_t unit);

} // namespace qsymbol
