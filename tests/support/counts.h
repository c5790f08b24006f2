#pragma once

#include <string>
#include <string_view>

namespace support {

/// The bytes of a binary symbol file with every count that asks for much made small: nearly all inputs of a
/// fuzzer would otherwise do nothing but ask for memory.
std::string WithSmallCounts(std::string_view bytes);

} // namespace support
