#include "base/error.h"

#include <utility>

namespace base {

namespace {

constexpr std::uint32_t kNumberedStatus = 0x800A0000U;

} // namespace

Error::Error(std::int32_t number, std::u16string source, std::u16string description)
    : status_(kNumberedStatus + static_cast<std::uint32_t>(number)), source_(std::move(source)),
      description_(std::move(description)), what_("error " + std::to_string(number)) {}

Error Error::FromStatus(std::uint32_t status, std::u16string source, std::u16string description) {
    Error error;
    error.status_ = status;
    error.source_ = std::move(source);
    error.description_ = std::move(description);
    error.what_ = "status " + std::to_string(status);
    return error;
}

std::int32_t Error::Number() const {
    if ((status_ & 0xFFFF0000U) == kNumberedStatus)
        return static_cast<std::int32_t>(status_ & 0xFFFFU);
    return static_cast<std::int32_t>(status_);
}

void Raise(RunTimeError number) {
    throw Error(static_cast<std::int32_t>(number), {}, std::u16string(Description(number)));
}

} // namespace base
