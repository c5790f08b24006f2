#pragma once

#include "messages/resource_strings.h"

namespace cli {

/// No resource library: the texts are the built-in ones.
class NoStrings final : public messages::ResourceStrings {
public:
    std::u16string LoadResString(std::int32_t) const override { return {}; }
};

} // namespace cli
