#pragma once

#include "messages/resource_strings.h"

#include <map>
#include <string>

namespace support {

/// Resource strings by number; "" for all others.
class StringTable final : public messages::ResourceStrings {
public:
    std::map<std::int32_t, std::u16string> texts;

    std::u16string LoadResString(std::int32_t id) const override {
        const auto at = texts.find(id);
        return at == texts.end() ? std::u16string() : at->second;
    }
};

} // namespace support
