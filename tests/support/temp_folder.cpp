#include "support/temp_folder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace support {

TempFolder::TempFolder() {
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        path_ = std::filesystem::temp_directory_path() / ("qsymbol-test-" + std::to_string(random()));
        if (std::filesystem::create_directory(path_))
            return;
    }
    throw std::runtime_error("no temporary folder could be made");
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void PutBytes(const std::filesystem::path& path, std::string_view bytes) {
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream)
        throw std::runtime_error("cannot write " + path.string());
}

} // namespace support
