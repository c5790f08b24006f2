#pragma once

#include "base/run_time_error.h"

#include <cstdint>
#include <exception>
#include <string>

namespace base {

/// The automation status code of an error by number.
constexpr std::uint32_t NumberedStatus(std::int32_t number) {
    return 0x800A0000U + static_cast<std::uint32_t>(number);
}

/// The one exception of the domain code: what a host sees as Err.Number, Err.Source and Err.Description.
class Error : public std::exception {
public:
    /// An error by number n, 1 to 65535. An empty source stands for the name of the library that reports it.
    Error(std::int32_t number, std::u16string source, std::u16string description);

    /// An error that came from outside with a status code of its own; it goes on to the host unchanged.
    static Error FromStatus(std::uint32_t status, std::u16string source, std::u16string description);

    /// The automation status code: NumberedStatus(n) for an error by number.
    std::uint32_t Status() const { return status_; }
    /// n for an error by number, otherwise the whole status code.
    std::int32_t Number() const;
    const std::u16string& Source() const { return source_; }
    const std::u16string& Description() const { return description_; }

    const char* what() const noexcept override { return what_.c_str(); }

private:
    Error() = default;

    std::uint32_t status_ = 0;
    std::u16string source_;
    std::u16string description_;
    std::string what_;
};

/// Throws the run-time error with its German text and an empty source.
[[noreturn]] void Raise(RunTimeError number);

} // namespace base
