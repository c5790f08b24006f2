#include "qsymbol/dialog/dialog_texts.h"

#include "base/number_format.h"
#include "qmath/str_util.h"

namespace qsymbol {

namespace {

std::u16string Decimal(std::size_t number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

} // namespace

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
    return Decimal(current) + u" von " + Decimal(count);
}

std::u16string SavedText(std::size_t count, std::u16string_view folder) {
    if (count == 0)
        return u"Kein Bild gespeichert";
    std::u16string text = Decimal(count) + (count == 1 ? u" Bild in " : u" Bilder in ");
    text += folder.empty() ? u"\\" : folder;
    return text + u" gespeichert";
}

std::u16string PicturePath(std::u16string_view folder, std::u16string_view name) {
    std::u16string path(folder);
    path += u'\\';
    path += name;
    path += u".JPG";
    return path;
}

} // namespace qsymbol
