#include "fuzz/report.h"
#include "support/file_oracles.h"

/// The binary reader and writer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Report(support::BrokenBinaryPromise({reinterpret_cast<const char*>(data), size}));
    return 0;
}
