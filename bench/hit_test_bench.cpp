#include "base/checked.h"
#include "qmath/transform.h"
#include "qsymbol/draw/hit_test.h"
#include "qsymbol/draw/snapping.h"
#include "qsymbol/geometry/plain_transformation.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kProbes = 1024;

struct Probe {
    qsymbol::SymbolPosition position;
    qmath::Point screen;
};

qmath::Transform PlanTransform() {
    qmath::Transform transform;
    transform.SetScale(37.5);
    transform.SetOffsetX(-1200);
    transform.SetOffsetY(800);
    return transform;
}

/// Cursors near placed symbols, about a third of them hits. One placement for all is what a prepared polygon
/// of a geometry library would be asked; otherwise every probe has a place and an angle of its own.
std::vector<Probe> Probes(bool onePlacement) {
    std::mt19937 random(7);
    std::uniform_int_distribution<std::int32_t> world(-500000, 500000);
    std::uniform_int_distribution<std::int32_t> near(-1500, 1500);
    std::uniform_real_distribution<double> angle(-7, 7);
    const qmath::Transform transform = PlanTransform();
    std::vector<Probe> probes(kProbes);
    for (Probe& probe : probes) {
        probe.position = {.at = {world(random), world(random)}, .angle = angle(random)};
        if (onePlacement)
            probe.position = {.at = {12345, -67890}, .angle = 0.5};
        probe.screen =
            transform.WorldToScreen({probe.position.at.x + near(random), probe.position.at.y + near(random)});
    }
    return probes;
}

qsymbol::Symbol BoxSymbol() {
    qsymbol::Symbol symbol;
    symbol.width = 2000;
    symbol.height = 1500;
    symbol.refX = 1000;
    symbol.refY = 750;
    symbol.elements.resize(1);
    return symbol;
}

