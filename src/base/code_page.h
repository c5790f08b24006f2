#pragma once

#include <string>
#include <string_view>

namespace base {

/// Seam: the system's ANSI code page. A character without a place in it becomes "?", never a similar one.
class CodePage {
public:
    virtual ~CodePage() = default;

    virtual std::string Encode(std::u16string_view text) const = 0;
    virtual std::u16string Decode(std::string_view bytes) const = 0;
};

} // namespace base
