#include "bench/null_surface.h"
#include "bench/plan_symbols.h"
#include "qplan/files/plan_file.h"
#include "qplan/model/own_catalogue.h"
#include "qplan/plan/plan.h"
#include "qsymbol/draw/hit_test.h"
#include "qsymbol/draw/snapping.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/files/symbol_file.h"
#include "qsymbol/geometry/plain_transformation.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>
#include <malloc.h>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

/// Plans of the sample catalogue's symbols, as densely furnished as the sample plan, beside loops over all placements
/// and over just those that an answer is about.

namespace {

constexpr std::int64_t kMany = 100000;
constexpr std::int32_t kUnitsPerPlacement = 147000; ///< the side of the square that each has for itself
constexpr double kUnitsPerPixel = 2500;
constexpr std::size_t kQuestions = 512;

struct Placed {
    std::shared_ptr<const qsymbol::Symbol> symbol;
    qsymbol::SymbolPosition position;
};

/// A plan, and the same as a plain list.
struct Furnished {
    qplan::Plan plan;
    std::vector<Placed> loop;
    std::int32_t side = 0;
};

/// The sample catalogue, and the names of its symbols.
struct Samples {
    std::shared_ptr<qplan::OwnCatalogue> catalogue = std::make_shared<qplan::OwnCatalogue>();
    std::vector<std::u16string> names;

    Samples() {
        const bench::World world;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(QSYMBOL_SAMPLES "/katalog")) {
            if (entry.path().extension() != ".syt")
                continue;
            qsymbol::Symbol symbol;
            symbol.filePath = entry.path().u16string();
            ReadFromFile(symbol, world.environment);
            names.push_back(Name(symbol));
            catalogue->Put(names.back(), std::move(symbol));
        }
    }
};

const Samples& SampleCatalogue() {
    static const Samples samples;
    return samples;
}

Furnished MakePlan(std::int64_t count) {
    const Samples& samples = SampleCatalogue();
    std::mt19937 random(11);
    Furnished made;
    made.side = static_cast<std::int32_t>(kUnitsPerPlacement * std::sqrt(static_cast<double>(count)));
    std::uniform_int_distribution<std::int32_t> place(0, made.side);
    std::uniform_real_distribution<double> angle(0, 6.28);
    std::uniform_int_distribution<std::size_t> name(0, samples.names.size() - 1);
    made.plan.SetSymbols(samples.catalogue);
    for (std::int64_t i = 0; i < count; ++i) {
        const std::u16string& which = samples.names[name(random)];
        const qsymbol::SymbolPosition position{.at = {place(random), place(random)}, .angle = angle(random)};
        made.plan.Add(which, position);
        made.loop.push_back({samples.catalogue->Find(which)->Value(), position});
    }
    return made;
}

const Furnished& PlanOf(std::int64_t count) {
    static std::map<std::int64_t, Furnished> plans;
    if (const auto known = plans.find(count); known != plans.end())
        return known->second;
    return plans.emplace(count, MakePlan(count)).first->second;
}

/// Windows of 1000 by 600 pixels all over the plan; about 200 placements show in each.
std::vector<qsymbol::PlainTransformation> Views(const Furnished& made) {
    std::mt19937 random(3);
    std::uniform_int_distribution<std::int32_t> place(0, made.side - 2500000);
    std::vector<qsymbol::PlainTransformation> views;
    for (std::size_t i = 0; i < kQuestions; ++i) {
        qmath::Transform transform;
        transform.SetScale(kUnitsPerPixel);
        transform.SetOffsetX(place(random));
        transform.SetOffsetY(place(random));
        views.emplace_back(transform);
    }
    return views;
}

constexpr qmath::Point kCursor{500, 220};
constexpr qmath::Rect kWindow{0, 0, 1000, 600};
constexpr qmath::Rect kRectangle{100, 20, 900, 420};
constexpr std::int16_t kRange = 10;

/// Asks at a new place each time: question(map, number of the view).
template <class Question>
void Ask(benchmark::State& state, const Furnished& made, const Question& question) {
    const std::vector<qsymbol::PlainTransformation> views = Views(made);
    question(views[0], std::size_t{0}); // so that the index is there
    std::size_t at = 0;
    for (auto _ : state) {
        question(views[at], at);
        at = (at + 1) % kQuestions;
    }
}

void PlanHit(benchmark::State& state) {
    const Furnished& made = PlanOf(state.range(0));
    Ask(state, made,
        [&](const auto& map, std::size_t) { benchmark::DoNotOptimize(made.plan.HitTest({map}, kCursor)); });
}
void LoopHit(benchmark::State& state) {
    const Furnished& made = PlanOf(state.range(0));
    Ask(state, made, [&](const auto& map, std::size_t) {
        std::size_t at = made.loop.size();
        while (at > 0 &&
               !ObjIdentByPt(*made.loop[at - 1].symbol, made.loop[at - 1].position, 1, map, kCursor))
            --at;
        benchmark::DoNotOptimize(at);
    });
}
BENCHMARK(PlanHit)->Arg(1000)->Arg(kMany)->Arg(1000000);
BENCHMARK(LoopHit)->Arg(kMany);

