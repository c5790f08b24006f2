#include "bitmap.h"
#include "print_page.h"
#include "printer_surface.h"
#include "test_catalogue.h"

#include <gtest/gtest.h>

namespace {

/// Without the map of the playing: dot for dot. What it is played on stands in for the paper.
int CALLBACK PlayRecord(HDC dc, HANDLETABLE* handles, const ENHMETARECORD* record, int count, LPARAM) {
    ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);
    PlayEnhMetaFileRecord(dc, handles, record, static_cast<UINT>(count));
    return 1;
}

Plan SmallRoom() {
    Plan plan;
    plan.title = L"Zimmer";
    plan.width = 8000;
    plan.height = 6000;
    plan.floors.push_back({RGB(250, 240, 220), {400, 400, 7600, 5600}});
    plan.walls.push_back({{400, 400}, {7600, 400}, 240});
    plan.symbols = {{L"Sofa", {300'000, 200'000}, 0}, {L"Maßstab", {500'000, 480'000}, 30}};
    return plan;
}

/// What a metafile draws, dot for dot.
template <class Draw>
void DrawThroughMetafile(Bitmap& picture, const Draw& draw) {
    const HDC recorder = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    draw(recorder);
    const HENHMETAFILE page = CloseEnhMetaFile(recorder);
    SetGraphicsMode(picture.Dc(), GM_ADVANCED);
    const RECT all{0, 0, picture.Width(), picture.Height()};
    EnumEnhMetaFile(picture.Dc(), page, PlayRecord, nullptr, &all);
    DeleteEnhMetaFile(page);
}

int DifferentBytes(const Bitmap& one, const Bitmap& other) {
    GdiFlush();
    int different = 0;
    for (int i = 0; i < one.Width() * 3 * one.Height(); ++i)
        different += one.Bits()[i] != other.Bits()[i];
    return different;
}

} // namespace

TEST(Printing, APageOfThePrinterIsThatOfTheScreen) {
    const Ptr<_CSymbolColl> catalogue = TestCatalogue();
    const Paper paper{{800, 600}, 10, 10}; // rows of bytes without padding
    for (const bool hasArcs : {false, true}) {
        Plan plan = SmallRoom();
        if (hasArcs)
            plan.symbols.push_back({L"Baum", {650'000, 300'000}, 0});
        const PlacedPlan placed(plan.symbols, *catalogue.Get());
        for (const double reduction : {0.0, 50.0, 100.0}) {
            const PrintLayout layout = LayOutPrint(plan, paper, reduction);
            for (int sheet = 0; sheet < layout.Sheets(); ++sheet) {
                const auto show = [&](HDC dc) { DrawSheetOnScreen(dc, paper, layout, sheet, plan, placed); };
                const Bitmap blank(paper.dots.cx, paper.dots.cy);
                Bitmap screen(paper.dots.cx, paper.dots.cy), printed(paper.dots.cx, paper.dots.cy);
                // Wine's metafiles have ideas of their own about arcs: with them, both go through one.
                if (hasArcs)
                    DrawThroughMetafile(screen, show);
                else
                    show(screen.Dc());
                DrawThroughMetafile(printed, [&](HDC printer) {
                    DrawSheetForPrinter(printer, paper, layout, sheet, plan, placed);
                });
                EXPECT_EQ(DifferentBytes(screen, printed), 0)
                    << reduction << ", sheet " << sheet << (hasArcs ? ", with arcs" : "");
                EXPECT_NE(DifferentBytes(screen, blank), 0);
            }
        }
    }
}

TEST(Printing, TakesAsManySheetsAsTheScaleAsksFor) {
    const Plan plan = SmallRoom();
    const Paper paper{{1000, 500}, 10, 10};             // 100 by 50 mm
    EXPECT_EQ(LayOutPrint(plan, paper, 50).columns, 2); // 160 mm
    EXPECT_EQ(LayOutPrint(plan, paper, 50).rows, 3);    // 120 mm
    EXPECT_EQ(LayOutPrint(plan, paper, 80).columns, 1); // exactly
    EXPECT_DOUBLE_EQ(LayOutPrint(plan, paper, 0).reduction, 120);
    EXPECT_EQ(LayOutPrint(plan, paper, 0).Sheets(), 1);
}

TEST(Printing, ThePrinterIsASurfaceOfItsOwnType) {
    const Bitmap page(10, 10);
    const Ptr<PrinterSurface> surface = PrinterSurface::Create(page.Dc(), 10, 10);
    Ptr<ITypeInfo> type;
    ASSERT_EQ(surface->GetTypeInfo(0, 0, type.Put()), S_OK);
    Bstr name;
    ASSERT_EQ(type->GetDocumentation(MEMBERID_NIL, name.Put(), nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(name.Text(), L"Printer");
}
