#pragma once

#include <cstdint>
#include <string_view>

namespace base {

/// The run-time errors of the automation run-time that this code raises itself, by their published numbers.
enum class RunTimeError : std::int32_t {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceIo = 57,
    FileExists = 58,
    DiskFull = 61,
    InputPastEnd = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    NoSuchMember = 438,
    DuplicateKey = 457,
};

/// The German text that hosts know for this run-time error.
std::u16string_view Description(RunTimeError number);

} // namespace base
