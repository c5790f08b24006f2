#include "automation/run_benchmarks.h"

#include "automation/narrow_arguments.h"
#include "base/error.h"
#include "com/module.h"

#include <benchmark/benchmark.h>

#include <cstdio>

int RunBenchmarksOverFolder(const char* program, int argc, wchar_t** wideArguments,
                            const std::function<void(const wchar_t* folder)>& run) {
    NarrowArguments arguments(argc, wideArguments);
    benchmark::Initialize(&argc, arguments.Data());
    if (argc < 2) {
        std::printf("usage: %s FOLDER_OF_TEXT_SYMBOLS\n", program);
        return 2;
    }
    CoInitialize(nullptr);
    // An executable has no server, but the error support needs a module all the same.
    com::TheModule().Start(GetModuleHandleW(nullptr), {});
    try {
        run(wideArguments[1]);
    } catch (const base::Error& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
    CoUninitialize();
    return 0;
}
