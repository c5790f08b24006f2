// A plan of a hundred thousand placed symbols through COM: what a mouse move and a repaint cost, beside the least that such a
// call can cost.

#include "automation/counting_box.h"
#include "automation/memory_context.h"
#include "automation/new_object.h"
#include "automation/run_benchmarks.h"
#include "automation/sample_symbols.h"
#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/error_info.h"

#include <QPlan.h>
#include <benchmark/benchmark.h>

#include <deque>
#include <random>
#include <utility>
#include <vector>

namespace {

constexpr int kPlacements = 100'000;
constexpr LONG kSide = 47'400'000; // 474 m: a symbol every one and a half metres
constexpr int kWindow = 1000;      // pixels, which show two hundred symbols
constexpr double kScale = kSide * 0.0447 / kWindow;

/// The plan, a view into its middle, and pixels there.
struct Scene {
    com::ComPtr<_CPlan> plan = New<CPlan, _CPlan>();
    com::ComPtr<_CTrans> trans = New<CTrans, _CTrans>();
    std::vector<std::pair<LONG, LONG>> pixels;

    explicit Scene(const std::wstring& folder) {
        const auto catalogue = New<CSymbolColl, _CSymbolColl>();
        std::deque<com::Bstr> names; // which do not move
        for (com::ComPtr<_CSymbol>& symbol : LoadSymbols(folder)) {
            names.emplace_back();
            com::Check(symbol->get_Name(names.back().Put()));
            _CSymbol* given = symbol.Detach();
            com::Check(catalogue->AppendRef(&given));
        }
        com::Check(plan->putref_Symbols(catalogue.Get()));
        std::mt19937 random(1);
        std::uniform_int_distribution<LONG> anywhere(0, kSide);
        for (int i = 0; i < kPlacements; ++i) {
            com::ComPtr<_CPlacement> placed;
            const LONG x = anywhere(random);
            const LONG y = anywhere(random);
            com::Check(plan->Add(names[random() % names.size()].Get(), x, y,
                                 (random() % 4) * 1.5707963267948966, placed.Put()));
        }
        com::Check(trans->SetScale(kScale));
        com::Check(trans->SetOffsetX(kSide / 2));
        com::Check(trans->SetOffsetY(kSide / 2));
        for (int i = 0; i < 1024; ++i)
            pixels.emplace_back(static_cast<LONG>(random() % kWindow), static_cast<LONG>(random() % kWindow));
        Hit(0); // what is made once
    }

    bool Hit(std::size_t i) const {
        com::ComPtr<_CPlacement> hit;
        com::Check(plan->HitTest(trans.Get(), pixels[i % 1024].first, pixels[i % 1024].second, hit.Put()));
        return static_cast<bool>(hit);
    }
};

Scene* g_scene = nullptr;

void Hits(benchmark::State& state) {
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(g_scene->Hit(++i));
}
BENCHMARK(Hits);

DISPID IdOf(IDispatch& object, const wchar_t* name) {
    DISPID id = DISPID_UNKNOWN;
    auto* text = const_cast<wchar_t*>(name);
    com::Check(object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id));
    return id;
}

VARIANTARG Long(LONG value) {
    VARIANTARG argument;
    V_VT(&argument) = VT_I4;
    V_I4(&argument) = value;
    return argument;
}

void Invoke(IDispatch& object, DISPID id, WORD flags, VARIANTARG* arguments, UINT count) {
    DISPPARAMS passed{arguments, nullptr, count, 0};
    VARIANT result;
    VariantInit(&result);
    com::Check(object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &passed, &result, nullptr, nullptr));
    VariantClear(&result);
}

