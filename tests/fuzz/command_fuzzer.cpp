#include "fuzz/report.h"
#include "support/command_oracle.h"

/// Any file through any command of the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Report(support::BrokenCommandPromise({reinterpret_cast<const char*>(data), size}));
    return 0;
}
