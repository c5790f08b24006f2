#include "qplan/export/plan_dxf.h"
#include "qplan/export/plan_svg.h"
#include "qplan/files/plan_file.h"
#include "qplan/model/own_catalogue.h"
#include "support/allocation_counter.h"
#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/memory_file_system.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qplan;
using testing::HasSubstr;

Plan House() {
    const auto catalogue = std::make_shared<OwnCatalogue>();
    qsymbol::Symbol symbol;
    symbol.refX = 100;
    symbol.elements = {support::Poly({{0, 0}, {200, 0}, {200, 100}}, true, 255)};
    catalogue->Put(u"Tür & Tor", symbol);
    catalogue->Put(u"Herd", symbol);
    Plan plan;
    plan.SetSymbols(catalogue);
    return plan;
}

std::string Svg(const Plan& plan) {
    std::string bytes;
    ComposePlanSvg(plan, [&](std::string_view piece) { bytes += piece; });
    return bytes;
}

std::string Dxf(const Plan& plan) {
    std::string bytes;
    ComposePlanDxf(plan, qsymbol::DrawingUnit::Centimetre, [&](std::string_view piece) { bytes += piece; });
    return bytes;
}

std::size_t CountOf(std::string_view word, std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1))
        ++count;
    return count;
}

TEST(PlanExport, APictureHasItsPartsInTheirOrder) {
    Plan plan = House();
    DecodePlan(plan, "PLAN;Haus;5000;4000\nFLOOR;255;0;0;5000;4000\nWALL;0;0;100;0;20\nROOM;Küche;100;200\n"
                     "SYMBOL;Tür & Tor;1000;2000.5;90\nSYMBOL;Tür & Tor;-1;0;0\n");
    EXPECT_EQ(Svg(plan), R"svg(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="5000mm" height="4000mm" viewBox="0 0 5000 4000" overflow="visible">
<title>Haus</title>
<defs>
<g id="s0"><title>Tür &amp; Tor</title>
<path fill="#ff0000" stroke="#0b0000" stroke-width="0.2" d="M-1 0L1 0L1 1Z"/>
</g>
</defs>
<g fill="none" fill-rule="evenodd" stroke-linecap="round" stroke-linejoin="round" xmlns:xlink="http://www.w3.org/1999/xlink">
<path fill="#ff0000" d="M0 0L5000 0L5000 4000L0 4000Z"/>
<path fill="#4a4a4e" stroke="#4a4a4e" vector-effect="non-scaling-stroke" d="M0 10L100 10L100 -10L0 -10Z"/>
<use xlink:href="#s0" transform="translate(1000 2000.5) rotate(-90)"/>
<use xlink:href="#s0" transform="translate(-1 0)"/>
<text x="700" y="530" font-family="'Arial',sans-serif" font-size="340" font-weight="bold" xml:space="preserve" fill="#28282c">Haus</text>
<text x="100" y="276" font-family="'Arial',sans-serif" font-size="230" font-weight="bold" text-anchor="middle" xml:space="preserve" fill="#28282c">Küche</text>
</g>
</svg>
)svg");
}

TEST(PlanExport, WithoutASheetThePictureIsAroundItsSymbols) {
    Plan plan = House();
    EXPECT_THAT(Svg(plan), HasSubstr("viewBox=\"0 0 1 1\""));
    plan.Add(u"Herd", {{10000, 20000}, 0});
    plan.Add(u"Herd", {{20000, 20000}, 3.141592653589793});
    EXPECT_THAT(Svg(plan), HasSubstr("viewBox=\"98.9 198.9 102.2 2.2\""));
}