void HitsLateBound(benchmark::State& state) {
    IDispatch& plan = *g_scene->plan.Get();
    const DISPID id = IdOf(plan, L"HitTest");
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& [x, y] = g_scene->pixels[++i % 1024];
        VARIANTARG arguments[3] = {Long(y), Long(x), {}};
        V_VT(&arguments[2]) = VT_DISPATCH;
        V_DISPATCH(&arguments[2]) = g_scene->trans.Get();
        Invoke(plan, id, DISPATCH_METHOD, arguments, 3);
    }
}
BENCHMARK(HitsLateBound);

/// A late-bound call that gives a placement as well.
void LookupsLateBound(benchmark::State& state) {
    IDispatch& plan = *g_scene->plan.Get();
    const DISPID id = IdOf(plan, L"ItemById");
    LONG i = 0;
    for (auto _ : state) {
        VARIANTARG argument = Long(++i % kPlacements + 1);
        Invoke(plan, id, DISPATCH_PROPERTYGET, &argument, 1);
    }
}
BENCHMARK(LookupsLateBound);

void Snaps(benchmark::State& state) {
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& [pixelX, pixelY] = g_scene->pixels[++i % 1024];
        auto x = static_cast<float>(pixelX);
        auto y = static_cast<float>(pixelY);
        LONG world[2] = {};
        VARIANT_BOOL caught = VARIANT_FALSE;
        com::Check(g_scene->plan->CatchPt(&x, &y, &world[0], &world[1], g_scene->trans.Get(), 8, &caught));
    }
}
BENCHMARK(Snaps);

void Draws(benchmark::State& state) {
    const MemoryContext context;
    CountingBox box(context.Get());
    for (auto _ : state)
        com::Check(g_scene->plan->Draw(&box, g_scene->trans.Get()));
    state.counters["host_calls"] =
        benchmark::Counter(static_cast<double>(box.Calls()), benchmark::Counter::kAvgIterations);
}
BENCHMARK(Draws)->Unit(benchmark::kMicrosecond);

/// Just the symbols in the window, each drawn alone.
void DrawsOfTheVisibleAlone(benchmark::State& state) {
    struct Placed {
        com::ComPtr<_CSymbol> symbol;
        LONG x = 0;
        LONG y = 0;
        double angle = 0;
    };
    const auto rect = New<CRect, _CRect>();
    com::Check(rect->put_Right(kWindow));
    com::Check(rect->put_Bottom(kWindow));
    com::ComPtr<_CPlacementColl> found;
    com::Check(g_scene->plan->HitRect(g_scene->trans.Get(), rect.Get(), found.Put()));
    LONG count = 0;
    com::Check(found->get_Count(&count));
    std::vector<Placed> visible(static_cast<std::size_t>(count));
    for (LONG i = 0; i < count; ++i) {
        Placed& placed = visible[static_cast<std::size_t>(i)];
        com::ComPtr<_CPlacement> placement;
        com::Check(found->get_ItemByPos(i + 1, placement.Put()));
        com::Check(placement->get_Symbol(placed.symbol.Put()));
        com::Check(placement->get_LogX(&placed.x));
        com::Check(placement->get_LogY(&placed.y));
        com::Check(placement->get_Angle(&placed.angle));
    }
    const MemoryContext context;
    CountingBox box(context.Get());
    for (auto _ : state)
        for (const Placed& placed : visible)
            com::Check(placed.symbol->Draw(placed.x, placed.y, placed.angle, &box, g_scene->trans.Get(), 1, 1,
                                           nullptr));
    state.counters["symbols"] = static_cast<double>(visible.size());
    state.counters["host_calls"] =
        benchmark::Counter(static_cast<double>(box.Calls()), benchmark::Counter::kAvgIterations);
}
BENCHMARK(DrawsOfTheVisibleAlone)->Unit(benchmark::kMicrosecond);

} // namespace

int wmain(int argc, wchar_t** wideArguments) {
    return RunBenchmarksOverFolder("plan_calls_bench", argc, wideArguments, [](const wchar_t* folder) {
        Scene scene(folder);
        g_scene = &scene;
        benchmark::RunSpecifiedBenchmarks();
    });
}