void PlanSnap(benchmark::State& state) {
    const Furnished& made = PlanOf(state.range(0));
    Ask(state, made, [&](const auto& map, std::size_t) {
        benchmark::DoNotOptimize(made.plan.CatchPt({map}, kCursor.x, kCursor.y, kRange));
    });
}
void LoopSnap(benchmark::State& state) {
    const Furnished& made = PlanOf(state.range(0));
    Ask(state, made, [&](const auto& map, std::size_t) {
        for (const Placed& placed : made.loop)
            benchmark::DoNotOptimize(
                CatchPt(*placed.symbol, placed.position, 1, map, kCursor.x, kCursor.y, kRange));
    });
}
BENCHMARK(PlanSnap)->Arg(1000)->Arg(kMany)->Arg(1000000);
BENCHMARK(LoopSnap)->Arg(kMany);

/// For each view what an answer is about, in drawing order.
template <class Answer>
std::vector<std::vector<Placed>> Answers(const Furnished& made, const Answer& answer) {
    std::vector<std::vector<Placed>> answers;
    for (const auto& map : Views(made)) {
        answers.emplace_back();
        for (const std::int32_t id : answer(map))
            answers.back().push_back(made.loop[static_cast<std::size_t>(id) - 1]);
    }
    return answers;
}

void PlanRect(benchmark::State& state) {
    const Furnished& made = PlanOf(kMany);
    Ask(state, made, [&](const auto& map, std::size_t) {
        benchmark::DoNotOptimize(made.plan.HitRect({map}, kRectangle));
    });
}
void JustItsResults(benchmark::State& state) {
    const Furnished& made = PlanOf(kMany);
    const auto results = Answers(made, [&](const auto& map) { return made.plan.HitRect({map}, kRectangle); });
    Ask(state, made, [&](const auto& map, std::size_t view) {
        std::vector<std::int32_t> hits;
        for (const Placed& placed : results[view])
            if (ObjIdentByRect(*placed.symbol, placed.position, 1, map, kRectangle))
                hits.push_back(placed.position.at.x);
        benchmark::DoNotOptimize(hits.data());
    });
}
BENCHMARK(PlanRect);
BENCHMARK(JustItsResults);

void PlanDraw(benchmark::State& state) {
    const Furnished& made = PlanOf(kMany);
    bench::NullSurface surface;
    Ask(state, made, [&](const auto& map, std::size_t) { made.plan.Draw(surface, map, kWindow); });
    benchmark::DoNotOptimize(surface.outputs);
    std::size_t count = 0;
    for (const auto& map : Views(made))
        count += made.plan.Visible(map, kWindow).size();
    state.counters["shown"] = static_cast<double>(count) / kQuestions;
}
void JustWhatShows(benchmark::State& state) {
    const Furnished& made = PlanOf(kMany);
    const auto visible = Answers(made, [&](const auto& map) { return made.plan.HitRect({map}, kWindow); });
    bench::NullSurface surface;
    std::size_t windows = 0;
    std::size_t count = 0;
    Ask(state, made, [&](const auto& map, std::size_t view) {
        for (const Placed& placed : visible[view])
            DrawSymbol(*placed.symbol, placed.position, surface, map, qsymbol::kUnscaled);
        count += visible[view].size();
        ++windows;
    });
    state.counters["shown"] = static_cast<double>(count) / static_cast<double>(windows);
}
BENCHMARK(PlanDraw);
BENCHMARK(JustWhatShows);

/// With a question after every sixteenth, so that the index is kept up too.
void PlanAdd(benchmark::State& state) {
    const Furnished& made = PlanOf(kMany);
    const Samples& samples = SampleCatalogue();
    const auto views = Views(made);
    qplan::Plan plan;
    plan.SetSymbols(samples.catalogue);
    std::size_t at = 0;
    for (auto _ : state) {
        plan.Add(samples.names[at % samples.names.size()], made.loop[at % made.loop.size()].position);
        if (++at % 16 == 0)
            benchmark::DoNotOptimize(plan.HitTest({views[at % kQuestions]}, kCursor));
    }
}
BENCHMARK(PlanAdd)->Iterations(kMany);

void PlanLoad(benchmark::State& state) {
    const std::string bytes = EncodePlan(PlanOf(1000000).plan);
    const auto views = Views(PlanOf(1000000));
    for (auto _ : state) {
        qplan::Plan plan;
        plan.SetSymbols(SampleCatalogue().catalogue);
        DecodePlan(plan, bytes);
        benchmark::DoNotOptimize(plan.HitTest({views[0]}, kCursor));
    }
}
BENCHMARK(PlanLoad)->Unit(benchmark::kMillisecond)->Iterations(1);

/// Bytes of a plan with its index beside those of a hundred for each placement.
void PlanMemory(benchmark::State& state) {
    const auto held = [] {
        const auto info = mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    const Furnished& made = PlanOf(kMany);
    const auto views = Views(made);
    for (auto _ : state) {
        const std::size_t before = held();
        qplan::Plan plan;
        plan.SetSymbols(SampleCatalogue().catalogue);
        for (std::size_t i = 0; i < made.loop.size(); ++i)
            plan.Add(SampleCatalogue().names[i % SampleCatalogue().names.size()], made.loop[i].position);
        benchmark::DoNotOptimize(plan.HitTest({views[0]}, kCursor));
        state.counters["ours"] = static_cast<double>(held() - before) / kMany;
        state.counters["peer"] = 100;
    }
}
BENCHMARK(PlanMemory)->Iterations(1);

} // namespace
