#include "support/xml_fault.h"

#include "base/utf8.h"

#include <algorithm>
#include <array>
#include <vector>

namespace support {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool IsReference(std::string_view name) {
    constexpr std::array<std::string_view, 5> kNamed = {"amp", "lt", "gt", "quot", "apos"};
    return std::find(kNamed.begin(), kNamed.end(), name) != kNamed.end() ||
           (name.starts_with('#') && name.size() > 1);
}

/// A fault of text between tags or of an attribute's value.
std::string CharactersFault(std::string_view text) {
    for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
        const std::size_t end = text.find(';', at);
        if (end == std::string_view::npos || !IsReference(text.substr(at + 1, end - at - 1)))
            return "a lone ampersand";
    }
    return text.find('<') == std::string_view::npos ? "" : "a bracket in a value";
}

/// A fault of what stands in a tag behind its name: attributes, each once, with values in quotes.
std::string AttributesFault(std::string_view rest) {
    std::vector<std::string_view> names;
    while (true) {
        rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
        if (rest.empty())
            return "";
        const std::size_t equals = rest.find("=\"");
        const std::size_t end = equals == std::string_view::npos ? equals : rest.find('"', equals + 2);
        if (end == std::string_view::npos)
            return "an attribute without a value";
        names.push_back(rest.substr(0, equals));
        if (names.back().find_first_of(kBlanks) != std::string_view::npos ||
            std::count(names.begin(), names.end(), names.back()) > 1)
            return "a name of an attribute";
        if (const std::string fault = CharactersFault(rest.substr(equals + 2, end - equals - 2));
            !fault.empty())
            return fault;
        rest.remove_prefix(end + 1);
    }
}

std::string CharacterFault(std::string_view text) {
    if (!IsUtf8(text))
        return "bytes that are no UTF-8";
    const auto control = [](char byte) {
        return static_cast<unsigned char>(byte) < 0x20 && kBlanks.find(byte) == std::string_view::npos;
    };
    if (std::any_of(text.begin(), text.end(), control))
        return "a control character";
    return text.find("\xEF\xBF\xBE") != std::string_view::npos ||
                   text.find("\xEF\xBF\xBF") != std::string_view::npos
               ? "a character that is none"
               : "";
}

} // namespace

bool IsUtf8(std::string_view text) {
    return base::ToUtf8(base::FromUtf8(text)) == text;
}

std::string XmlFault(std::string_view text) {
    if (const std::string fault = CharacterFault(text); !fault.empty())
        return fault;
    std::vector<std::string_view> open;
    while (true) {
        const std::size_t begin = std::min(text.find('<'), text.size());
        if (const std::string fault = CharactersFault(text.substr(0, begin)); !fault.empty())
            return fault;
        if (begin == text.size())
            return open.empty() ? "" : "an element without an end";
        const std::size_t end = text.find('>', begin);
        if (end == std::string_view::npos)
            return "a tag without an end";
        std::string_view tag = text.substr(begin + 1, end - begin - 1);
        text.remove_prefix(end + 1);
        if (tag.starts_with('?') && tag.ends_with('?'))
            continue;
        if (tag.starts_with('/')) {
            if (open.empty() || open.back() != tag.substr(1))
                return "an end without its beginning";
            open.pop_back();
            continue;
        }
        const bool closed = tag.ends_with('/');
        if (closed)
            tag.remove_suffix(1);
        const std::size_t name = std::min(tag.find_first_of(kBlanks), tag.size());
        if (name == 0)
            return "a tag without a name";
        if (!closed)
            open.push_back(tag.substr(0, name));
        if (const std::string fault = AttributesFault(tag.substr(name)); !fault.empty())
            return fault;
    }
}

} // namespace support
