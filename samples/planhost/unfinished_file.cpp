#include "unfinished_file.h"

#include <system_error>
#include <utility>

UnfinishedFile::UnfinishedFile(std::filesystem::path file) : file_(std::move(file)), beside_(file_) {
    beside_ += L".neu";
}

UnfinishedFile::~UnfinishedFile() {
    std::error_code ignored;
    std::filesystem::remove(beside_, ignored);
}

bool UnfinishedFile::Finish() {
    std::error_code error;
    std::filesystem::rename(beside_, file_, error);
    return !error;
}
