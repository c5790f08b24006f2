// The shipped libraries with files: a folder of 10,000 binary symbols beside the bare reading of the same files, and a
// plan of 10,000 placed symbols as DXF beside the bare writing of the same bytes, both in the same process.

#include "automation/new_object.h"
#include "automation/run_benchmarks.h"
#include "automation/sample_symbols.h"
#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/error_info.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kFiles = 10000;
constexpr int kPlacements = 10000;
constexpr LONG kExtent = 1500000; ///< of the plan, in logical units

std::vector<com::ComPtr<_CSymbol>> g_symbols;
std::wstring g_folder; ///< of the program, without a backslash at its end

double Now() {
    LARGE_INTEGER count{};
    LARGE_INTEGER frequency{};
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

template <class Work>
double Seconds(const Work& work) {
    const double start = Now();
    work();
    return Now() - start;
}

com::Bstr Text(const std::wstring& text) {
    return com::Bstr({reinterpret_cast<const char16_t*>(text.data()), text.size()});
}

/// Every file of a folder by its full path.
std::vector<std::wstring> FilesOf(const std::wstring& folder) {
    std::vector<std::wstring> files;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"\\*.syb").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return files;
    do
        files.push_back(folder + L"\\" + found.cFileName);
    while (FindNextFileW(search, &found) != FALSE);
    FindClose(search);
    return files;
}

/// The sample symbols over and over, as binary files; gone at the end. Each is written once and copied then: the library
/// waits for the disk at every file.
class Folder {
public:
    Folder() : path_(g_folder + L"\\catalogue_bench.tmp") {
        Empty();
        CreateDirectoryW(path_.c_str(), nullptr);
        const int written = std::min(kFiles, static_cast<int>(g_symbols.size()));
        for (int i = 0; i < written; ++i) {
            _CSymbol& symbol = *g_symbols[static_cast<std::size_t>(i)].Get();
            com::Check(symbol.put_FilePath(Text(File(i)).Get()));
            com::Check(symbol.Write2File());
        }
        for (int i = written; i < kFiles; ++i)
            if (CopyFileW(File(i % written).c_str(), File(i).c_str(), TRUE) == FALSE)
                std::abort();
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { Empty(); }

    const std::wstring& Path() const { return path_; }

private:
    std::wstring File(int number) const { return path_ + L"\\Symbol " + std::to_wstring(number) + L".syb"; }
    void Empty() const {
        for (const std::wstring& file : FilesOf(path_))
            DeleteFileW(file.c_str());
        RemoveDirectoryW(path_.c_str());
    }

    std::wstring path_;
};

/// Seconds for loading the folder; the catalogue goes away outside of them.
double LoadOnce(const Folder& folder) {
    const auto catalogue = New<CSymbolColl, _CSymbolColl>();
    const com::Bstr path = Text(folder.Path());
    const double seconds = Seconds([&] { com::Check(catalogue->ReadKatalog(path.Get())); });
    LONG count = 0;
    com::Check(catalogue->get_Count(&count));
    if (count != kFiles)
        std::abort();
    return seconds;
}

/// Lists the folder, then opens, reads and closes every file, with one buffer for all.
void ReadFilesOnce(const Folder& folder) {
    std::vector<char> buffer(1 << 20);
    for (const std::wstring& name : FilesOf(folder.Path())) {
        const HANDLE file = CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        DWORD read = 0;
        if (file == INVALID_HANDLE_VALUE ||
            ReadFile(file, buffer.data(), static_cast<DWORD>(buffer.size()), &read, nullptr) == FALSE)
            std::abort();
        CloseHandle(file);
    }
}

/// Both in turn, so that whatever else the machine does meets both; the ratio is that of the fastest rounds.
void ReadKatalogBesideBareReading(benchmark::State& state) {
    static const Folder folder; // one for all repetitions
    double ours = 1e9;
    double bare = 1e9;
    for (auto _ : state) {
        ours = std::min(ours, LoadOnce(folder));
        bare = std::min(bare, Seconds([&] { ReadFilesOnce(folder); }));
    }
    state.counters["ours"] = ours;
    state.counters["peer"] = bare;
}
BENCHMARK(ReadKatalogBesideBareReading)->Unit(benchmark::kMillisecond)->Iterations(5);

struct Placed {
    _CSymbol* symbol = nullptr;
    LONG x = 0;
    LONG y = 0;
    double angle = 0;
};

std::vector<Placed> Plan() {
    std::mt19937 random(5);
    std::uniform_int_distribution<LONG> coordinate(0, kExtent);
    std::uniform_real_distribution<double> angle(0, 6.283);
    std::vector<Placed> plan;
    for (int i = 0; i < kPlacements; ++i) {
        _CSymbol* const symbol = g_symbols[static_cast<std::size_t>(i) % g_symbols.size()].Get();
        com::Check(symbol->put_Etagenbreite(kExtent));
        plan.push_back({symbol, coordinate(random), coordinate(random), angle(random)});
    }
    return plan;
}

long long SizeOf(const std::wstring& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) == FALSE)
        return 0;
    return static_cast<long long>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
}

