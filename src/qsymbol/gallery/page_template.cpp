#include "qsymbol/gallery/page_template.h"

namespace qsymbol {

std::string FilledTemplate(std::string_view text,
                           const std::map<std::string, std::string, std::less<>>& values) {
    std::string out;
    while (!text.empty()) {
        const std::size_t begin = text.find('@');
        const std::size_t end = begin == std::string_view::npos ? begin : text.find('@', begin + 1);
        if (end == std::string_view::npos)
            break;
        const auto value = values.find(text.substr(begin + 1, end - begin - 1));
        if (value == values.end()) {
            // The second sign may begin a name.
            out += text.substr(0, end);
            text.remove_prefix(end);
            continue;
        }
        out += text.substr(0, begin);
        out += value->second;
        text.remove_prefix(end + 1);
    }
    out += text;
    return out;
}

} // namespace qsymbol
