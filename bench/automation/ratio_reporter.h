#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// What the library costs beside the bare GDI: (library - host) / bare, by the names of three benchmarks.
struct GdiRatio {
    std::string what;
    std::string library;
    std::string host;
    std::string bare;
};

/// Prints the ratios that the yardstick is about under the usual table.
class RatioReporter final : public benchmark::ConsoleReporter {
public:
    explicit RatioReporter(std::vector<GdiRatio> ratios) : ratios_(std::move(ratios)) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.aggregate_name.empty() || run.aggregate_name == "median")
                times_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
    void Finalize() override {
        for (const GdiRatio& ratio : ratios_) {
            const double bare = times_[ratio.bare];
            if (bare > 0)
                std::printf("%s: library without host calls : bare GDI = %.3f (yardstick 1.2)\n",
                            ratio.what.c_str(), (times_[ratio.library] - times_[ratio.host]) / bare);
        }
    }

private:
    std::vector<GdiRatio> ratios_;
    std::map<std::string, double> times_;
};
