#include "automation/narrow_arguments.h"
#include "editor/palette.h"
#include "text.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

// The palette of the sample host's editor over 10,000 symbols. A step ends when everything is painted.

namespace {

namespace fs = std::filesystem;

constexpr int kSymbols = 10000;
constexpr LONG kMostElements = 40; // of a symbol: ten thousand large ones would measure the memory
constexpr int kCategories = 20;

struct Model {
    std::wstring name;
    LONG refX, refY, width, height;
    Ptr<_CSymElementColl> elements;
};

/// The sample symbols that are not too large.
std::vector<Model> Models(const fs::path& folder) {
    std::vector<Model> models;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != L".syt")
            continue;
        const Ptr<_CSymbol> symbol = Create<_CSymbol>(__uuidof(CSymbol));
        Check(symbol->put_FilePath(Bstr(entry.path().wstring()).Get()));
        Check(symbol->ReadFromFile());
        Model model{entry.path().stem().wstring(), 0, 0, 0, 0, {}};
        Check(symbol->get_RefX(&model.refX));
        Check(symbol->get_RefY(&model.refY));
        Check(symbol->get_Width(&model.width));
        Check(symbol->get_Height(&model.height));
        Check(symbol->GetSymElements(model.elements.Put()));
        LONG count = 0;
        Check(model.elements->get_Count(&count));
        if (count <= kMostElements)
            models.push_back(std::move(model));
    }
    return models;
}

Ptr<_CSymbolColl> LargeCatalogue(const fs::path& samples) {
    const std::vector<Model> models = Models(samples);
    Ptr<_CSymbolColl> catalogue = Create<_CSymbolColl>(__uuidof(CSymbolColl));
    for (int i = 0; i < kSymbols; ++i) {
        const Model& model = models[static_cast<std::size_t>(i) % models.size()];
        Ptr<_CSymbol> symbol = Create<_CSymbol>(__uuidof(CSymbol));
        const std::wstring file = L"C:\\Katalog\\Kategorie " + std::to_wstring(i % kCategories) + L"\\" +
                                  model.name + L" " + std::to_wstring(i) + L".syb";
        Check(symbol->put_FilePath(Bstr(file).Get()));
        Check(symbol->CreateNew(model.refX, model.refY, model.width, model.height, model.elements.Get()));
        Check(catalogue->AppendRef(symbol.Put()));
    }
    return catalogue;
}

class Host final : public PaletteHost {
public:
    explicit Host(const fs::path& samples) : catalogue_(LargeCatalogue(samples)) {}

    _CSymbolColl& Catalogue() override { return *catalogue_.Get(); }
    const fs::path& CatalogueFolder() const override { return folder_; }
    Settings& Remembered() override { return settings_; }
    void BeginPlacing(const std::wstring&) override {}
    void BeginDragging(const std::wstring&) override {}
    void ReloadCatalogue() override {}
    void FocusPlan() override {}

private:
    Ptr<_CSymbolColl> catalogue_;
    fs::path folder_ = L"C:\\Katalog";
    Settings settings_{fs::temp_directory_path() / L"palette_bench.ini"};
};

Host* g_host = nullptr;

/// A window with the palette in it, as large as in an editor.
class Shown {
public:
    Shown()
        : owner_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 248, 760, nullptr, nullptr,
                                 nullptr, nullptr)),
          palette_(MakePalette(owner_, *g_host)) {
        MoveWindow(palette_->Window(), 0, 0, 248, 760, TRUE);
        Paint();
    }
    ~Shown() {
        palette_.reset();
        DestroyWindow(owner_);
    }
    Shown(const Shown&) = delete;

    HWND Part(const wchar_t* kind) const { return FindWindowExW(palette_->Window(), nullptr, kind, nullptr); }
    void Paint() const {
        RedrawWindow(owner_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }

private:
    HWND owner_;
    std::unique_ptr<PaletteStrip> palette_;
};

void OpenPalette(benchmark::State& state) {
    for (auto _ : state)
        const Shown shown;
}

void FilterStep(benchmark::State& state) {
    const Shown shown;
    const HWND filter = shown.Part(L"Edit");
    const wchar_t* const typed[] = {L"t", L"tü",  L"tür",     L"tur l",       L"tur l 1",
                                    L"",  L"stu", L"stuhl 5", L"kategorie 7", L""};
    std::size_t step = 0;
    for (auto _ : state) {
        SetWindowTextW(filter, typed[step++ % std::size(typed)]);
        shown.Paint();
    }
}

void ScrollStep(benchmark::State& state) {
    const Shown shown;
    const HWND list = shown.Part(L"PlanhostPaletteList");
    for (auto _ : state) {
        SendMessageW(list, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        shown.Paint();
    }
}

/// Nothing that is seen was seen before.
void PageStep(benchmark::State& state) {
    const Shown shown;
    const HWND list = shown.Part(L"PlanhostPaletteList");
    for (auto _ : state) {
        SendMessageW(list, WM_VSCROLL, SB_PAGEDOWN, 0);
        shown.Paint();
    }
}

BENCHMARK(OpenPalette)->Unit(benchmark::kMillisecond);
BENCHMARK(FilterStep)->Unit(benchmark::kMillisecond)->Iterations(200);
BENCHMARK(ScrollStep)->Unit(benchmark::kMillisecond)->Iterations(600);
BENCHMARK(PageStep)->Unit(benchmark::kMillisecond)->Iterations(200);

} // namespace

int wmain(int argc, wchar_t** wideArguments) {
    NarrowArguments arguments(argc, wideArguments);
    benchmark::Initialize(&argc, arguments.Data());
    try {
        const ComThread com;
        Host host(wideArguments[1]);
        g_host = &host;
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    } catch (const Failure& failure) {
        std::printf("%s\n", ToUtf8(failure.message).c_str());
        return 1;
    }
}
