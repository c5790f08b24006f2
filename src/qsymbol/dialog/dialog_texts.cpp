#include "qsymbol/dialog/dialog_texts.h"

#include "base/number_format.h"
#include "qmath/str_util.h"

namespace qsymbol {

SelectionRequest ParseSelectionRequest(std::u16string_view text) {
    constexpr std::u16string_view kSeparator = u"+";
    return {.name = std::u16string(qmath::GetToken(text, kSeparator, 1)),
            .folder = std::u16string(qmath::GetToken(text, kSeparator, 2))};
}

std::u16string SizeText(std::int32_t length, double unitFactor, std::u16string_view decimal) {
    std::string plain;
    base::AppendDecimals(plain, static_cast<double>(length) / unitFactor, 2, ".");
    std::u16string text;
    for (const char c : plain) {
        if (c == '.')
            text += decimal;
        else
            text += static_cast<char16_t>(c);
    }
    return text;
}

std::u16string ProgressText(std::size_t current, std::size_t count) {
    const std::string from = std::to_string(current);
    const std::string to = std::to_string(count);
    return std::u16string(from.begin(), from.end()) + u" von " + std::u16string(to.begin(), to.end());
}

std::u16string PicturePath(std::u16string_view folder, std::u16string_view name) {
    std::u16string path(folder);
    path += u'\\';
    path += name;
    path += u".JPG";
    return path;
}

} // namespace qsymbol
