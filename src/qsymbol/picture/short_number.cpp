#include "qsymbol/picture/short_number.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>

namespace qsymbol {

void AppendShort(std::string& out, double value, int decimals) {
    // Room for every finite double in full.
    std::array<char, 400> digits{};
    const char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, decimals)
            .ptr;
    std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
    if (text.find('.') != std::string_view::npos) {
        text = text.substr(0, text.find_last_not_of('0') + 1);
        if (text.ends_with('.'))
            text.remove_suffix(1);
    }
    out += text == "-0" ? "0" : text;
}

} // namespace qsymbol
