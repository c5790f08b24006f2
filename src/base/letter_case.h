#pragma once

#include <string>
#include <string_view>

namespace base {

/// Seam: the text with every letter in its simple upper-case form, independent of the user's language.
std::u16string UpperCase(std::u16string_view text);

/// Seam: the text with every letter in its simple lower-case form, independent of the user's language.
std::u16string LowerCase(std::u16string_view text);

} // namespace base
