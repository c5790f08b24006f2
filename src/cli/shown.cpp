#include "cli/shown.h"

#include "base/utf8.h"

#include <algorithm>

namespace cli {

std::string Shown(std::u16string_view text) {
    std::u16string line(text);
    const auto isControl = [](char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); };
    std::replace_if(line.begin(), line.end(), isControl, u'?');
    return base::ToUtf8(line);
}

} // namespace cli
