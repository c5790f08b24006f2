#pragma once

#include <functional>

/// The main function of a benchmark: takes the options of Google Benchmark and calls `run` in an apartment of its own, which
/// ends with the process. Gives the program's exit status.
int RunBenchmarks(int argc, wchar_t** wideArguments, const std::function<void()>& run);

/// The same over a folder of text symbols, which is the first argument.
int RunBenchmarksOverFolder(const char* program, int argc, wchar_t** wideArguments,
                            const std::function<void(const wchar_t* folder)>& run);
