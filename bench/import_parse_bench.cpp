#include "bench/plan_symbols.h"
#include "bench/processor_time.h"
#include "qsymbol/files/symbol_format.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/text_writer.h"
#include "qsymbol/files/wsc_reader.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using qsymbol::ElementRecord;
using qsymbol::ElementType;

constexpr std::size_t kElements = 20000;

bench::World& TheWorld() {
    static bench::World world;
    return world;
}

/// A symbol without texts, for those the import format does not have.
const qsymbol::Symbol& Drawing() {
    static const qsymbol::Symbol symbol = [] {
        const qsymbol::Symbol plan = bench::PlanSymbol(kElements, 1);
        qsymbol::Symbol drawing = plan;
        drawing.elements.clear();
        for (const ElementRecord& element : plan.elements)
            if (element.type != ElementType::Text)
                drawing.elements.push_back(element);
        return drawing;
    }();
    return symbol;
}

/// Writes a drawing as the foreign program would; coordinates with or without two decimals.
class ImportText {
public:
    explicit ImportText(bool decimals) : form_(decimals ? " %d.25" : " %d") {}

    std::string Compose(const qsymbol::Symbol& symbol) {
        out_ = "BLT " + std::to_string(symbol.width) + " " + std::to_string(symbol.height) + " 0 0 0\r\n";
        for (const ElementRecord& element : symbol.elements)
            Put(element);
        return out_ + "END\r\n";
    }

private:
    void Put(const ElementRecord& element) {
        if (element.type != ElementType::Poly)
            PutRound(element);
        else if (element.lineClosed)
            PutArea(element);
        else
            PutChain(element);
    }
    void PutArea(const ElementRecord& element) {
        out_ += "FLA F=" + std::to_string(element.mainColor) + "\r\n";
        PutPoints("FLF", element.points, 0);
    }
    void PutChain(const ElementRecord& element) {
        PutKeys("STF", element);
        for (std::size_t i = 0; i < 3; ++i)
            Put(element.points[i]);
        out_ += "\r\n";
        PutPoints("SFF", element.points, 3);
    }
    void PutRound(const ElementRecord& element) {
        const bool arc = element.type == ElementType::Arc;
        PutKeys(arc ? "EBO" : "ELL", element);
        const qmath::Point centre = element.points[0];
        Put({centre.x - element.radius, centre.y - element.radius});
        Put({centre.x + element.radius, centre.y + element.radius});
        out_ += "\r\n";
        if (arc) {
            out_ += "EBF";
            Put(element.points[1]);
            Put(element.points[2]);
            out_ += "\r\n";
        }
    }
    void PutKeys(const char* keyword, const ElementRecord& element) {
        out_ += keyword;
        out_ += " F=" + std::to_string(element.mainColor) + " D=0." +
                std::to_string(element.lineWidth + 100).substr(1);
        out_ += " L=1 E=0 G=0";
    }
    void PutPoints(const char* keyword, const std::vector<qmath::Point>& points, std::size_t first) {
        for (std::size_t i = first; i < points.size(); ++i) {
            if ((i - first) % 3 == 0)
                out_ += keyword;
            Put(points[i]);
            if ((i - first) % 3 == 2 || i + 1 == points.size())
                out_ += "\r\n";
        }
    }
    void Put(qmath::Point point) {
        for (const int value : {point.x, point.y}) {
            char text[24];
            std::snprintf(text, sizeof text, form_, value);
            out_ += text;
        }
    }

    const char* form_;
    std::string out_;
};

const std::string& SymbolText() {
    static const std::string text = ComposeText(Drawing(), TheWorld().environment);
    return text;
}

const std::string& Import(bool decimals) {
    static const std::string whole = ImportText(false).Compose(Drawing());
    static const std::string fractions = ImportText(true).Compose(Drawing());
    return decimals ? fractions : whole;
}

using Parse = decltype(qsymbol::SymbolFormat::parse);

/// Processor seconds of one reading.
double Read(Parse parse, const std::string& bytes) {
    return bench::Seconds([&] {
        qsymbol::Symbol symbol;
        parse(symbol, bytes, TheWorld().environment);
        if (symbol.elements.size() != Drawing().elements.size())
            std::abort();
    });
}

/// The same drawing in both formats, in turn, so that whatever else the machine does meets both; seconds a
/// byte of the fastest rounds.
void ImportBesideText(benchmark::State& state) {
    const std::string& import = Import(state.range(0) != 0);
    double importSeconds = 1e9;
    double textSeconds = 1e9;
    for (auto _ : state) {
        importSeconds = std::min(importSeconds, Read(qsymbol::ParseWsc, import));
        textSeconds = std::min(textSeconds, Read(qsymbol::ParseText, SymbolText()));
    }
    state.counters["ours"] = importSeconds / static_cast<double>(import.size());
    state.counters["peer"] = textSeconds / static_cast<double>(SymbolText().size());
}
BENCHMARK(ImportBesideText)->ArgName("decimals")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->MinTime(2);

} // namespace
