#pragma once

#include <cstdint>
#include <string>

namespace messages {

/// Seam: message texts by number from the resource library.
class ResourceStrings {
public:
    virtual ~ResourceStrings() = default;

    /// "" when there is no such string, or no resource library at all. Never fails.
    virtual std::u16string LoadResString(std::int32_t id) const = 0;
};

} // namespace messages
