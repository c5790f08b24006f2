#include "fuzz/report.h"
#include "support/file_oracles.h"

/// The import reader, and both other formats on what it read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Report(support::BrokenImportPromise({reinterpret_cast<const char*>(data), size}));
    return 0;
}
