#include "plan_picture.h"

#include "bitmap.h"
#include "plan_drawing.h"
#include "plan_symbols.h"
#include "text.h"

#include <cmath>

namespace {

constexpr int kLargestPixelHeight = 20000;

/// The sheet as a picture, and the map that the libraries and the host share.
struct Sheet {
    Bitmap bitmap;
    Ptr<_CTrans> transformation;

    Canvas OnBitmap() const {
        return {bitmap.Dc(), {bitmap.Width(), bitmap.Height()}, *transformation.Get()};
    }
};

Sheet MakeSheet(const Plan& plan, int pixelWidth) {
    const double unitsPerPixel = static_cast<double>(plan.width) * kUnitsPerMillimetre / pixelWidth;
    Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(unitsPerPixel));
    const double pixelHeight = std::round(plan.height * kUnitsPerMillimetre / unitsPerPixel);
    if (pixelHeight < 1 || pixelHeight > kLargestPixelHeight)
        throw Failure{L"Das Blatt ist für ein Bild dieser Breite zu flach oder zu hoch."};
    return {Bitmap(pixelWidth, static_cast<int>(pixelHeight)), std::move(transformation)};
}

} // namespace

void DrawPlan(const Plan& plan, _CSymbolColl& catalogue, int pixelWidth,
              const std::filesystem::path& picture) {
    const std::vector<Ptr<_CSymbol>> symbols = FindSymbols(plan, catalogue);
    const Sheet sheet = MakeSheet(plan, pixelWidth);
    DrawPlanOn(sheet.OnBitmap(), plan, symbols, {});
    sheet.bitmap.SavePng(picture.wstring());
}

std::vector<std::wstring> MarkPlan(const Plan& plan, _CSymbolColl& catalogue, int pixelWidth,
                                   const PointedAt& place, const std::filesystem::path& picture) {
    const std::vector<Ptr<_CSymbol>> symbols = FindSymbols(plan, catalogue);
    const Sheet sheet = MakeSheet(plan, pixelWidth);
    const std::vector<std::size_t> marked = SymbolsAt(place, plan, symbols, *sheet.transformation.Get());
    DrawPlanOn(sheet.OnBitmap(), plan, symbols, marked);
    sheet.bitmap.SavePng(picture.wstring());
    std::vector<std::wstring> names;
    for (const std::size_t i : marked)
        names.push_back(plan.symbols[i].name);
    return names;
}
