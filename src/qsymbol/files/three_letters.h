#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qsymbol {

/// How long the keys and keywords of the text and the import format are.
inline constexpr std::size_t kKeyLength = 3;

/// The first three letters of a field as one number, for a switch; 0 for anything shorter.
constexpr std::uint32_t Key(std::string_view field) {
    if (field.size() < kKeyLength)
        return 0;
    const auto byte = [&](std::size_t i) { return std::uint32_t{static_cast<unsigned char>(field[i])}; };
    return byte(0) << 16 | byte(1) << 8 | byte(2);
}

} // namespace qsymbol
