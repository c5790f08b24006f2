#include "unfinished_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

std::string Bytes(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

TEST(UnfinishedFile, TheOldFileStaysUntilTheNewOneIsFinished) {
    const fs::path folder = fs::temp_directory_path() / L"planhost_unfinished";
    fs::remove_all(folder);
    fs::create_directories(folder);
    const fs::path plan = folder / L"Wohnung.dxf";
    std::ofstream(plan) << "old";
    {
        const UnfinishedFile given(plan);
        std::ofstream(given.Path()) << "half";
    }
    EXPECT_EQ(Bytes(plan), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
    UnfinishedFile finished(plan);
    std::ofstream(finished.Path()) << "new";
    EXPECT_TRUE(finished.Finish());
    EXPECT_EQ(Bytes(plan), "new");
    UnfinishedFile impossible(folder);
    EXPECT_FALSE(impossible.Finish());
    fs::remove_all(folder);
}
