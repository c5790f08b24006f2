#pragma once

#include "base/error.h"

#include <cstdint>
#include <cstring>
#include <string_view>

namespace qsymbol {

/// Reads little-endian values from memory, one after the other. Every read past the end is error 62.
class BinaryInput {
public:
    explicit BinaryInput(std::string_view bytes) : rest_(bytes) {}

    /// The next count bytes.
    std::string_view Take(std::size_t count) {
        if (count > rest_.size())
            base::Raise(base::RunTimeError::InputPastEnd);
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }

    std::size_t Left() const { return rest_.size(); }

    std::uint16_t U16() { return LittleU16(Take(2).data()); }
    std::int32_t I32() { return LittleI32(Take(4).data()); }
    bool Bool() { return U16() != 0; }
    /// A 16-bit length and so many bytes.
    std::string_view String() { return Take(U16()); }

    /// Fills target bit for bit; returning the value could change a signalling NaN on its way.
    void F64(double& target) {
        static_assert(sizeof target == 8);
        const auto bits = Little<std::uint64_t>(Take(8).data());
        std::memcpy(&target, &bits, sizeof target);
    }

    static std::uint16_t LittleU16(const char* at) { return Little<std::uint16_t>(at); }
    static std::int32_t LittleI32(const char* at) {
        return static_cast<std::int32_t>(Little<std::uint32_t>(at));
    }

private:
    /// Byte by byte, so the processor's own order does not matter; compilers make one load of it.
    template <class T>
    static T Little(const char* at) {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i)
            value |= std::uint64_t{static_cast<unsigned char>(at[i])} << (8 * i);
        return static_cast<T>(value);
    }

    std::string_view rest_;
};

} // namespace qsymbol
