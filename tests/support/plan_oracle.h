#pragma once

#include <string>
#include <string_view>

namespace support {

/// What must hold for every plan file, however broken; the promise that was not kept, "" when all were.
///
/// Reading raises errors 5 and 321 alone, which name a line or the missing record, and leaves the plan as it was; it
/// stays within the memory bound. What reads is written, and that reads as the same plan; its picture is
/// well-formed, unless a coordinate leaves the 32-bit range.
std::string BrokenPlanPromise(std::string_view bytes);

} // namespace support
