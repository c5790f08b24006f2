#pragma once

#include <string>
#include <string_view>

namespace support {

/// Reads the text as a number under several settings, with the reader and with a slow second implementation
/// that shares nothing with it. Gives what they do not agree on, "" when they do.
std::string BrokenNumberPromise(std::string_view text);

} // namespace support
