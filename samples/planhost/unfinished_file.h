#pragma once

#include <filesystem>

/// A file that is written beside its place and renamed when it is whole; until then the old one stays. What was not
/// renamed is removed.
class UnfinishedFile {
public:
    explicit UnfinishedFile(std::filesystem::path file);
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile();

    /// Where to write meanwhile.
    const std::filesystem::path& Path() const { return beside_; }
    /// Puts the file in its place. False when that is not possible; the old one is there then.
    bool Finish();

private:
    std::filesystem::path file_;
    std::filesystem::path beside_;
};