void HitTestByPoint(benchmark::State& state, bool onePlacement) {
    const qsymbol::Symbol symbol = BoxSymbol();
    const qsymbol::PlainTransformation transformation(PlanTransform());
    const std::vector<Probe> probes = Probes(onePlacement);
    std::size_t next = 0;
    std::int64_t hits = 0;
    for (auto _ : state) {
        const Probe& probe = probes[next++ % kProbes];
        hits += qsymbol::ObjIdentByPt(symbol, probe.position, 0, transformation, probe.screen);
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["hit_share"] = static_cast<double>(hits) / static_cast<double>(state.iterations());
}
BENCHMARK_CAPTURE(HitTestByPoint, one_placement, true);
BENCHMARK_CAPTURE(HitTestByPoint, any_placement, false);

void HitTestByRect(benchmark::State& state, bool onePlacement) {
    const qsymbol::Symbol symbol = BoxSymbol();
    const qsymbol::PlainTransformation transformation(PlanTransform());
    const std::vector<Probe> probes = Probes(onePlacement);
    std::size_t next = 0;
    std::int64_t hits = 0;
    for (auto _ : state) {
        const Probe& probe = probes[next++ % kProbes];
        const qmath::Point at = probe.screen;
        hits += qsymbol::ObjIdentByRect(symbol, probe.position, 0, transformation,
                                        {at.x - 5, at.y - 5, at.x + 5, at.y + 5});
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["hit_share"] = static_cast<double>(hits) / static_cast<double>(state.iterations());
}
BENCHMARK_CAPTURE(HitTestByRect, one_placement, true);
BENCHMARK_CAPTURE(HitTestByRect, any_placement, false);

constexpr std::size_t kVertices = 1000;

qsymbol::Symbol VertexSymbol() {
    std::mt19937 random(11);
    std::uniform_int_distribution<std::int32_t> coordinate(0, 50000);
    qsymbol::Symbol symbol;
    qsymbol::ElementRecord poly;
    poly.type = qsymbol::ElementType::Poly;
    for (std::size_t i = 0; i < kVertices; ++i)
        poly.points.push_back({coordinate(random), coordinate(random)});
    symbol.elements.push_back(poly);
    symbol.width = symbol.height = 50000;
    return symbol;
}

const qsymbol::SymbolPosition kPosition{.at = {12345, 67890}, .angle = 0.7};
constexpr std::int16_t kRange = 2;

/// The peer: the same arithmetic written out in one loop, without contracts and virtual calls.
std::optional<std::size_t> BareLoop(const std::vector<qmath::Point>& points, double x, double y,
                                    double range) {
    const double cosine = std::cos(-kPosition.angle);
    const double sine = std::sin(-kPosition.angle);
    const double scale = PlanTransform().Scale();
    const double offsetX = PlanTransform().OffsetX();
    const double offsetY = PlanTransform().OffsetY();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const qmath::Point point = points[i];
        const std::int32_t worldX = base::RoundToLong(kPosition.at.x + cosine * point.x - sine * point.y);
        const std::int32_t worldY = base::RoundToLong(kPosition.at.y + sine * point.x + cosine * point.y);
        const std::int32_t screenX = base::RoundToLong((worldX - offsetX) / scale);
        const std::int32_t screenY = base::RoundToLong((worldY - offsetY) / scale);
        if (std::abs(screenX - x) < range && std::abs(screenY - y) < range)
            return i;
    }
    return std::nullopt;
}

/// A cursor among the vertices that catches none of them, so that every one is looked at.
qmath::Point AmongTheVertices(const std::vector<qmath::Point>& points) {
    std::mt19937 random(13);
    std::uniform_int_distribution<std::int32_t> world(0, 30000);
    for (;;) {
        const qmath::Point cursor = PlanTransform().WorldToScreen(
            {kPosition.at.x + world(random), kPosition.at.y + world(random) - 15000});
        if (!BareLoop(points, cursor.x, cursor.y, kRange))
            return cursor;
    }
}

void SnapOverVertices(benchmark::State& state) {
    const qsymbol::Symbol symbol = VertexSymbol();
    const qsymbol::PlainTransformation transformation(PlanTransform());
    const qmath::Point cursor = AmongTheVertices(symbol.elements[0].points);
    for (auto _ : state)
        benchmark::DoNotOptimize(qsymbol::CatchPt(symbol, kPosition, 0, transformation,
                                                  static_cast<float>(cursor.x), static_cast<float>(cursor.y),
                                                  kRange));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kVertices));
}
BENCHMARK(SnapOverVertices);

void BareLoopOverVertices(benchmark::State& state) {
    const qsymbol::Symbol symbol = VertexSymbol();
    const qmath::Point cursor = AmongTheVertices(symbol.elements[0].points);
    for (auto _ : state)
        benchmark::DoNotOptimize(BareLoop(symbol.elements[0].points, cursor.x, cursor.y, kRange));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kVertices));
}
BENCHMARK(BareLoopOverVertices);

/// A mouse move over a plan: nearly every symbol is far away.
void SnapToFarSymbols(benchmark::State& state) {
    const qsymbol::Symbol symbol = VertexSymbol();
    const qsymbol::PlainTransformation transformation(PlanTransform());
    const std::vector<Probe> probes = Probes(false);
    std::size_t next = 0;
    for (auto _ : state) {
        const Probe& probe = probes[next++ % kProbes];
        benchmark::DoNotOptimize(qsymbol::CatchPt(symbol, probe.position, 0, transformation,
                                                  static_cast<float>(probe.screen.x) + 50000, 0, 10));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SnapToFarSymbols);

void HitTestOfFarSymbols(benchmark::State& state) {
    const qsymbol::Symbol symbol = VertexSymbol();
    const qsymbol::PlainTransformation transformation(PlanTransform());
    const std::vector<Probe> probes = Probes(false);
    std::size_t next = 0;
    for (auto _ : state) {
        const Probe& probe = probes[next++ % kProbes];
        benchmark::DoNotOptimize(
            qsymbol::ObjIdentByPt(symbol, probe.position, 0, transformation, {probe.screen.x + 50000, 0}));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(HitTestOfFarSymbols);

} // namespace
