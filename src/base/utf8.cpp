#include "base/utf8.h"

#include "base/utf16_unit.h"

#include <cstddef>

namespace base {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& out, char32_t c) {
    const auto byte = [&](char32_t value) { out += static_cast<char>(static_cast<unsigned char>(value)); };
    if (c < 0x80) {
        byte(c);
    } else if (c < 0x800) {
        byte(0xC0 | c >> 6);
        byte(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        byte(0xE0 | c >> 12);
        byte(0x80 | (c >> 6 & 0x3F));
        byte(0x80 | (c & 0x3F));
    } else {
        byte(0xF0 | c >> 18);
        byte(0x80 | (c >> 12 & 0x3F));
        byte(0x80 | (c >> 6 & 0x3F));
        byte(0x80 | (c & 0x3F));
    }
}

/// Decodes the sequence at `at` and moves behind it; on a broken one moves by a byte.
char32_t NextCharacter(std::string_view bytes, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(bytes[at++]);
    if (lead < 0x80)
        return lead;
    const std::size_t more = lead >= 0xF0 && lead < 0xF5   ? 3
                             : lead >= 0xE0 && lead < 0xF0 ? 2
                             : lead >= 0xC2 && lead < 0xE0 ? 1
                                                           : 0;
    if (more == 0 || at + more > bytes.size())
        return kReplacement;
    char32_t value = lead & (0x3FU >> more);
    for (std::size_t i = 0; i < more; ++i) {
        const auto next = static_cast<unsigned char>(bytes[at + i]);
        if ((next & 0xC0) != 0x80)
            return kReplacement;
        value = value << 6 | (next & 0x3FU);
    }
    const bool overlong = (more == 2 && value < 0x800) || (more == 3 && value < 0x10000);
    if (overlong || value > 0x10FFFF || (value >= 0xD800 && value < 0xE000))
        return kReplacement;
    at += more;
    return value;
}

} // namespace

std::string ToUtf8(std::u16string_view text) {
    std::string out(text.size(), '\0');
    // Most paths are plain ASCII up to their end, or nearly so.
    std::size_t plain = 0;
    for (; plain < text.size() && text[plain] < 0x80; ++plain)
        out[plain] = static_cast<char>(text[plain]);
    out.resize(plain);
    for (std::size_t i = plain; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (!IsSurrogate(unit)) {
            AppendUtf8(out, unit);
        } else if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            AppendUtf8(out, 0x10000U + ((unit & 0x3FFU) << 10) + (text[i + 1] & 0x3FFU));
            ++i;
        } else {
            AppendUtf8(out, kReplacement);
        }
    }
    return out;
}

std::u16string FromUtf8(std::string_view bytes) {
    std::u16string out(bytes.size(), u'\0');
    std::size_t plain = 0;
    for (; plain < bytes.size() && static_cast<unsigned char>(bytes[plain]) < 0x80; ++plain)
        out[plain] = static_cast<char16_t>(bytes[plain]);
    out.resize(plain);
    for (std::size_t at = plain; at < bytes.size();) {
        const char32_t c = NextCharacter(bytes, at);
        if (c < 0x10000) {
            out += static_cast<char16_t>(c);
        } else {
            out += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            out += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return out;
}

} // namespace base
