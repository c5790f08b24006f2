#include "automation/narrow_arguments.h"
#include "editor/editor.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

// The sample host's plan editor with 10,000 placed symbols, without its window: what the user waits for.

namespace {

constexpr SIZE kPicture{1112, 744};
constexpr int kSymbols = 10'000;

std::filesystem::path g_folder;

/// A plan on which 100 by 100 symbols of the catalogue stand, a metre and a half apart.
std::filesystem::path MakePlan(_CSymbolColl& catalogue) {
    LONG count = 0;
    Check(catalogue.get_Count(&count));
    const std::filesystem::path file = g_folder / L"zehntausend.plan";
    std::ofstream plan(file, std::ios::binary);
    plan << "PLAN;Zehntausend;152000;152000\n";
    std::vector<PlacedSymbol> symbols;
    for (int i = 0; i < kSymbols; ++i) {
        Ptr<_CSymbol> symbol;
        Check(catalogue.get_ItemByPos(i % count + 1, symbol.Put()));
        Bstr name;
        Check(symbol->get_Name(name.Put()));
        symbols.push_back({name.Text(), {(i % 100 + 1) * 150'000, (i / 100 + 1) * 150'000}, i * 7.0});
    }
    plan << SymbolLines(symbols);
    return file;
}

/// The editor as its window drives it; painting goes to a bitmap.
class Desk {
public:
    Desk() : editor(OpenCatalogue(g_folder)), screen_(kPicture.cx, kPicture.cy) {
        plan = MakePlan(editor.Document().Catalogue());
        editor.Resize(kPicture);
        Open();
        DrawAll();
    }
    void Open() {
        editor.Document().Open(plan);
        editor.Redraw();
    }
    void DrawAll() {
        while (editor.DrawOn()) {
        }
    }
    void Paint() { editor.Paint(screen_.Dc()); }

    Editor editor;
    std::filesystem::path plan;

private:
    Bitmap screen_;
};

Desk& TheDesk() {
    static auto* desk = new Desk; // beyond COM it could not be taken down
    return *desk;
}

void EditorOpens10000(benchmark::State& state) {
    for (auto _ : state)
        TheDesk().Open();
}

/// A notch of the wheel, seen.
void EditorZoomStep(benchmark::State& state) {
    Desk& desk = TheDesk();
    double notch = 1;
    for (auto _ : state) {
        desk.editor.Zoom({400, 300}, notch);
        desk.Paint();
        notch = -notch;
    }
}

void EditorPanStep(benchmark::State& state) {
    Desk& desk = TheDesk();
    desk.DrawAll();
    desk.editor.StartPanning({500, 300});
    int step = 10;
    for (auto _ : state) {
        desk.editor.MouseMove({500 + step, 300});
        desk.Paint();
        step = -step;
    }
    desk.editor.StopPanning();
}

/// The longest time that a drawing of what is missing keeps the user waiting.
void EditorDrawsATile(benchmark::State& state) {
    Desk& desk = TheDesk();
    for (auto _ : state) {
        if (!desk.editor.DrawOn()) {
            state.PauseTiming();
            desk.editor.Zoom({400, 300}, 1);
            desk.editor.Zoom({400, 300}, -1);
            state.ResumeTiming();
        }
    }
}

/// The mouse with a symbol that is being placed, snapping.
void EditorMoveWithTool(benchmark::State& state) {
    Desk& desk = TheDesk();
    desk.DrawAll();
    desk.editor.Place(L"Sessel");
    int x = 300;
    for (auto _ : state) {
        desk.editor.MouseMove({x, 300});
        desk.Paint();
        x = x == 300 ? 320 : 300;
    }
    desk.editor.Cancel();
}

void EditorMoveWithoutTool(benchmark::State& state) {
    Desk& desk = TheDesk();
    desk.DrawAll();
    int x = 300;
    for (auto _ : state) {
        desk.editor.MouseMove({x, 300});
        desk.Paint();
        x = x == 300 ? 320 : 300;
    }
}

/// What was below all others comes back: the library adds on top only, so all are placed again.
void EditorUndoesBelowAll(benchmark::State& state) {
    Editor& editor = TheDesk().editor;
    for (auto _ : state) {
        state.PauseTiming();
        editor.Document().Marks().Set({0});
        editor.Change([](PlanDocument& document) { document.RemoveMarked(); });
        state.ResumeTiming();
        editor.Change([](PlanDocument& document) { document.Undo(); });
    }
}

BENCHMARK(EditorOpens10000)->Unit(benchmark::kMillisecond);
BENCHMARK(EditorZoomStep)->Unit(benchmark::kMillisecond);
BENCHMARK(EditorPanStep)->Unit(benchmark::kMillisecond);
BENCHMARK(EditorDrawsATile)->Unit(benchmark::kMillisecond);
BENCHMARK(EditorMoveWithTool)->Unit(benchmark::kMillisecond);
BENCHMARK(EditorMoveWithoutTool)->Unit(benchmark::kMillisecond);
BENCHMARK(EditorUndoesBelowAll)->Unit(benchmark::kMillisecond);

} // namespace

int wmain(int count, wchar_t** values) {
    NarrowArguments arguments(count, values);
    benchmark::Initialize(&count, arguments.Data());
    if (count < 2) {
        std::puts("usage: editor_bench FOLDER_OF_TEXT_SYMBOLS");
        return 2;
    }
    const ComThread com;
    g_folder = std::filesystem::temp_directory_path() / L"planhost-bench";
    ConvertFolder(values[1], g_folder);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
