#include "qsymbol/drawing/dxf_tags.h"

#include "qsymbol/picture/short_number.h"

#include <array>
#include <charconv>

namespace qsymbol {

void DxfTags::Text(int code, std::string_view value) {
    bytes_ += std::to_string(code);
    bytes_ += "\r\n";
    bytes_ += value;
    bytes_ += "\r\n";
}

void DxfTags::Whole(int code, std::int64_t value) {
    Text(code, std::to_string(value));
}

void DxfTags::Real(int code, double value) {
    constexpr int kDecimals = 10;
    std::string text;
    AppendShort(text, value, kDecimals);
    if (text.find('.') == std::string::npos)
        text += ".0";
    Text(code, text);
}

void DxfTags::Handle(int code, DxfHandle handle) {
    std::array<char, 8> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), handle, 16).ptr;
    std::string text(digits.data(), end);
    for (char& digit : text)
        if (digit >= 'a')
            digit = static_cast<char>(digit - 'a' + 'A');
    Text(code, text);
}

void DxfTags::Place(int code, double x, double y) {
    Real(code, x);
    Real(code + 10, y);
    Real(code + 20, 0);
}

} // namespace qsymbol
