// The command line over 10,000 symbols, the sample catalogue over and over, beside plain reading and writing of the files.

#include "bench/processor_time.h"
#include "bench/symbol_folder.h"
#include "cli/commands/program.h"
#include "qsymbol/files/symbol_file.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<qsymbol::Symbol> SampleSymbols() {
    bench::World world;
    std::vector<qsymbol::Symbol> symbols;
    for (const auto& file : fs::recursive_directory_iterator(QSYMBOL_BENCH_CATALOGUE)) {
        if (file.path().extension() != ".syt")
            continue;
        symbols.emplace_back().filePath = file.path().u16string();
        ReadFromFile(symbols.back(), world.environment);
    }
    return symbols;
}

const bench::SymbolFolder& TheFolder() {
    static const bench::SymbolFolder folder("cli_bench", SampleSymbols());
    return folder;
}

/// Runs the program; what it prints goes nowhere.
void RunCommand(const std::vector<std::string>& arguments) {
    static std::FILE* const nowhere = std::fopen("/dev/null", "w");
    platform::PosixFileSystem files;
    const platform::Windows1252 codePage;
    const cli::System system{files, codePage, platform::GermanSettings(), nowhere, stderr, false, "0"};
    // Found or not: a catalogue that holds each name once has no error, but may have a warning.
    if (cli::RunProgram(arguments, system) > 1)
        std::abort();
}

/// Both in turn, so that whatever else the machine does meets both; processor time of the fastest rounds.
void BesidePlainReading(benchmark::State& state, const std::vector<std::string>& command) {
    std::vector<std::string> arguments = command;
    arguments.push_back(TheFolder().Path());
    double ours = 1e9;
    double plain = 1e9;
    for (auto _ : state) {
        ours = std::min(ours, bench::Seconds([&] { RunCommand(arguments); }));
        plain = std::min(plain, bench::Seconds([] { bench::ReadFiles(TheFolder().Path()); }));
    }
    state.counters["ours"] = ours;
    state.counters["peer"] = plain;
}

void InfoBesidePlainReading(benchmark::State& state) {
    BesidePlainReading(state, {"info"});
}
void JsonInfoBesidePlainReading(benchmark::State& state) {
    BesidePlainReading(state, {"info", "--json"});
}
void CheckBesidePlainReading(benchmark::State& state) {
    BesidePlainReading(state, {"check"});
}
BENCHMARK(InfoBesidePlainReading)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(JsonInfoBesidePlainReading)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(CheckBesidePlainReading)->Unit(benchmark::kMillisecond)->Iterations(5);

/// The bytes of each file of a folder, by name.
std::vector<std::pair<std::string, std::string>> Contents(const std::string& folder) {
    std::vector<std::pair<std::string, std::string>> contents;
    for (const auto& file : fs::directory_iterator(folder)) {
        std::string bytes(file.file_size(), '\0');
        const int handle = open(file.path().c_str(), O_RDONLY | O_CLOEXEC);
        if (read(handle, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
            std::abort();
        close(handle);
        contents.emplace_back(file.path().filename().string(), std::move(bytes));
    }
    return contents;
}

/// Reads the folder's files and writes those bytes to new ones.
void CopyPlainly(const std::vector<std::pair<std::string, std::string>>& results, const std::string& target) {
    bench::ReadFiles(TheFolder().Path());
    for (const auto& [name, bytes] : results) {
        const int file = open((target + '/' + name).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file < 0 || write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
            std::abort();
        close(file);
    }
}

/// The same bytes written; the target folders go away outside of the times.
void ConvertBesidePlainCopying(benchmark::State& state, const char* extension) {
    double ours = 1e9;
    double plain = 1e9;
    for (auto _ : state) {
        const bench::BuildFolder converted("cli_bench_converted");
        const bench::BuildFolder copied("cli_bench_copied");
        ours = std::min(ours, bench::Seconds([&] {
                            RunCommand({"convert", "--to", extension, TheFolder().Path(), converted.Path()});
                        }));
        const auto results = Contents(converted.Path());
        plain = std::min(plain, bench::Seconds([&] { CopyPlainly(results, copied.Path()); }));
    }
    state.counters["ours"] = ours;
    state.counters["peer"] = plain;
}
BENCHMARK_CAPTURE(ConvertBesidePlainCopying, binary, "syb")->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(ConvertBesidePlainCopying, text, "syt")->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
