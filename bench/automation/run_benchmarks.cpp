#include "automation/run_benchmarks.h"

#include "automation/narrow_arguments.h"
#include "base/error.h"
#include "com/module.h"

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

/// The number of arguments that are not options.
int TakeOptions(int argc, wchar_t** wideArguments) {
    NarrowArguments arguments(argc, wideArguments);
    benchmark::Initialize(&argc, arguments.Data());
    return argc;
}

int RunInApartment(const std::function<void()>& run) {
    CoInitialize(nullptr);
    // An executable has no server, but the error support needs a module all the same.
    com::TheModule().Start(GetModuleHandleW(nullptr), {});
    try {
        run();
    } catch (const base::Error& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
    return 0;
}

} // namespace

int RunBenchmarks(int argc, wchar_t** wideArguments, const std::function<void()>& run) {
    TakeOptions(argc, wideArguments);
    return RunInApartment(run);
}

int RunBenchmarksOverFolder(const char* program, int argc, wchar_t** wideArguments,
                            const std::function<void(const wchar_t* folder)>& run) {
    if (TakeOptions(argc, wideArguments) < 2) {
        std::printf("usage: %s FOLDER_OF_TEXT_SYMBOLS\n", program);
        return 2;
    }
    return RunInApartment([&] { run(wideArguments[1]); });
}
