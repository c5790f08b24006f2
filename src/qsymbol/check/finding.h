#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qsymbol {

enum class Severity { Warning, Error };

/// Something that is wrong with a symbol file.
struct Finding {
    std::string_view code; ///< a word for programs, e.g. "zero-size"
    Severity severity = Severity::Warning;
    std::optional<std::size_t> element; ///< the element that it is about, from 1
    std::optional<std::int32_t> number; ///< the error number that reading gave
    std::u16string message;
};

} // namespace qsymbol
