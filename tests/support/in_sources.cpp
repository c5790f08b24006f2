#include "support/in_sources.h"

namespace support {

std::filesystem::path InSources(std::string_view path) {
    return std::filesystem::path(QSYMBOL_SOURCE_DIR) / path;
}

} // namespace support
