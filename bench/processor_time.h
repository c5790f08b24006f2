#pragma once

#include <ctime>

namespace bench {

/// Processor seconds, the system's included, that the work takes; what other programs take does not count.
template <class Work>
double Seconds(const Work& work) {
    const auto now = [] {
        std::timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    work();
    return now() - start;
}

} // namespace bench
