#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace fuzz {

/// Ends the run with the promise that was not kept; the fuzzer then saves its input.
inline void Report(const std::string& broken) {
    if (broken.empty())
        return;
    std::fprintf(stderr, "broken promise: %s\n", broken.c_str());
    std::abort();
}

} // namespace fuzz
