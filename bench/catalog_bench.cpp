#include "bench/plan_symbols.h"
#include "bench/processor_time.h"
#include "bench/symbol_folder.h"
#include "qsymbol/catalog/catalog_loader.h"
#include "qsymbol/model/keyed_list.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <malloc.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

/// A folder of binary symbols of so many elements each.
const bench::SymbolFolder& FolderOf(const benchmark::State& state) {
    static std::map<std::int64_t, bench::SymbolFolder> folders;
    const std::int64_t elements = state.range(0);
    if (const auto made = folders.find(elements); made != folders.end())
        return made->second;
    std::vector<qsymbol::Symbol> symbols;
    for (std::uint32_t i = 0; i < bench::kFilesOfAFolder; ++i)
        symbols.push_back(bench::PlanSymbol(static_cast<std::size_t>(elements), i));
    return folders.try_emplace(elements, "catalog_bench_" + std::to_string(elements), std::move(symbols))
        .first->second;
}

/// A collection keyed by name, as the public one is.
class Catalog final : public qsymbol::CatalogSink {
public:
    void Add(qsymbol::Symbol&& symbol) override {
        const std::u16string key = Name(symbol) + u'$';
        symbols_.Append(std::move(symbol), key);
    }
    std::int32_t Count() const { return symbols_.Count(); }
    void LookAtAll() const {
        for (std::int32_t i = 1; i <= Count(); ++i)
            benchmark::DoNotOptimize(std::as_const(symbols_.ItemByPos(i)->elements).data());
    }

private:
    qsymbol::KeyedList<qsymbol::Symbol> symbols_;
};

/// Seconds for loading the folder; the collection goes away outside of them.
double LoadOnce(const bench::SymbolFolder& folder) {
    const std::u16string path = std::filesystem::path(folder.Path()).u16string();
    Catalog catalog;
    const double seconds = bench::Seconds([&] { ReadKatalog(path, catalog, folder.TheWorld().environment); });
    if (catalog.Count() != bench::kFilesOfAFolder)
        std::abort();
    return seconds;
}

/// Both in turn, so that whatever else the machine does meets both; the ratio is that of the fastest rounds.
void CatalogBesidePlainReading(benchmark::State& state) {
    const bench::SymbolFolder& folder = FolderOf(state);
    double ours = 1e9;
    double plain = 1e9;
    for (auto _ : state) {
        ours = std::min(ours, LoadOnce(folder));
        plain = std::min(plain, bench::Seconds([&] { bench::ReadFiles(folder.Path()); }));
    }
    state.counters["ours"] = ours;
    state.counters["peer"] = plain;
}
BENCHMARK(CatalogBesidePlainReading)
    ->ArgName("elements")
    ->Arg(3)
    ->Arg(4)
    ->Arg(8)
    ->Arg(20)
    ->Unit(benchmark::kMillisecond)
    ->MinTime(1);

/// Bytes that a loaded catalogue holds, what the allocator adds to every block included, beside those of its files:
/// as it comes from the files, or after every symbol was looked at.
void MemoryOf(benchmark::State& state, bool looked) {
    const bench::SymbolFolder& folder = FolderOf(state);
    std::uintmax_t bytes = 0;
    for (const auto& file : std::filesystem::directory_iterator(folder.Path()))
        bytes += file.file_size();
    const std::u16string path = std::filesystem::path(folder.Path()).u16string();
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks;
        Catalog catalog;
        ReadKatalog(path, catalog, folder.TheWorld().environment);
        if (looked)
            catalog.LookAtAll();
        state.counters["ours"] = static_cast<double>(mallinfo2().uordblks - before);
        state.counters["peer"] = static_cast<double>(bytes);
    }
}
void CatalogInMemory(benchmark::State& state) {
    MemoryOf(state, false);
}
void DrawnCatalogInMemory(benchmark::State& state) {
    MemoryOf(state, true);
}
constexpr auto kEachSize = [](auto* bench) {
    bench->ArgName("elements")->Arg(3)->Arg(4)->Arg(8)->Arg(20)->Unit(benchmark::kMillisecond)->Iterations(1);
};
BENCHMARK(CatalogInMemory)->Apply(kEachSize);
BENCHMARK(DrawnCatalogInMemory)->Apply(kEachSize);

} // namespace
