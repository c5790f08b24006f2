#include "fuzz/report.h"
#include "support/file_oracles.h"

/// Both writers, on any symbol.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Report(support::BrokenSymbolPromise({reinterpret_cast<const char*>(data), size}));
    return 0;
}
