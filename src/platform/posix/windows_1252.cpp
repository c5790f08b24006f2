#include "platform/posix/windows_1252.h"

#include "base/utf16_unit.h"

#include <array>

namespace platform {

namespace {

/// The characters of the bytes 0x80 to 0x9F; the five unassigned bytes stand for themselves.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char EncodeOne(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<char>(static_cast<unsigned char>(unit));
    for (std::size_t i = 0; i < kHighControls.size(); ++i)
        if (kHighControls[i] == unit)
            return static_cast<char>(static_cast<unsigned char>(0x80 + i));
    return '?';
}

} // namespace

std::string Windows1252::Encode(std::u16string_view text) const {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair =
            base::IsHighSurrogate(text[i]) && i + 1 < text.size() && base::IsLowSurrogate(text[i + 1]);
        bytes += EncodeOne(text[i]);
        i += pair ? 1 : 0;
    }
    return bytes;
}

std::u16string Windows1252::Decode(std::string_view bytes) const {
    std::u16string text(bytes.size(), u'\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        text[i] = byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80U] : char16_t{byte};
    }
    return text;
}

} // namespace platform
