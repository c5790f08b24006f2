#pragma once

#include "base/checked.h"
#include "qsymbol/files/binary_format.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace qsymbol {

/// Composes little-endian values in memory, one after the other.
class BinaryOutput {
public:
    void U16(std::uint16_t value) { Little(value, 2); }
    void I32(std::int32_t value) { Little(static_cast<std::uint32_t>(value), 4); }
    void Bool(bool value) { U16(value ? binary_format::kTrue : 0); }
    /// Bit for bit.
    void F64(const double& value) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        Little(bits, 8);
    }
    /// A 16-bit length and the bytes. Error 6 for more than 65535 of them.
    void String(std::string_view bytes) {
        U16(base::Narrow<std::uint16_t>(bytes.size()));
        bytes_ += bytes;
    }

    std::string Release() { return std::move(bytes_); }

private:
    void Little(std::uint64_t value, int size) {
        for (int i = 0; i < size; ++i)
            bytes_ += static_cast<char>(static_cast<unsigned char>(value >> (8 * i)));
    }

    std::string bytes_;
};

} // namespace qsymbol
