#pragma once

#include <functional>

/// The main function of a benchmark over a folder of text symbols, its first argument: takes the options of Google
/// Benchmark and calls `run` with the folder, in an apartment of its own. Gives the program's exit status.
int RunBenchmarksOverFolder(const char* program, int argc, wchar_t** wideArguments,
                            const std::function<void(const wchar_t* folder)>& run);
