#pragma once

#include <string>
#include <string_view>

namespace base {

/// UTF-16 as UTF-8; a lone surrogate becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

/// UTF-8 as UTF-16; every byte that is not part of a valid sequence becomes U+FFFD.
std::u16string FromUtf8(std::string_view bytes);

} // namespace base
