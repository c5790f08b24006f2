#pragma once

#include "messages/resource_strings.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qsymbol {

/// The library's own error numbers.
enum class LibraryError : std::int32_t {
    NotASymbolFile = 3501,
    FaultyHeader = 3502,
    InvalidExtension = 3503,
};

/// The message for an error number: the resource string where there is one, else the German text.
std::u16string GetErrorMessage(std::int32_t number, const messages::ResourceStrings& strings);

/// Throws the library's error with its message; source is class name, full stop and procedure name.
[[noreturn]] void Raise(LibraryError number, std::u16string_view source,
                        const messages::ResourceStrings& strings);

} // namespace qsymbol
