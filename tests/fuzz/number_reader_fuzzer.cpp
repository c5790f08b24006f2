#include "fuzz/report.h"
#include "support/number_oracle.h"

/// The number reader against a slow one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Report(support::BrokenNumberPromise({reinterpret_cast<const char*>(data), size}));
    return 0;
}
