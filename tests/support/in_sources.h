#pragma once

#include <filesystem>
#include <string_view>

namespace support {

/// A file or folder of this checkout, from its path there ("samples/wsc").
std::filesystem::path InSources(std::string_view path);

} // namespace support
