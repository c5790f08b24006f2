// Finds placed symbols with the symbol library alone: each is asked, the topmost first.

#include "plan_symbols.h"
#include "sample.h"

#include <QMath.h>

namespace {

Ptr<_CRect> MakeRect(const RECT& pixels) {
    Ptr<_CRect> rect = Create<_CRect>(__uuidof(CRect));
    Check(rect->put_Left(pixels.left));
    Check(rect->put_Top(pixels.top));
    Check(rect->put_Right(pixels.right));
    Check(rect->put_Bottom(pixels.bottom));
    return rect;
}

/// A symbol is hit by its outline box, turned and placed as it was drawn. The library scales the box by the screen factor of
/// the last drawing; before the first one that is none.
bool IsHit(const PlacedSymbol& placed, _CSymbol& symbol, _CTrans& transformation, const RECT& pixels,
           bool isPoint) {
    VARIANT_BOOL isHit = VARIANT_FALSE;
    if (isPoint)
        Check(symbol.ObjIdentByPt(placed.at.x, placed.at.y, Radians(placed), &transformation, pixels.left,
                                  pixels.top, &isHit));
    else
        Check(symbol.ObjIdentByRect(placed.at.x, placed.at.y, Radians(placed), &transformation,
                                    MakeRect(pixels).Get(), &isHit));
    return isHit != VARIANT_FALSE;
}

void Hit(const Arguments& arguments) {
    const Plan plan = ReadPlan(arguments[1]);
    const Ptr<_CSymbolColl> catalogue = OpenCatalogue(arguments[0]);
    const std::vector<Ptr<_CSymbol>> symbols = FindSymbols(plan, *catalogue.Get());
    const Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(static_cast<double>(plan.width) * kUnitsPerMillimetre /
                                   std::stoi(arguments[2])));
    const bool isPoint = arguments.size() < 7;
    const LONG left = std::stoi(arguments[3]);
    const LONG top = std::stoi(arguments[4]);
    const RECT pixels{left, top, isPoint ? left : std::stoi(arguments[5]),
                      isPoint ? top : std::stoi(arguments[6])};
    // What is drawn last lies on top.
    for (std::size_t i = symbols.size(); i-- > 0;) {
        if (!IsHit(plan.symbols[i], *symbols[i].Get(), *transformation.Get(), pixels, isPoint))
            continue;
        PrintLine(plan.symbols[i].name);
        if (isPoint)
            break;
    }
}

} // namespace

int wmain(int count, wchar_t** values) {
    return RunSample(count, values, 5, L"hit KATALOGORDNER PLANDATEI BILDBREITE X Y [X2 Y2]", Hit);
}
