#include "platform/posix/fixed_regional_settings.h"
#include "platform/posix/windows_1252.h"
#include "qsymbol/draw/bounds.h"
#include "qsymbol/draw/hit_test.h"
#include "qsymbol/draw/snapping.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/export/dxf_export.h"
#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/text_writer.h"
#include "support/memory_file_system.h"
#include "support/recording_surface.h"
#include "support/sample_symbols.h"
#include "support/scaled_transformation.h"
#include "support/string_table.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <latch>
#include <string>
#include <thread>
#include <vector>

// Eight threads of a host, each with objects of its own: thread_stress [SECONDS], 2 without. Built under
// ThreadSanitizer, which sees an access to something common even when nothing comes of it.

namespace {

constexpr int kThreads = 8;

/// Everything that a host does with a symbol, in an angle and a size of this number's own; the results as text.
std::string Work(int number) {
    support::MemoryFileSystem files;
    const platform::Windows1252 codePage;
    const base::RegionalSettings regional = platform::GermanSettings();
    const support::StringTable strings;
    const qsymbol::FormatRules rules{codePage, regional, strings};

    std::string results;
    qsymbol::Symbol read;
    qsymbol::ParseText(read, qsymbol::ComposeText(support::WashRoom(), rules), rules);
    qsymbol::Symbol symbol;
    qsymbol::ParseBinary(symbol, qsymbol::ComposeBinary(read, rules), rules);

    const qsymbol::SymbolPosition place{.at = {1000 * number, 2000}, .angle = number * 0.7};
    const auto transformation = support::ScaledTransformation(1 + number);
    const double factor = 1 + number / 4.0;
    support::RecordingSurface surface;
    qsymbol::DrawSymbol(symbol, place, surface, transformation, {.printer = factor, .screen = factor}, -1);
    for (const std::string& call : surface.calls)
        results += call + '\n';

    const qmath::Rect bounds = qsymbol::GetBoundingRect(symbol, place, factor);
    for (const std::int32_t side : {bounds.left, bounds.top, bounds.right, bounds.bottom})
        results += std::to_string(side) + ' ';
    qmath::Point centre = place.at;
    transformation.WorldToScreen(centre);
    results += qsymbol::ObjIdentByPt(symbol, place, factor, transformation, centre) ? "hit" : "missed";
    const auto caught = qsymbol::CatchPt(symbol, place, factor, transformation, static_cast<float>(centre.x),
                                         static_cast<float>(centre.y), 9999);
    results += caught ? std::to_string(caught->world.x) : "nothing";

    files.folders.insert(u"plan");
    const auto open = qsymbol::AppendToDxfFile(symbol, place, factor, u"plan/a.dxf", files, codePage);
    return results + files.files[u"plan/a.dxf"];
}

/// Symbols of one file that all threads have in common and that nobody has looked at.
std::vector<qsymbol::Symbol> CommonSymbols(const qsymbol::FormatRules& rules) {
    qsymbol::Symbol symbol;
    qsymbol::ParseBinary(symbol, qsymbol::ComposeBinary(support::WashRoom(), rules), rules);
    return std::vector<qsymbol::Symbol>(500, symbol);
}

/// Looks at each of them, copies it, asks for its extent.
bool AllWhole(const std::vector<qsymbol::Symbol>& common) {
    const qsymbol::ElementList expected = support::WashRoom().elements;
    return std::all_of(common.begin(), common.end(), [&](const qsymbol::Symbol& symbol) {
        const qsymbol::ElementList copy = symbol.elements;
        return copy.size() == expected.size() && symbol.elements[0].points == expected[0].points &&
               symbol.elements.Extent().drawn.left <= copy.Extent().drawn.right;
    });
}

} // namespace

int main(int argc, char** argv) {
    const std::chrono::duration<double> duration(argc > 1 ? std::atof(argv[1]) : 2);
    const auto end = std::chrono::steady_clock::now() + duration;
    std::atomic<int> strays = 0;
    std::latch start(kThreads);
    const platform::Windows1252 codePage;
    const base::RegionalSettings regional = platform::GermanSettings();
    const support::StringTable strings;
    const std::vector<qsymbol::Symbol> common = CommonSymbols({codePage, regional, strings});
    std::vector<std::string> first(kThreads);
    std::vector<std::thread> threads;
    for (int number = 0; number < kThreads; ++number) {
        threads.emplace_back([&, number] {
            start.arrive_and_wait();
            strays += AllWhole(common) ? 0 : 1;
            first[static_cast<std::size_t>(number)] = Work(number);
            while (std::chrono::steady_clock::now() < end)
                strays += Work(number) != first[static_cast<std::size_t>(number)] ? 1 : 0;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (int number = 0; number < kThreads; ++number)
        strays += Work(number) != first[static_cast<std::size_t>(number)] ? 1 : 0;
    std::printf("%d results of another thread\n%d passed, %d failed, 0 skipped\n", strays.load(),
                strays == 0 ? 1 : 0, strays == 0 ? 0 : 1);
    return strays == 0 ? 0 : 1;
}
