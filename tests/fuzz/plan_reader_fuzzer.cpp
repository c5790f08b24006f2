#include "fuzz/report.h"
#include "support/plan_oracle.h"

/// Plan files.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Report(support::BrokenPlanPromise({reinterpret_cast<const char*>(data), size}));
    return 0;
}
