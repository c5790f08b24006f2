// Writing a plan of 100,000 mixed entities as DXF to a file, against dxflib with the same entities.

#include "platform/posix/posix_file_system.h"
#include "platform/posix/windows_1252.h"
#include "qmath/math_util.h"
#include "qsymbol/export/arc_geometry.h"
#include "qsymbol/export/colour_table.h"
#include "qsymbol/export/dxf_export.h"

#ifdef QSYMBOL_WITH_DXFLIB
#include <dxflib/dl_dxf.h>
#endif

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;
using qsymbol::SymbolPosition;

constexpr int kEntities = 100000;
constexpr int kElementsOfSymbol = 20; ///< as the sample catalogue has them
constexpr std::int32_t kMirror = 1500000;
const char* const kPath = QSYMBOL_BENCH_FOLDER "/dxf_bench.tmp.dxf";

/// Polylines of 2 to 16 points, half of them closed, circles, arcs and texts.
ElementRecord RandomElement(std::mt19937& random) {
    const auto any = [&](std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution(low, high)(random);
    };
    ElementRecord element;
    element.mainColor = qsymbol::ColourOfNumber(any(1, 255), qsymbol::ColourUse::Plan);
    element.points.push_back({any(0, 200000), any(0, 200000)});
    const int kind = any(0, 9);
    if (kind < 6) {
        element.type = ElementType::Poly;
        element.lineClosed = kind < 3;
        for (int more = any(1, 15); more > 0; --more)
            element.points.push_back({any(0, 200000), any(0, 200000)});
    } else if (kind < 9) {
        element.type = kind == 6 ? ElementType::Circle : ElementType::Arc;
        element.radius = any(100, 50000);
        const auto onCircle = [&] {
            const double angle = any(0, 6283) / 1000.0;
            return qmath::Point{
                element.points[0].x + static_cast<std::int32_t>(element.radius * std::cos(angle)),
                element.points[0].y - static_cast<std::int32_t>(element.radius * std::sin(angle))};
        };
        if (element.type == ElementType::Arc)
            element.points.insert(element.points.end(), {onCircle(), onCircle()});
    } else {
        element.type = ElementType::Text;
        element.text = u"K\u00FCche 12,5 m\u00B2";
        element.font.emplace().size = any(6, 12);
    }
    return element;
}

struct PlacedSymbol {
    Symbol symbol;
    SymbolPosition position;
};

const std::vector<PlacedSymbol>& Plan() {
    static const std::vector<PlacedSymbol> plan = [] {
        std::mt19937 random(5);
        std::uniform_int_distribution<std::int32_t> coordinate(0, kMirror);
        std::uniform_real_distribution angle(0.0, 2 * qmath::kPi);
        std::vector<PlacedSymbol> placed(kEntities / kElementsOfSymbol);
        for (auto& [symbol, position] : placed) {
            symbol.etagenbreite = kMirror;
            symbol.refX = symbol.refY = 100000;
            for (int i = 0; i < kElementsOfSymbol; ++i)
                symbol.elements.push_back(RandomElement(random));
            position = {.at = {coordinate(random), coordinate(random)}, .angle = angle(random)};
        }
        return placed;
    }();
    return plan;
}

void Finish(benchmark::State& state) {
    if (std::FILE* file = std::fopen(kPath, "rb")) {
        std::fseek(file, 0, SEEK_END);
        state.counters["MB"] = static_cast<double>(std::ftell(file)) / 1e6;
        std::fclose(file);
    }
    std::remove(kPath);
    state.SetItemsProcessed(state.iterations() * kEntities);
}

/// As a host does it: its own head and end around one export for each placed symbol.
void WriteWithQSymbol(benchmark::State& state) {
    platform::PosixFileSystem files;
    const platform::Windows1252 codePage;
    const std::u16string path(kPath, kPath + std::char_traits<char>::length(kPath));
    const auto put = [&](base::OpenMode mode, std::string_view bytes) {
        const auto file = files.Open(path, mode);
        file->Write(bytes.data(), bytes.size());
        file->Close();
    };
    const auto& plan = Plan();
    for (auto _ : state) {
        put(base::OpenMode::Replace, "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n");
        for (const PlacedSymbol& placed : plan)
            if (qsymbol::AppendToDxfFile(placed.symbol, placed.position, 0, path, files, codePage) != nullptr)
                state.SkipWithError("a symbol without elements");
        put(base::OpenMode::Append, "  0\r\nENDSEC\r\n  0\r\nEOF\r\n");
    }
    Finish(state);
}
BENCHMARK(WriteWithQSymbol)->Unit(benchmark::kMillisecond)->UseRealTime();

#ifdef QSYMBOL_WITH_DXFLIB

constexpr double kUnit = 100000;

class DxflibPlan {
public:
    explicit DxflibPlan(DL_WriterA& writer) : writer_(writer) {}

    void Write(const PlacedSymbol& placed) {
        const qsymbol::Placement placement({placed.symbol.refX, placed.symbol.refY}, placed.position, 1);
        for (const ElementRecord& element : placed.symbol.elements)
            Write(element, placement);
    }

private:
    void Write(const ElementRecord& element, const qsymbol::Placement& placement) {
        const DL_Attributes attributes("SYMBOLE", qsymbol::NumberOfColour(element.mainColor), -1,
                                       "CONTINUOUS", 1.0);
        switch (element.type) {
        case ElementType::Poly: {
            const int count = static_cast<int>(element.points.size());
            dxf_.writePolyline(writer_, DL_PolylineData(count, 0, 0, element.lineClosed ? 1 : 0), attributes);
            for (const qmath::Point& point : element.points) {
                const qmath::Point at = placement.Map(point);
                dxf_.writeVertex(writer_, DL_VertexData(at.x / kUnit, (kMirror - at.y) / kUnit));
            }
            dxf_.writePolylineEnd(writer_);
            break;
        }
        case ElementType::Circle:
        case ElementType::Arc: {
            const auto arc = qsymbol::PlacedArc(element, placement);
            const DL_ArcData data(arc->centre.x / kUnit, (kMirror - arc->centre.y) / kUnit, 0,
                                  arc->radius / kUnit, arc->startDegrees, arc->endDegrees);
            dxf_.writeArc(writer_, data, attributes);
            break;
        }
        default: {
            const qmath::Point at = placement.Map(element.points[0]);
            const double x = at.x / kUnit;
            const double y = (kMirror - at.y) / kUnit;
            const DL_TextData data(x, y, 0, x, y, 0, element.font->size / 30, 1, 0, 0, 0,
                                   "K\xFC"
                                   "che 12,5 m\xB2",
                                   "STANDARD", placement.Angle());
            dxf_.writeText(writer_, data, attributes);
            break;
        }
        }
    }

    DL_WriterA& writer_;
    DL_Dxf dxf_;
};

void WriteWithDxflib(benchmark::State& state) {
    const auto& plan = Plan();
    for (auto _ : state) {
        DL_Dxf dxf;
        const std::unique_ptr<DL_WriterA> writer(dxf.out(kPath, DL_Codes::AC1009));
        writer->sectionEntities();
        DxflibPlan output(*writer);
        for (const PlacedSymbol& placed : plan)
            output.Write(placed);
        writer->sectionEnd();
        writer->dxfEOF();
        writer->close();
    }
    Finish(state);
}
BENCHMARK(WriteWithDxflib)->Unit(benchmark::kMillisecond)->UseRealTime();

#endif

} // namespace
