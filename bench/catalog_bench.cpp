#include "bench/plan_symbols.h"
#include "bench/processor_time.h"
#include "qsymbol/catalog/catalog_loader.h"
#include "qsymbol/files/symbol_file.h"
#include "qsymbol/model/keyed_list.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <malloc.h>
#include <map>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kFiles = 10000;

/// A folder of binary symbols of so many elements each, made under the build tree and gone at the end.
struct Folder {
    bench::World world;
    std::string path;

    explicit Folder(std::int64_t elements)
        : path(QSYMBOL_BENCH_FOLDER "/catalog_bench_" + std::to_string(elements) + ".tmp") {
        std::filesystem::remove_all(path);
        std::filesystem::create_directory(path);
        for (int i = 0; i < kFiles; ++i) {
            qsymbol::Symbol symbol =
                bench::PlanSymbol(static_cast<std::size_t>(elements), static_cast<std::uint32_t>(i));
            symbol.filePath =
                (std::filesystem::path(path) / ("Symbol " + std::to_string(i) + ".syb")).u16string();
            Write2File(symbol, world.environment);
        }
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
};

Folder& FolderOf(const benchmark::State& state) {
    static std::map<std::int64_t, Folder> folders;
    return folders.try_emplace(state.range(0), state.range(0)).first->second;
}

/// A collection keyed by name, as the public one is.
class Catalog final : public qsymbol::CatalogSink {
public:
    void Add(qsymbol::Symbol&& symbol) override {
        const std::u16string key = Name(symbol) + u'$';
        symbols_.Append(std::move(symbol), key);
    }
    std::int32_t Count() const { return symbols_.Count(); }

private:
    qsymbol::KeyedList<qsymbol::Symbol> symbols_;
};

/// Seconds for loading the folder; the collection goes away outside of them.
double LoadOnce(const Folder& folder) {
    const std::u16string path = std::filesystem::path(folder.path).u16string();
    Catalog catalog;
    const double seconds = bench::Seconds([&] { ReadKatalog(path, catalog, folder.world.environment); });
    if (catalog.Count() != kFiles)
        std::abort();
    return seconds;
}

/// Lists the folder, then opens, sizes, reads and closes every file, with one buffer for all.
void ReadFilesOnce(const Folder& folder) {
    DIR* const listing = opendir(folder.path.c_str());
    std::vector<char> buffer(1 << 16);
    std::string path = folder.path + "/";
    const std::size_t stem = path.size();
    int files = 0;
    while (const dirent* entry = readdir(listing)) {
        if (entry->d_type != DT_REG)
            continue;
        path.replace(stem, std::string::npos, entry->d_name);
        const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat info {};
        if (file < 0 || fstat(file, &info) != 0 || info.st_size > static_cast<off_t>(buffer.size()) ||
            read(file, buffer.data(), static_cast<std::size_t>(info.st_size)) != info.st_size)
            std::abort();
        close(file);
        ++files;
    }
    closedir(listing);
    if (files != kFiles)
        std::abort();
}

/// Both in turn, so that whatever else the machine does meets both; the ratio is that of the fastest rounds.
void CatalogBesidePlainReading(benchmark::State& state) {
    const Folder& folder = FolderOf(state);
    double ours = 1e9;
    double plain = 1e9;
    for (auto _ : state) {
        ours = std::min(ours, LoadOnce(folder));
        plain = std::min(plain, bench::Seconds([&] { ReadFilesOnce(folder); }));
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

/// Bytes that a loaded catalogue holds, what the allocator adds to every block included, beside those of its files.
void CatalogInMemory(benchmark::State& state) {
    const Folder& folder = FolderOf(state);
    std::uintmax_t bytes = 0;
    for (const auto& file : std::filesystem::directory_iterator(folder.path))
        bytes += file.file_size();
    const std::u16string path = std::filesystem::path(folder.path).u16string();
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks;
        Catalog catalog;
        ReadKatalog(path, catalog, folder.world.environment);
        state.counters["ours"] = static_cast<double>(mallinfo2().uordblks - before);
        state.counters["peer"] = static_cast<double>(bytes);
    }
}
BENCHMARK(CatalogInMemory)
    ->ArgName("elements")
    ->Arg(3)
    ->Arg(4)
    ->Arg(8)
    ->Arg(20)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

} // namespace
