#pragma once

#include "base/error.h"

#include <cstdint>

namespace support {

/// The number of the error that the call raises, 0 when it raises none.
std::int32_t ErrorNumberOf(const auto& call) {
    try {
        call();
    } catch (const base::Error& error) {
        return error.Number();
    }
    return 0;
}

} // namespace support
