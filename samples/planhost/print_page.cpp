#include "print_page.h"

#include "picture_box.h"
#include "plan_drawing.h"
#include "printer_surface.h"

#include <cmath>

Ptr<_CTrans> SheetTransformation(const Paper& paper, const PrintLayout& layout, int sheet) {
    const double scale = layout.reduction * kUnitsPerMillimetre / paper.dotsAcross;
    Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(scale));
    Check(transformation->SetOffsetX(std::lround(sheet % layout.columns * scale * paper.dots.cx)));
    Check(transformation->SetOffsetY(std::lround(sheet / layout.columns * scale * paper.dots.cy)));
    return transformation;
}

namespace {

template <class MakeSurface>
void DrawPage(HDC dc, const Paper& paper, const PrintLayout& layout, int sheet, const Plan& plan,
              const std::vector<Ptr<_CSymbol>>& symbols, const MakeSurface& makeSurface) {
    const Ptr<_CTrans> transformation = SheetTransformation(paper, layout, sheet);
    const Canvas canvas{dc, paper.dots, *transformation.Get()};
    DrawBelowSymbols(canvas, plan);
    {
        const auto surface = makeSurface(); // gives the device context back as it was
        DrawSymbolsOn(*surface.Get(), canvas, plan, symbols, {});
    }
    DrawAboveSymbols(canvas, plan);
}

} // namespace

void DrawSheetForPrinter(HDC printer, const Paper& paper, const PrintLayout& layout, int sheet,
                         const Plan& plan, const std::vector<Ptr<_CSymbol>>& symbols) {
    DrawPage(printer, paper, layout, sheet, plan, symbols,
             [&] { return PrinterSurface::Create(printer, paper.dots.cx, paper.dots.cy); });
}

void DrawSheetOnScreen(HDC dc, const Paper& paper, const PrintLayout& layout, int sheet, const Plan& plan,
                       const std::vector<Ptr<_CSymbol>>& symbols) {
    DrawPage(dc, paper, layout, sheet, plan, symbols,
             [&] { return PictureBox::Create(dc, paper.dots.cx, paper.dots.cy, L"PreviewPABox"); });
}
