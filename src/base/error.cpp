#include "base/error.h"

#include <utility>

namespace base {

Error::Error(std::int32_t number, std::u16string source, std::u16string description)
    : status_(NumberedStatus(number)), source_(std::move(source)), description_(std::move(description)),
      what_("error " + std::to_string(number)) {}

Error Error::FromStatus(std::uint32_t status, std::u16string source, std::u16string description) {
    Error error;
    error.status_ = status;
    error.source_ = std::move(source);
    error.description_ = std::move(description);
    error.what_ = "status " + std::to_string(status);
    return error;
}

std::int32_t Error::Number() const {
    if ((status_ & 0xFFFF0000U) == NumberedStatus(0))
        return static_cast<std::int32_t>(status_ & 0xFFFFU);
    return static_cast<std::int32_t>(status_);
}

void Raise(RunTimeError number) {
    throw Error(static_cast<std::int32_t>(number), {}, std::u16string(Description(number)));
}

} // namespace base
