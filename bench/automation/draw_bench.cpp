#include "automation/counting_box.h"
#include "automation/gdi_recording.h"
#include "automation/host_calls.h"
#include "automation/memory_context.h"
#include "automation/new_object.h"
#include "automation/ratio_reporter.h"
#include "automation/run_benchmarks.h"
#include "automation/sample_symbols.h"
#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/error_info.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr double kScale = 600; // world units to a pixel
constexpr GdiRecording::Placement kPlacement{.x = 300000, .y = 300000, .angle = 0.3, .scale = kScale};
/// Where the mouse goes to from there, and back.
constexpr GdiRecording::Placement kMoved{.x = 312000, .y = 288000, .angle = 0.3, .scale = kScale};

using Symbols = std::vector<com::ComPtr<_CSymbol>>;

Symbols g_symbols;
com::ComPtr<_CSymbolColl> g_catalogue; ///< the same symbols

com::ComPtr<_CSymbolColl> CatalogueOf(const Symbols& symbols) {
    auto catalogue = New<CSymbolColl, _CSymbolColl>();
    for (const com::ComPtr<_CSymbol>& symbol : symbols) {
        _CSymbol* handed = com::ComPtr<_CSymbol>(symbol).Detach();
        com::Check(catalogue->AppendRef(&handed));
    }
    return catalogue;
}

com::ComPtr<_CTrans> Trans() {
    auto trans = New<CTrans, _CTrans>();
    com::Check(trans->SetScale(kScale));
    return trans;
}

std::vector<GdiRecording> Recordings(const GdiRecording::Placement& placement) {
    std::vector<GdiRecording> recordings;
    for (const com::ComPtr<_CSymbol>& symbol : g_symbols)
        recordings.emplace_back(*symbol.Get(), placement);
    return recordings;
}

/// One round over all symbols.
void DrawAll(CountingBox& box, _CTrans& trans) {
    for (const com::ComPtr<_CSymbol>& symbol : g_symbols)
        com::Check(symbol->Draw(kPlacement.x, kPlacement.y, kPlacement.angle, &box, &trans, 1, 1, nullptr));
}

void DrawThroughLibrary(benchmark::State& state) {
    const MemoryContext context;
    CountingBox box(context.Get());
    const com::ComPtr<_CTrans> trans = Trans();
    for (auto _ : state)
        DrawAll(box, *trans.Get());
    const auto draws = static_cast<double>(state.iterations()) * static_cast<double>(g_symbols.size());
    state.SetItemsProcessed(static_cast<std::int64_t>(draws));
    state.counters["host_calls"] = static_cast<double>(box.Calls()) / draws;
}
BENCHMARK(DrawThroughLibrary)->Unit(benchmark::kMillisecond);

void BareGdiCalls(benchmark::State& state) {
    const MemoryContext context;
    const std::vector<GdiRecording> recordings = Recordings(kPlacement);
    for (auto _ : state)
        for (const GdiRecording& recording : recordings)
            recording.Play(context.Get());
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(g_symbols.size()));
}
BENCHMARK(BareGdiCalls)->Unit(benchmark::kMillisecond);

/// The late-bound calls alone, as many as the drawing above makes: the host's share.
void HostCallsOfADraw(benchmark::State& state) {
    const MemoryContext context;
    CountingBox counter(context.Get());
    DrawAll(counter, *Trans().Get());
    for (auto _ : state)
        MakeHostCalls(counter.Calls());
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(g_symbols.size()));
}
BENCHMARK(HostCallsOfADraw)->Unit(benchmark::kMillisecond);

/// A placing tool for each symbol, its image on the surface.
class Movers {
public:
    explicit Movers(HDC context) : box_(context) {
        for (const com::ComPtr<_CSymbol>& symbol : g_symbols) {
            com::Bstr name;
            com::Check(symbol->get_Name(name.Put()));
            com::ComPtr<_CSymInput> input;
            com::Check(g_catalogue->GetSymInput(name.Get(), input.Put()));
            com::Check(input->put_Angle(kPlacement.angle));
            inputs_.push_back(input);
        }
        MoveAll();
        MoveAll();
    }

    /// Every image goes to the other one of the two places.
    void MoveAll() {
        const GdiRecording::Placement& to = moved_ ? kPlacement : kMoved;
        moved_ = !moved_;
        for (const com::ComPtr<_CSymInput>& input : inputs_)
            com::Check(input->MouseMove(static_cast<float>(to.x / kScale), static_cast<float>(to.y / kScale),
                                        &box_, trans_.Get()));
    }
    std::int64_t Calls() const { return box_.Calls(); }

private:
    CountingBox box_;
    com::ComPtr<_CTrans> trans_ = Trans();
    std::vector<com::ComPtr<_CSymInput>> inputs_;
    bool moved_ = false;
};

/// Takes the image away and draws it at another place, as every movement of the mouse does.
void MoveThroughLibrary(benchmark::State& state) {
    const MemoryContext context;
    Movers movers(context.Get());
    for (auto _ : state)
        movers.MoveAll();
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(g_symbols.size()));
}
BENCHMARK(MoveThroughLibrary)->Unit(benchmark::kMillisecond);

void BareGdiCallsOfAMove(benchmark::State& state) {
    const MemoryContext context;
    const std::vector<GdiRecording> here = Recordings(kPlacement);
    const std::vector<GdiRecording> there = Recordings(kMoved);
    for (auto _ : state) {
        for (std::size_t i = 0; i < here.size(); ++i) {
            here[i].PlayInverted(context.Get());
            there[i].PlayInverted(context.Get());
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(g_symbols.size()));
}
BENCHMARK(BareGdiCallsOfAMove)->Unit(benchmark::kMillisecond);

void HostCallsOfAMove(benchmark::State& state) {
    const MemoryContext context;
    Movers movers(context.Get());
    const std::int64_t before = movers.Calls();
    movers.MoveAll();
    const std::int64_t calls = movers.Calls() - before;
    for (auto _ : state)
        MakeHostCalls(calls);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(g_symbols.size()));
}
BENCHMARK(HostCallsOfAMove)->Unit(benchmark::kMillisecond);

} // namespace

int wmain(int argc, wchar_t** wideArguments) {
    return RunBenchmarksOverFolder("draw_bench", argc, wideArguments, [](const wchar_t* folder) {
        g_symbols = LoadSymbols(folder);
        g_catalogue = CatalogueOf(g_symbols);
        RatioReporter reporter({{"drawing", "DrawThroughLibrary", "HostCallsOfADraw", "BareGdiCalls"},
                                {"moving", "MoveThroughLibrary", "HostCallsOfAMove", "BareGdiCallsOfAMove"}});
        benchmark::RunSpecifiedBenchmarks(&reporter);
        g_catalogue.Reset();
        g_symbols.clear();
    });
}
