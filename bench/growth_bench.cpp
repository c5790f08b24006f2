#include "bench/null_surface.h"
#include "bench/plan_symbols.h"
#include "platform/posix/windows_1252.h"
#include "qsymbol/draw/hit_test.h"
#include "qsymbol/draw/snapping.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/export/dxf_export.h"
#include "qsymbol/geometry/plain_transformation.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>
#include <vector>

/// A plan ten times as large costs ten times as much: every operation over plans of 100 to 100,000 placed symbols.

namespace {

constexpr std::size_t kCatalogue = 100;
constexpr std::size_t kElements = 8;

struct Placed {
    const qsymbol::Symbol* symbol;
    qsymbol::SymbolPosition position;
};

const std::vector<qsymbol::Symbol>& Catalogue() {
    static const std::vector<qsymbol::Symbol> catalogue = [] {
        std::vector<qsymbol::Symbol> symbols;
        for (std::uint32_t seed = 0; seed < kCatalogue; ++seed)
            symbols.push_back(bench::PlanSymbol(kElements, seed));
        return symbols;
    }();
    return catalogue;
}

/// Symbols of the catalogue in any order, each at a place and an angle of its own.
std::vector<Placed> Plan(std::int64_t count) {
    std::mt19937 random(5);
    std::uniform_int_distribution<std::int32_t> world(-100000000, 100000000);
    std::uniform_int_distribution<std::size_t> symbol(0, kCatalogue - 1);
    std::uniform_real_distribution<double> angle(0, 6);
    std::vector<Placed> plan(static_cast<std::size_t>(count));
    for (Placed& placed : plan)
        placed = {&Catalogue()[symbol(random)],
                  {.at = {world(random), world(random)}, .angle = angle(random)}};
    return plan;
}

qsymbol::PlainTransformation Whole() {
    qmath::Transform transform;
    transform.SetScale(100000);
    return qsymbol::PlainTransformation(transform);
}

template <class Operation>
void OverThePlan(benchmark::State& state, const Operation& operation) {
    const std::vector<Placed> plan = Plan(state.range(0));
    for (auto _ : state)
        for (const Placed& placed : plan)
            operation(placed);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void GrowthOfDrawing(benchmark::State& state) {
    bench::NullSurface surface;
    const qsymbol::PlainTransformation whole = Whole();
    OverThePlan(state, [&](const Placed& placed) {
        qsymbol::DrawSymbol(*placed.symbol, placed.position, surface, whole, qsymbol::kUnscaled);
    });
    benchmark::DoNotOptimize(surface.outputs);
}

void GrowthOfHits(benchmark::State& state) {
    const qsymbol::PlainTransformation whole = Whole();
    OverThePlan(state, [&](const Placed& placed) {
        benchmark::DoNotOptimize(
            qsymbol::ObjIdentByPt(*placed.symbol, placed.position, 1, whole, {120, -340}));
    });
}

void GrowthOfSnaps(benchmark::State& state) {
    const qsymbol::PlainTransformation whole = Whole();
    OverThePlan(state, [&](const Placed& placed) {
        benchmark::DoNotOptimize(qsymbol::CatchPt(*placed.symbol, placed.position, 1, whole, 120, -340, 5));
    });
}

void GrowthOfDxf(benchmark::State& state) {
    const platform::Windows1252 codePage;
    OverThePlan(state, [&](const Placed& placed) {
        qsymbol::TagSink out;
        qsymbol::ExportSymbol(*placed.symbol, placed.position, 1, codePage, out);
        benchmark::DoNotOptimize(out.Bytes().data());
    });
}

BENCHMARK(GrowthOfDrawing)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(GrowthOfHits)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(GrowthOfSnaps)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(GrowthOfDxf)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMicrosecond);

} // namespace
