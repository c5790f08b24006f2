#pragma once

#include "golden/com_subject.h"

#include <optional>

namespace golden {

/// Where a symbol is, what hits it and what is caught of it. Nothing for a command that is none of these.
std::optional<support::Failure> ActOnPlaces(const Step& step, ComSubject& subject, Lines& outputs);

/// Sets the factors of the last drawing without drawing anything.
void SetFactors(double printer, double screen);

} // namespace golden
