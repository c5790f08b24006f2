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

/// The page is lost anyhow.
void TellWhatFails(IDispatch& surface, _CTrans& transformation, const Plan& plan, const PlacedPlan& placed) {
    placed.ForEach([&](std::size_t place, _CSymbol& symbol, POINT at, double radians) {
        Check(symbol.Draw(at.x, at.y, radians, &surface, &transformation, 1.0, 1.0, nullptr),
              Describe(plan.symbols[place]));
    });
}

template <class MakeSurface>
void DrawPage(HDC dc, const Paper& paper, const PrintLayout& layout, int sheet, const Plan& plan,
              const PlacedPlan& placed, const MakeSurface& makeSurface) {
    const Ptr<_CTrans> transformation = SheetTransformation(paper, layout, sheet);
    const Canvas canvas{dc, paper.dots, *transformation.Get()};
    DrawBelowSymbols(canvas, plan);
    {
        const auto surface = makeSurface(); // gives the device context back as it was
        const HRESULT status = placed.Draw(*surface.Get(), *transformation.Get());
        if (FAILED(status))
            TellWhatFails(*surface.Get(), *transformation.Get(), plan, placed);
        Check(status);
    }
    DrawAboveSymbols(canvas, plan);
}

} // namespace

void DrawSheetForPrinter(HDC printer, const Paper& paper, const PrintLayout& layout, int sheet,
                         const Plan& plan, const PlacedPlan& placed) {
    DrawPage(printer, paper, layout, sheet, plan, placed,
             [&] { return PrinterSurface::Create(printer, paper.dots.cx, paper.dots.cy); });
}

void DrawSheetOnScreen(HDC dc, const Paper& paper, const PrintLayout& layout, int sheet, const Plan& plan,
                       const PlacedPlan& placed) {
    DrawPage(dc, paper, layout, sheet, plan, placed,
             [&] { return PictureBox::Create(dc, paper.dots.cx, paper.dots.cy, L"PreviewPABox"); });
}
