#include "base/file_content.h"
#include "base/whole_file.h"

#include "support/error_number_of.h"
#include "support/memory_file_system.h"

#include <gtest/gtest.h>

#include <string>

TEST(WholeFile, OneThatMemoryCannotHoldIsError7) {
    support::MemoryFileSystem files;
    files.folders = {u"m"};
    files.files[u"m/gross"] = std::string(1U << 20, 'x'); // a small one is read without asking for its size
    files.announcedSize = UINT64_MAX;
    EXPECT_EQ(support::ErrorNumberOf([&] { base::FileContent(files, u"m/gross"); }), 7);
    EXPECT_EQ(files.openNow, 0);
}

/// The first error is told, also when tidying up after it fails in its turn; the old file stays.
TEST(WholeFile, AFailureWhileTidyingUpHidesNothing) {
    support::MemoryFileSystem files;
    files.folders = {u"m"};
    files.files[u"m/plan"] = "alt";
    files.writeError = base::RunTimeError::DiskFull;
    files.failingStep = 2; // after Open and Write: Remove
    EXPECT_EQ(support::ErrorNumberOf([&] { base::WriteBeside(files, u"m/plan", "neu"); }), 61);
    EXPECT_EQ(files.steps, 3);
    EXPECT_EQ(files.files[u"m/plan"], "alt");
    EXPECT_EQ(files.openNow, 0);
}
