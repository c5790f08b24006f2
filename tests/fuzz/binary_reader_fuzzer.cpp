#include "fuzz/report.h"
#include "support/counts.h"
#include "support/file_oracles.h"

/// The binary reader and writer. Of sixteen inputs fifteen have small counts, so that time goes into reading
/// and not into memory.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    fuzz::Report(size % 16 == 0 ? support::BrokenBinaryPromise(bytes)
                                : support::BrokenBinaryPromise(support::WithSmallCounts(bytes)));
    return 0;
}
