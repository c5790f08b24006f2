#include "bench/symbol_folder.h"

#include "qsymbol/files/symbol_file.h"

#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace bench {

BuildFolder::BuildFolder(std::string_view name) : path_(QSYMBOL_BENCH_FOLDER "/") {
    path_.append(name).append(".tmp");
    std::filesystem::remove_all(path_);
    std::filesystem::create_directory(path_);
}

BuildFolder::~BuildFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

SymbolFolder::SymbolFolder(std::string_view name, std::vector<qsymbol::Symbol> symbols,
                           std::string_view extension)
    : BuildFolder(name) {
    for (std::size_t i = 0; i < kFilesOfAFolder; ++i) {
        qsymbol::Symbol& symbol = symbols[i % symbols.size()];
        std::string file = Path() + "/Symbol " + std::to_string(i) + ".";
        file += extension;
        symbol.filePath = std::filesystem::path(file).u16string();
        // Not by Write2File, which waits for the disk at every file.
        std::ofstream(file, std::ios::binary) << EncodeSymbol(symbol, symbol.filePath, world_.environment);
    }
}

void ReadFiles(const std::string& folder) {
    DIR* const listing = opendir(folder.c_str());
    std::vector<char> buffer(1 << 16);
    std::string path = folder + "/";
    const std::size_t stem = path.size();
    int files = 0;
    while (const dirent* entry = readdir(listing)) {
        if (entry->d_type != DT_REG)
            continue;
        path.replace(stem, std::string::npos, entry->d_name);
        const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat info {};
        if (file < 0 || fstat(file, &info) != 0 || info.st_size > static_cast<off_t>(buffer.size()) ||
            read(file, buffer.data(), static_cast<std::size_t>(info.st_size)) != info.st_size)
            std::abort();
        close(file);
        ++files;
    }
    closedir(listing);
    if (files != kFilesOfAFolder)
        std::abort();
}

} // namespace bench
