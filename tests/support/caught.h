#pragma once

#include "base/error.h"

#include <cstdint>
#include <ostream>
#include <string>

namespace support {

/// What a call threw: number 0 and no texts when it did not.
struct Caught {
    std::int32_t number = 0;
    std::u16string source;
    std::u16string description;

    friend bool operator==(const Caught&, const Caught&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Caught& caught) {
        return out << "error " << caught.number;
    }
};

/// The error that the call ends with.
template <class Call>
Caught CaughtFrom(Call&& call) {
    try {
        call();
    } catch (const base::Error& error) {
        return {error.Number(), error.Source(), error.Description()};
    }
    return {};
}

/// A run-time error as the library raises it: its German text and no source of its own.
inline Caught Expected(base::RunTimeError number) {
    return {static_cast<std::int32_t>(number), {}, std::u16string(base::Description(number))};
}

} // namespace support
