#include "unfinished_file.h"

#include <system_error>
#include <utility>

UnfinishedFile::UnfinishedFile(std::filesystem::path file) : file_(std::move(file)), beside_(file_) {
    beside_ += L".neu";
}

UnfinishedFile::~UnfinishedFile() {
    // A folder in the way is not ours.
    std::error_code ignored;
    if (std::filesystem::is_regular_file(beside_, ignored))
        std::filesystem::remove(beside_, ignored);
}

bool UnfinishedFile::Finish() {
    std::error_code error;
    std::filesystem::rename(beside_, file_, error);
    return !error;
}
