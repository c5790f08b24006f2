// Calls that a host makes once an object or once a mouse move, beside the least that such a call can cost.

#include "automation/counting_box.h"
#include "automation/gdi_recording.h"
#include "automation/host_calls.h"
#include "automation/memory_context.h"
#include "automation/new_object.h"
#include "automation/run_benchmarks.h"
#include "automation/sample_symbols.h"
#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/error_info.h"

#include <benchmark/benchmark.h>

#include <olectl.h>

#include <utility>
#include <vector>

namespace {

constexpr double kScale = 20; // world units to a pixel
constexpr int kTexts = 10;

std::vector<com::ComPtr<_CSymbol>> g_symbols;

template <class Class>
com::ComPtr<IClassFactory> Factory() {
    com::ComPtr<IClassFactory> factory;
    com::Check(CoGetClassObject(__uuidof(Class), CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                                factory.PutVoid()));
    return factory;
}

template <class Interface>
com::ComPtr<Interface> Make(const com::ComPtr<IClassFactory>& factory) {
    com::ComPtr<Interface> object;
    com::Check(factory->CreateInstance(nullptr, __uuidof(Interface), object.PutVoid()));
    return object;
}

com::ComPtr<_CTrans> Trans() {
    auto trans = New<CTrans, _CTrans>();
    com::Check(trans->SetScale(kScale));
    return trans;
}

void Count(benchmark::State& state, std::size_t each) {
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(each));
}

void BoundingRects(benchmark::State& state) {
    for (auto _ : state) {
        for (const com::ComPtr<_CSymbol>& symbol : g_symbols) {
            com::ComPtr<_CRect> rect;
            com::Check(symbol->GetBoundingRect(1000, 2000, 0.3, rect.Put()));
        }
    }
    Count(state, g_symbols.size());
}
BENCHMARK(BoundingRects)->Unit(benchmark::kMicrosecond);

/// The same objects from a class object that is held.
void RectsFromAFactory(benchmark::State& state) {
    const com::ComPtr<IClassFactory> factory = Factory<CRect>();
    for (auto _ : state) {
        for (std::size_t i = 0; i < g_symbols.size(); ++i) {
            const auto rect = Make<_CRect>(factory);
            com::Check(rect->put_Left(1));
            com::Check(rect->put_Top(2));
            com::Check(rect->put_Right(3));
            com::Check(rect->put_Bottom(4));
        }
    }
    Count(state, g_symbols.size());
}
BENCHMARK(RectsFromAFactory)->Unit(benchmark::kMicrosecond);

/// How many points each element of the samples has, and whether it is a text.
std::vector<std::pair<LONG, bool>> Shapes() {
    std::vector<std::pair<LONG, bool>> shapes;
    for (const com::ComPtr<_CSymbol>& symbol : g_symbols) {
        com::ComPtr<_CSymElementColl> elements;
        com::Check(symbol->GetSymElements(elements.Put()));
        LONG count = 0;
        com::Check(elements->get_Count(&count));
        for (LONG i = 1; i <= count; ++i) {
            com::ComPtr<_CSymElement> element;
            com::ComPtr<_CPtList> list;
            SymElementTypeConstants type{};
            LONG points = 0;
            com::Check(elements->get_ItemByPos(i, element.Put()));
            com::Check(element->get_ElementType(&type));
            com::Check(element->get_PtList(list.Put()));
            com::Check(list->get_Count(&points));
            shapes.emplace_back(points, type == symText);
        }
    }
    return shapes;
}

void SymElements(benchmark::State& state) {
    const std::size_t elements = Shapes().size();
    for (auto _ : state) {
        for (const com::ComPtr<_CSymbol>& symbol : g_symbols) {
            com::ComPtr<_CSymElementColl> made;
            com::Check(symbol->GetSymElements(made.Put()));
        }
    }
    Count(state, elements);
}
BENCHMARK(SymElements)->Unit(benchmark::kMicrosecond);

/// The same objects from class objects that are held: element, list, points, font.
void ElementsFromFactories(benchmark::State& state) {
    const std::vector<std::pair<LONG, bool>> shapes = Shapes();
    const com::ComPtr<IClassFactory> elements = Factory<CSymElement>();
    const com::ComPtr<IClassFactory> lists = Factory<CPtList>();
    const com::ComPtr<IClassFactory> points = Factory<CPt>();
    const auto collection = New<CSymElementColl, _CSymElementColl>();
    wchar_t arial[] = L"Arial";
    FONTDESC font{sizeof font, arial, {.int64 = 60000}, FW_NORMAL, DEFAULT_CHARSET, FALSE, FALSE, FALSE};
    for (auto _ : state) {
        for (const auto& [count, isText] : shapes) {
            const auto element = Make<_CSymElement>(elements);
            const auto list = Make<_CPtList>(lists);
            for (LONG i = 0; i < count; ++i) {
                const auto point = Make<_CPt>(points);
                com::Check(point->put_X(i));
                com::Check(point->put_Y(i));
                com::Check(list->AddPoint(point.Get()));
            }
            com::Check(element->putref_PtList(list.Get()));
            if (isText) {
                com::ComPtr<IFontDisp> made;
                com::Check(OleCreateFontIndirect(&font, IID_IFontDisp, made.PutVoid()));
                com::Check(element->putref_TxtFont(made.Get()));
            }
            _CSymElement* handed = com::ComPtr<_CSymElement>(element).Detach();
            com::Check(collection->AppendRef(&handed));
        }
        com::Check(collection->Clear());
    }
    Count(state, shapes.size());
}
BENCHMARK(ElementsFromFactories)->Unit(benchmark::kMicrosecond);

