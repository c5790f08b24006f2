#include "automation/run_benchmarks.h"
#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/error_info.h"

#include <QSymbol.h>
#include <benchmark/benchmark.h>

#include <array>

// Members that give new objects of QMath, beside making the same objects from class objects that the client
// holds and filling them through the same interfaces.

namespace {

constexpr int kElements = 100;
constexpr LONG kCorners = 4;

template <class Class>
IClassFactory& ClassObject() {
    static const com::ComPtr<IClassFactory> factory = [] {
        com::ComPtr<IClassFactory> found;
        com::Check(CoGetClassObject(__uuidof(Class), CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                                    found.PutVoid()));
        return found;
    }();
    return *factory;
}

template <class Class, class Interface>
com::ComPtr<Interface> New() {
    com::ComPtr<Interface> object;
    com::Check(ClassObject<Class>().CreateInstance(nullptr, __uuidof(Interface), object.PutVoid()));
    return object;
}

com::ComPtr<_CPtList> Corners() {
    auto points = New<CPtList, _CPtList>();
    for (LONG i = 0; i < kCorners; ++i) {
        const auto point = New<CPt, _CPt>();
        com::Check(point->put_X(i * 100));
        com::Check(point->put_Y(i % 2 * 100));
        com::Check(points->AddPoint(point.Get()));
    }
    return points;
}

com::ComPtr<_CSymElement> Outline(BSTR text) {
    auto element = New<CSymElement, _CSymElement>();
    com::Check(element->put_ElementType(symPoly));
    com::Check(element->put_LineClosed(VARIANT_TRUE));
    com::Check(element->put_TxtAngle(0));
    com::Check(element->put_FillColor(RGB(222, 184, 135)));
    com::Check(element->put_LineWidth(1));
    com::Check(element->put_MainColor(0));
    com::Check(element->put_Radius(0));
    com::Check(element->put_TxtAlign(0));
    com::Check(element->put_TxtBkMode(1));
    com::Check(element->put_Text(text));
    com::Check(element->putref_PtList(Corners().Get()));
    return element;
}

com::ComPtr<_CSymElementColl> Outlines() {
    auto elements = New<CSymElementColl, _CSymElementColl>();
    const com::Bstr text;
    for (int i = 0; i < kElements; ++i) {
        _CSymElement* element = Outline(text.Get()).Detach();
        com::Check(elements->AppendRef(&element));
    }
    return elements;
}

com::ComPtr<_CSymbol> Symbol() {
    auto symbol = New<CSymbol, _CSymbol>();
    com::Check(symbol->CreateNew(0, 0, 300, 100, Outlines().Get()));
    return symbol;
}

void GetBoundingRect(benchmark::State& state) {
    const auto symbol = Symbol();
    for (auto _ : state) {
        com::ComPtr<_CRect> bounds;
        com::Check(symbol->GetBoundingRect(1000, 2000, 0.5, bounds.Put()));
    }
}
BENCHMARK(GetBoundingRect);

void RectFromClassObject(benchmark::State& state) {
    for (auto _ : state) {
        const auto rect = New<CRect, _CRect>();
        com::Check(rect->put_Left(1));
        com::Check(rect->put_Top(2));
        com::Check(rect->put_Right(3));
        com::Check(rect->put_Bottom(4));
    }
}
BENCHMARK(RectFromClassObject);

void GetSymElements(benchmark::State& state) {
    const auto symbol = Symbol();
    for (auto _ : state) {
        com::ComPtr<_CSymElementColl> elements;
        com::Check(symbol->GetSymElements(elements.Put()));
    }
    state.SetItemsProcessed(state.iterations() * kElements);
}
BENCHMARK(GetSymElements);

void ElementsFromClassObjects(benchmark::State& state) {
    for (auto _ : state)
        Outlines();
    state.SetItemsProcessed(state.iterations() * kElements);
}
BENCHMARK(ElementsFromClassObjects);

} // namespace

int wmain(int argc, wchar_t** arguments) {
    return RunBenchmarks(argc, arguments, [] { benchmark::RunSpecifiedBenchmarks(); });
}
