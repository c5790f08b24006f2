#include "automation/bare_list.h"
#include "automation/idle_owner.h"
#include "automation/new_object.h"
#include "automation/run_benchmarks.h"
#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/error_info.h"

#include <QSymbol.h>
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

// The selection dialog over a catalogue of 10,000 symbols, beside a dialog that has nothing but a list box
// with the same names. Both are measured until everything is painted and the program waits for the user.

namespace {

constexpr int kSymbols = 10000;

std::vector<std::u16string> g_names;
com::ComPtr<_CSymbolColl> g_catalogue;

com::ComPtr<_CSymElementColl> Outline() {
    const auto points = New<CPtList, _CPtList>();
    for (const POINT corner : {POINT{0, 0}, {2000, 0}, {2000, 1000}, {0, 1000}, {500, 250}, {1500, 750}}) {
        auto point = New<CPt, _CPt>();
        com::Check(point->put_X(corner.x));
        com::Check(point->put_Y(corner.y));
        com::Check(points->AddPoint(point.Get()));
    }
    auto element = New<CSymElement, _CSymElement>();
    com::Check(element->put_ElementType(symPoly));
    com::Check(element->put_LineClosed(VARIANT_TRUE));
    com::Check(element->put_FillColor(RGB(222, 184, 135)));
    com::Check(element->putref_PtList(points.Get()));
    const auto elements = New<CSymElementColl, _CSymElementColl>();
    _CSymElement* handedOver = element.Detach();
    com::Check(elements->AppendRef(&handedOver));
    return elements;
}

void FillCatalogue() {
    g_catalogue = New<CSymbolColl, _CSymbolColl>();
    const com::ComPtr<_CSymElementColl> outline = Outline();
    for (int i = 0; i < kSymbols; ++i) {
        const std::string number = std::to_string(i);
        const std::u16string name = u"Symbol " + std::u16string(number.begin(), number.end());
        auto symbol = New<CSymbol, _CSymbol>();
        com::Check(symbol->put_FilePath(com::Bstr(u"C:\\Katalog\\" + name + u".syb").Get()));
        com::Check(symbol->CreateNew(0, 0, 2000, 1000, outline.Get()));
        _CSymbol* handedOver = symbol.Detach();
        com::Check(g_catalogue->AppendRef(&handedOver));
        g_names.push_back(name);
    }
}

void ShowSelectionDialog() {
    const com::Bstr old(u"Symbol 5000+");
    com::Bstr chosen;
    com::Check(g_catalogue->SelectSymNameDlg(old.Get(), chosen.Put()));
}

void ShowBareList() {
    ShowListOf(g_names);
}

void Cancel(HWND dialog) {
    SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

void Open(benchmark::State& state, void (*show)()) {
    for (auto _ : state) {
        const IdleOwner owner(Cancel);
        show();
    }
}

/// Goes down the list by the keyboard; each step ends when all is painted.
void Move(benchmark::State& state, void (*show)()) {
    const IdleOwner owner([&](HWND dialog) {
        const HWND list = GetFocus();
        for (auto _ : state) {
            SendMessageW(list, WM_KEYDOWN, VK_DOWN, 1);
            RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        }
        Cancel(dialog);
    });
    show();
}

void OpenSelectionDialog(benchmark::State& state) {
    Open(state, ShowSelectionDialog);
}
void OpenBareList(benchmark::State& state) {
    Open(state, ShowBareList);
}
void MoveInSelectionDialog(benchmark::State& state) {
    Move(state, ShowSelectionDialog);
}
void MoveInBareList(benchmark::State& state) {
    Move(state, ShowBareList);
}

BENCHMARK(OpenSelectionDialog)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenBareList)->Unit(benchmark::kMillisecond);
BENCHMARK(MoveInSelectionDialog)->Unit(benchmark::kMillisecond)->Iterations(3000);
BENCHMARK(MoveInBareList)->Unit(benchmark::kMillisecond)->Iterations(3000);

} // namespace

int wmain(int argc, wchar_t** arguments) {
    return RunBenchmarks(argc, arguments, [] {
        FillCatalogue();
        benchmark::RunSpecifiedBenchmarks();
        g_catalogue.Reset();
    });
}
