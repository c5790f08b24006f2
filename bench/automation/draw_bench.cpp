#include "automation/counting_box.h"
#include "automation/gdi_recording.h"
#include "automation/narrow_arguments.h"
#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/error_info.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

// The type library of an executable has no server: the error support needs a module all the same.
#include "com/module.h"

namespace {

constexpr int kSide = 1000;
constexpr GdiRecording::Placement kPlacement{.x = 300000, .y = 300000, .angle = 0.3, .scale = 600};

/// A memory DC with a bitmap of its own.
class MemoryContext {
public:
    MemoryContext() : context_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), kSide, -kSide, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        bitmap_ = CreateDIBSection(context_, &info, DIB_RGB_COLORS, nullptr, nullptr, 0);
        previous_ = SelectObject(context_, bitmap_);
    }
    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;
    ~MemoryContext() {
        SelectObject(context_, previous_);
        DeleteObject(bitmap_);
        DeleteDC(context_);
    }
    HDC Get() const { return context_; }

private:
    HDC context_;
    HBITMAP bitmap_;
    HGDIOBJ previous_;
};

/// All sample symbols, read through the library.
std::vector<com::ComPtr<_CSymbol>> g_symbols;

void LoadSymbols(const std::wstring& folder) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"\\*.syt").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        com::ComPtr<_CSymbol> symbol;
        com::Check(CoCreateInstance(__uuidof(CSymbol), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_CSymbol),
                                    symbol.PutVoid()));
        const std::wstring path = folder + L"\\" + found.cFileName;
        com::Check(symbol->put_FilePath(
            com::Bstr({reinterpret_cast<const char16_t*>(path.data()), path.size()}).Get()));
        com::Check(symbol->ReadFromFile());
        g_symbols.push_back(symbol);
    } while (FindNextFileW(search, &found) != FALSE);
    FindClose(search);
}

void DrawThroughLibrary(benchmark::State& state) {
    const MemoryContext context;
    CountingBox box(context.Get());
    com::ComPtr<_CTrans> trans;
    com::Check(CoCreateInstance(__uuidof(CTrans), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_CTrans),
                                trans.PutVoid()));
    com::Check(trans->SetScale(kPlacement.scale));
    for (auto _ : state)
        for (const com::ComPtr<_CSymbol>& symbol : g_symbols)
            com::Check(
                symbol->Draw(kPlacement.x, kPlacement.y, kPlacement.angle, &box, trans.Get(), 1, 1, nullptr));
    const auto draws = static_cast<double>(state.iterations()) * static_cast<double>(g_symbols.size());
    state.SetItemsProcessed(static_cast<std::int64_t>(draws));
    state.counters["host_calls"] = static_cast<double>(box.Calls()) / draws;
}
BENCHMARK(DrawThroughLibrary)->Unit(benchmark::kMillisecond);

void BareGdiCalls(benchmark::State& state) {
    const MemoryContext context;
    std::vector<GdiRecording> recordings;
    for (const com::ComPtr<_CSymbol>& symbol : g_symbols)
        recordings.emplace_back(*symbol.Get(), kPlacement);
    for (auto _ : state)
        for (const GdiRecording& recording : recordings)
            recording.Play(context.Get());
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(g_symbols.size()));
}
BENCHMARK(BareGdiCalls)->Unit(benchmark::kMillisecond);

/// The late-bound calls alone, as many as the drawing above makes: the host's share.
void HostPropertyCalls(benchmark::State& state) {
    const MemoryContext context;
    CountingBox counter(context.Get());
    com::ComPtr<_CTrans> trans;
    com::Check(CoCreateInstance(__uuidof(CTrans), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_CTrans),
                                trans.PutVoid()));
    com::Check(trans->SetScale(kPlacement.scale));
    for (const com::ComPtr<_CSymbol>& symbol : g_symbols)
        com::Check(
            symbol->Draw(kPlacement.x, kPlacement.y, kPlacement.angle, &counter, trans.Get(), 1, 1, nullptr));
    VARIANTARG value;
    V_VT(&value) = VT_I4;
    V_I4(&value) = 1;
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS arguments{&value, &put, 1, 1};
    CountingBox box(context.Get());
    IDispatch* volatile host = &box;
    for (auto _ : state)
        for (std::int64_t i = 0; i < counter.Calls(); ++i)
            host->Invoke(4, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &arguments, nullptr, nullptr,
                         nullptr);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(g_symbols.size()));
}
BENCHMARK(HostPropertyCalls)->Unit(benchmark::kMillisecond);

/// Prints the ratio that the yardstick is about under the usual table.
class RatioReporter final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.aggregate_name.empty() || run.aggregate_name == "median")
                times_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
    void Finalize() override {
        const double bare = times_["BareGdiCalls"];
        if (bare > 0)
            std::printf("library without host calls : bare GDI = %.3f (yardstick 1.2)\n",
                        (times_["DrawThroughLibrary"] - times_["HostPropertyCalls"]) / bare);
    }

private:
    std::map<std::string, double> times_;
};

} // namespace

int wmain(int argc, wchar_t** wideArguments) {
    NarrowArguments arguments(argc, wideArguments);
    benchmark::Initialize(&argc, arguments.Data());
    if (argc < 2) {
        std::puts("usage: draw_bench FOLDER_OF_TEXT_SYMBOLS");
        return 2;
    }
    CoInitialize(nullptr);
    com::TheModule().Start(GetModuleHandleW(nullptr), {});
    try {
        LoadSymbols(wideArguments[1]);
        RatioReporter reporter;
        benchmark::RunSpecifiedBenchmarks(&reporter);
        g_symbols.clear();
    } catch (const base::Error& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
    CoUninitialize();
    return 0;
}