std::string WholeFile(const std::wstring& path) {
    std::string bytes(static_cast<std::size_t>(SizeOf(path)), '\0');
    std::FILE* const file = _wfopen(path.c_str(), L"rb");
    if (file == nullptr || std::fread(bytes.data(), 1, bytes.size(), file) != bytes.size())
        std::abort();
    std::fclose(file);
    return bytes;
}

/// The whole plan, a call for each placed symbol, beside one fopen, fwrite and fclose of the same bytes for each.
void DxfExportSymBesideBareWriting(benchmark::State& state) {
    const std::vector<Placed> plan = Plan();
    const std::wstring path = g_folder + L"\\catalogue_bench.tmp.dxf";
    const com::Bstr name = Text(path);
    // Once, to know where the bytes of each symbol end.
    std::vector<long long> ends;
    DeleteFileW(path.c_str());
    for (const Placed& placed : plan) {
        com::Check(placed.symbol->DxfExportSym(placed.x, placed.y, placed.angle, name.Get()));
        ends.push_back(SizeOf(path));
    }
    const std::string bytes = WholeFile(path);

    double ours = 1e9;
    double bare = 1e9;
    for (auto _ : state) {
        DeleteFileW(path.c_str());
        ours = std::min(
            ours, Seconds([&] {
                for (const Placed& placed : plan)
                    com::Check(placed.symbol->DxfExportSym(placed.x, placed.y, placed.angle, name.Get()));
            }));
        if (WholeFile(path) != bytes)
            std::abort();
        DeleteFileW(path.c_str());
        bare = std::min(bare, Seconds([&] {
                            long long start = 0;
                            for (const long long end : ends) {
                                std::FILE* const file = _wfopen(path.c_str(), L"ab");
                                std::fwrite(bytes.data() + start, 1, static_cast<std::size_t>(end - start),
                                            file);
                                std::fclose(file);
                                start = end;
                            }
                        }));
    }
    DeleteFileW(path.c_str());
    state.counters["ours"] = ours;
    state.counters["peer"] = bare;
    state.counters["MB"] = static_cast<double>(bytes.size()) / 1e6;
}
BENCHMARK(DxfExportSymBesideBareWriting)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

int wmain(int argc, wchar_t** wideArguments) {
    return RunBenchmarksOverFolder("catalogue_bench", argc, wideArguments, [](const wchar_t* folder) {
        wchar_t program[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, program, MAX_PATH);
        g_folder = program;
        g_folder.erase(g_folder.rfind(L'\\'));
        g_symbols = LoadSymbols(folder);
        benchmark::RunSpecifiedBenchmarks();
        g_symbols.clear();
    });
}
