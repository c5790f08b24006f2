#include "cli/shown.h"

#include "base/utf16_unit.h"
#include "base/utf8.h"

#include <algorithm>

namespace cli {

std::string Shown(std::u16string_view text) {
    std::u16string line(text);
    std::ranges::replace_if(line, base::IsControl, u'?');
    return base::ToUtf8(line);
}

std::string Counted(std::size_t number, std::string_view noun) {
    std::string text = std::to_string(number) + ' ';
    text += noun;
    return number == 1 ? text : text + 's';
}

} // namespace cli