/// A mouse move over a plan: every symbol is asked, none is near.
void SnapsFarAway(benchmark::State& state) {
    const com::ComPtr<_CTrans> trans = Trans();
    for (auto _ : state) {
        for (const com::ComPtr<_CSymbol>& symbol : g_symbols) {
            float x = 30000;
            float y = 30000;
            LONG caughtX = 0;
            LONG caughtY = 0;
            VARIANT_BOOL caught = VARIANT_FALSE;
            com::Check(symbol->CatchPt(&x, &y, &caughtX, &caughtY, 3000, 3000, 0.3, trans.Get(), 5, &caught));
        }
    }
    Count(state, g_symbols.size());
}
BENCHMARK(SnapsFarAway)->Unit(benchmark::kMicrosecond);

void HitsFarAway(benchmark::State& state) {
    const com::ComPtr<_CTrans> trans = Trans();
    for (auto _ : state) {
        for (const com::ComPtr<_CSymbol>& symbol : g_symbols) {
            VARIANT_BOOL hit = VARIANT_FALSE;
            com::Check(symbol->ObjIdentByPt(3000, 3000, 0.3, trans.Get(), 30000, 30000, &hit));
        }
    }
    Count(state, g_symbols.size());
}
BENCHMARK(HitsFarAway)->Unit(benchmark::kMicrosecond);

/// A symbol of ten texts in one font.
com::ComPtr<_CSymbol> TextSymbol() {
    const auto elements = New<CSymElementColl, _CSymElementColl>();
    for (int i = 0; i < kTexts; ++i) {
        const auto point = New<CPt, _CPt>();
        com::Check(point->put_X(200 * i));
        com::Check(point->put_Y(600 * i));
        const auto list = New<CPtList, _CPtList>();
        com::Check(list->AddPoint(point.Get()));
        const auto element = New<CSymElement, _CSymElement>();
        com::Check(element->put_ElementType(symText));
        com::Check(element->put_Text(com::Bstr(u"Wohnzimmer").Get()));
        com::Check(element->putref_PtList(list.Get()));
        _CSymElement* handed = com::ComPtr<_CSymElement>(element).Detach();
        com::Check(elements->AppendRef(&handed));
    }
    auto symbol = New<CSymbol, _CSymbol>();
    com::Check(symbol->CreateNew(0, 0, 2000, 6000, elements.Get()));
    return symbol;
}

void TenTexts(benchmark::State& state) {
    const MemoryContext context;
    CountingBox box(context.Get());
    const com::ComPtr<_CTrans> trans = Trans();
    const com::ComPtr<_CSymbol> symbol = TextSymbol();
    for (auto _ : state)
        com::Check(symbol->Draw(2000, 2000, 0, &box, trans.Get(), 1, 1, nullptr));
}
BENCHMARK(TenTexts)->Unit(benchmark::kMicrosecond);

void HostCallsOfTenTexts(benchmark::State& state) {
    const MemoryContext context;
    CountingBox box(context.Get());
    com::Check(TextSymbol()->Draw(2000, 2000, 0, &box, Trans().Get(), 1, 1, nullptr));
    for (auto _ : state)
        MakeHostCalls(box.Calls());
}
BENCHMARK(HostCallsOfTenTexts)->Unit(benchmark::kMicrosecond);

/// With one font for all of them.
void BareTenTexts(benchmark::State& state) {
    const MemoryContext context;
    LOGFONTW face{};
    face.lfHeight = -11; // 6 points are 212 units
    face.lfCharSet = DEFAULT_CHARSET;
    face.lfOutPrecision = OUT_TT_ONLY_PRECIS;
    lstrcpyW(face.lfFaceName, L"Arial");
    for (auto _ : state) {
        const HFONT font = CreateFontIndirectW(&face);
        const HGDIOBJ previous = SelectObject(context.Get(), font);
        for (int i = 0; i < kTexts; ++i) {
            SetTextAlign(context.Get(), 0);
            SetBkMode(context.Get(), TRANSPARENT);
            TextOutA(context.Get(), 100 + 10 * i, 100 + 30 * i, "Wohnzimmer", 10);
        }
        SelectObject(context.Get(), previous);
        DeleteObject(font);
    }
}
BENCHMARK(BareTenTexts)->Unit(benchmark::kMicrosecond);

} // namespace

int wmain(int argc, wchar_t** wideArguments) {
    return RunBenchmarksOverFolder("calls_bench", argc, wideArguments, [](const wchar_t* folder) {
        g_symbols = LoadSymbols(folder);
        benchmark::RunSpecifiedBenchmarks();
        g_symbols.clear();
    });
}
