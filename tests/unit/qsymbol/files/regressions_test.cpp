#include "support/file_oracles.h"
#include "support/number_oracle.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using Oracle = std::string (*)(std::string_view);

/// Holds every file of a folder and below against the oracle.
void Replay(const std::string& folder, Oracle oracle, std::size_t least) {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(QSYMBOL_SOURCE_DIR "/" + folder)) {
        if (!entry.is_regular_file())
            continue;
        EXPECT_EQ(oracle(support::BytesOf(entry.path())), "") << entry.path();
        ++count;
    }
    EXPECT_GE(count, least) << folder;
}

/// What the fuzzers, or a close look, once found must stay mended. There is nothing of the other formats
/// so far.
TEST(Regressions, Findings) {
    Replay("tests/data/regressions/text", support::BrokenTextPromise, 1);
    Replay("tests/data/regressions/number", support::BrokenNumberPromise, 1);
}

TEST(Regressions, SeedsOfTheFuzzers) {
    Replay("tests/fuzz/seeds/text_reader", support::BrokenTextPromise, 10);
    Replay("tests/fuzz/seeds/binary_reader", support::BrokenBinaryPromise, 10);
    Replay("tests/fuzz/seeds/import_reader", support::BrokenImportPromise, 10);
    Replay("tests/fuzz/seeds/number_reader", support::BrokenNumberPromise, 10);
    Replay("tests/fuzz/seeds/symbol_writer", support::BrokenSymbolPromise, 10);
}

} // namespace
