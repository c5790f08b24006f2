#include "bench/plan_symbols.h"
#include "bench/processor_time.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/text_writer.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>

#ifdef QSYMBOL_WITH_DIME
#include <dime/Input.h>
#include <dime/Model.h>

#include <cstdio>
#include <fstream>
#endif

namespace {

constexpr std::size_t kElements = 20000;

bench::World& TheWorld() {
    static bench::World world;
    return world;
}

const std::string& SymbolText() {
    static const std::string text = ComposeText(bench::PlanSymbol(kElements, 1), TheWorld().environment);
    return text;
}

void ParseOnce() {
    qsymbol::Symbol symbol;
    ParseText(symbol, SymbolText(), TheWorld().environment);
    benchmark::DoNotOptimize(symbol.elements.data());
}

void ParseTextSymbol(benchmark::State& state) {
    SymbolText();
    for (auto _ : state)
        ParseOnce();
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * SymbolText().size()));
}
BENCHMARK(ParseTextSymbol)->Unit(benchmark::kMillisecond);

#ifdef QSYMBOL_WITH_DIME

/// Group code and value lines of a DXF file.
class Dxf {
public:
    void Tag(int code, const std::string& value) { out_ += std::to_string(code) + "\n" + value + "\n"; }
    void Tag(int code, double value) {
        char text[40];
        std::snprintf(text, sizeof text, "%.2f", value);
        Tag(code, text);
    }
    void At(const qmath::Point& point) {
        Tag(10, point.x / 100.0);
        Tag(20, point.y / 100.0);
        Tag(30, 0.0);
    }
    void Entity(const qsymbol::ElementRecord& element);

    std::string Text() const { return "0\nSECTION\n2\nENTITIES\n" + out_ + "0\nENDSEC\n0\nEOF\n"; }

private:
    std::string out_;
};

void Dxf::Entity(const qsymbol::ElementRecord& element) {
    switch (element.type) {
    case qsymbol::ElementType::Poly:
        Tag(0, "POLYLINE");
        Tag(8, "0");
        Tag(66, "1");
        Tag(70, element.lineClosed ? "1" : "0");
        for (const qmath::Point& point : element.points) {
            Tag(0, "VERTEX");
            Tag(8, "0");
            At(point);
        }
        Tag(0, "SEQEND");
        Tag(8, "0");
        return;
    case qsymbol::ElementType::Text:
        Tag(0, "TEXT");
        Tag(8, "0");
        At(element.points[0]);
        Tag(40, 6.0);
        Tag(1, "Kueche");
        return;
    default:
        Tag(0, element.type == qsymbol::ElementType::Arc ? "ARC" : "CIRCLE");
        Tag(8, "0");
        At(element.points[0]);
        Tag(40, element.radius / 100.0);
        if (element.type == qsymbol::ElementType::Arc) {
            Tag(50, 10.0);
            Tag(51, 200.0);
        }
    }
}

/// The same elements as a DXF file, for it reads from a file only; the system keeps that in its cache.
struct DxfFile {
    std::string path = QSYMBOL_BENCH_FOLDER "/text_parse_bench.dxf";
    std::size_t size;

    DxfFile() {
        Dxf dxf;
        for (const qsymbol::ElementRecord& element : bench::PlanSymbol(kElements, 1).elements)
            dxf.Entity(element);
        const std::string text = dxf.Text();
        size = text.size();
        std::ofstream(path, std::ios::binary) << text;
    }
    ~DxfFile() { std::remove(path.c_str()); }
};

const DxfFile& TheDxf() {
    static const DxfFile file;
    return file;
}

bool ReadDxfOnce() {
    dimeInput input;
    dimeModel model;
    return input.setFile(TheDxf().path.c_str()) && model.read(&input) &&
           model.countRecords() > static_cast<int>(kElements);
}

void DimeReadsDxf(benchmark::State& state) {
    TheDxf();
    for (auto _ : state)
        if (!ReadDxfOnce())
            state.SkipWithError("the DXF file did not read");
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * TheDxf().size));
}
BENCHMARK(DimeReadsDxf)->Unit(benchmark::kMillisecond);

/// Both in turn, so that whatever else the machine does meets both; the ratio is that of the fastest rounds.
void TextSymbolBesideDime(benchmark::State& state) {
    SymbolText();
    TheDxf();
    double ours = 1e9;
    double dime = 1e9;
    for (auto _ : state) {
        ours = std::min(ours, bench::Seconds(ParseOnce));
        dime = std::min(dime, bench::Seconds([] { ReadDxfOnce(); }));
    }
    const double ourSpeed = static_cast<double>(SymbolText().size()) / ours / 1e6;
    const double dimeSpeed = static_cast<double>(TheDxf().size) / dime / 1e6;
    state.counters["ours_MB_s"] = ourSpeed;
    state.counters["dime_MB_s"] = dimeSpeed;
    state.counters["ratio"] = ourSpeed / dimeSpeed;
}
BENCHMARK(TextSymbolBesideDime)->Unit(benchmark::kMillisecond)->MinTime(2);

#endif

} // namespace