TEST(PlanExport, APictureHasOnlyWhatIsPlacedAndDraws) {
    Plan plan = House();
    const auto catalogue = std::make_shared<OwnCatalogue>();
    catalogue->Put(u"Leer", {});
    qsymbol::Symbol label;
    label.elements = {support::Text({0, 0}, u"WC")};
    label.elements[0].textBkMode = 2;
    catalogue->Put(u"Schild", label);
    plan.SetSymbols(catalogue);
    const std::int32_t gone = plan.Add(u"Schild", {});
    plan.Add(u"Leer", {{10000, 10000}, 0});
    EXPECT_THAT(Svg(plan), HasSubstr("<filter")) << "a text that hides what is below it";
    plan.RemoveById(gone);
    const std::string left = Svg(plan);
    EXPECT_EQ(CountOf("<title>Schild", left) + CountOf("<filter", left), 0U);
    EXPECT_EQ(CountOf("<title>Leer", left), 1U);
    EXPECT_THAT(left, HasSubstr("viewBox=\"0 0 1 1\"")) << "nothing is drawn";
}

TEST(PlanExport, ADrawingHasABlockForEachSymbolAndAnInsertForEachPlacement) {
    Plan plan = House();
    EXPECT_EQ(CountOf("EOF", Dxf(plan)), 1U);
    DecodePlan(plan, "PLAN;Haus;5000;4000\nFLOOR;255;0;0;5000;4000\nWALL;0;0;100;0;20\nROOM;Küche;100;200\n"
                     "SYMBOL;Tür & Tor;1000;2000.5;90\nSYMBOL;Herd;-1;0;0\nSYMBOL;Herd;0;0;0\n");
    const std::string drawing = Dxf(plan);
    EXPECT_EQ(CountOf("\r\nBLOCK\r\n", drawing), 4U) << "two of the layouts";
    EXPECT_EQ(CountOf("\r\nINSERT\r\n", drawing), 3U);
    EXPECT_EQ(
        CountOf("\r\n2\r\nT\xFCr & Tor\r\n10\r\n100.0\r\n20\r\n-200.05\r\n30\r\n0.0\r\n50\r\n90.0\r\n0\r\n",
                drawing),
        1U);
    const std::size_t entities = drawing.find("ENTITIES");
    std::size_t last = entities;
    for (const std::string_view part : {"BOEDEN", "WAENDE", "SYMBOLE", "RAEUME"}) {
        const std::size_t at = drawing.find(part, entities);
        EXPECT_LT(last, at) << part;
        last = at;
    }
    EXPECT_EQ(CountOf("$INSUNITS\r\n70\r\n5\r\n", drawing), 1U);
}

TEST(PlanExport, BothHandOnPiecesAndLeaveTheOldFile) {
    Plan plan = House();
    for (std::int32_t i = 0; i < 30000; ++i)
        plan.Add(u"Herd", {{i * 10, i}, i * 0.01});
    std::size_t largest = 0;
    std::size_t all = 0;
    const auto measure = [&](std::string_view piece) {
        largest = std::max(largest, piece.size());
        all += piece.size();
    };
    {
        const support::AllocationCounter counter;
        ComposePlanSvg(plan, measure);
        ComposePlanDxf(plan, qsymbol::DrawingUnit::Metre, measure);
        EXPECT_LT(counter.Peak(), 30000U * 100) << "of " << all;
    }
    EXPECT_LT(largest, 100000U);
    EXPECT_GT(all, 6000000U);

    support::MemoryFileSystem files;
    files.folders = {u"/d"};
    const std::map<std::u16string, std::string> before{{u"/d/p.dxf", "alt"}, {u"/d/p.svg", "alt"}};
    for (const int step : {0, 1, 5, 30}) {
        files.files = before;
        for (const bool isDrawing : {false, true}) {
            files.steps = 0;
            files.failingStep = step;
            EXPECT_NE(support::ErrorNumberOf([&] {
                          if (isDrawing)
                              WritePlanDxf(plan, qsymbol::DrawingUnit::Metre, files, u"/d/p.dxf");
                          else
                              WritePlanSvg(plan, files, u"/d/p.svg");
                      }),
                      0);
            EXPECT_EQ(files.files, before) << step;
        }
    }
    files.failingStep.reset();
    WritePlanSvg(plan, files, u"/d/p.svg");
    EXPECT_EQ(CountOf("</svg>", files.files[u"/d/p.svg"]), 1U);
}

} // namespace
