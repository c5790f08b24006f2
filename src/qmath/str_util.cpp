#include "qmath/str_util.h"

#include "base/checked.h"

namespace qmath {

std::int32_t TokenCount(std::u16string_view text, std::u16string_view separator) {
    std::size_t count = 1;
    if (!separator.empty()) {
        for (std::size_t at = text.find(separator); at != std::u16string_view::npos;
             at = text.find(separator, at + separator.size()))
            ++count;
    }
    return base::Narrow<std::int32_t>(count);
}

std::u16string_view GetToken(std::u16string_view text, std::u16string_view separator, std::int32_t index) {
    if (index < 1)
        return {};
    for (;;) {
        const std::size_t end = separator.empty() ? std::u16string_view::npos : text.find(separator);
        if (index == 1)
            return text.substr(0, end);
        if (end == std::u16string_view::npos)
            return {};
        text.remove_prefix(end + separator.size());
        --index;
    }
}

std::u16string_view FileNamePart(std::u16string_view path) {
    std::size_t start = path.size();
    while (start > 0 && path[start - 1] != u'\\' && path[start - 1] != u'/' && path[start - 1] != u':')
        --start;
    return path.substr(start);
}

std::u16string_view NameWithoutExtension(std::u16string_view fileName) {
    return fileName.substr(0, fileName.rfind(u'.'));
}

std::u16string_view GetExtension(std::u16string_view path) {
    const std::u16string_view name = FileNamePart(path);
    const std::size_t dot = name.rfind(u'.');
    return dot == std::u16string_view::npos ? std::u16string_view() : name.substr(dot + 1);
}

} // namespace qmath
