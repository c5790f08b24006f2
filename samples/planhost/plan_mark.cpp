#include "plan_mark.h"

#include "plan_drawing.h"
#include "plan_symbols.h"
#include "text.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr LONG kMarkColour = RGB(226, 74, 20);
constexpr LONG kOwnColours = -1;
constexpr LONG kWhite = 0xFFFFFF;
constexpr int kLargestPixelHeight = 20000;

std::vector<std::size_t> Marked(const PlacedPlan& placed, const PointedAt& place, _CTrans& transformation) {
    if (!place.isPoint)
        return placed.SymbolsAt(place, transformation);
    const auto topmost = placed.TopmostAt({place.pixels.left, place.pixels.top}, transformation);
    return topmost ? std::vector{*topmost} : std::vector<std::size_t>();
}

HDC ContextOf(_CPicture& picture) {
    LONG handle = 0;
    Check(picture.get_hDC(&handle));
    return reinterpret_cast<HDC>(static_cast<LONG_PTR>(handle)); // it has 32 significant bits
}

} // namespace

std::vector<std::wstring> MarkPlan(const Plan& plan, _CSymbolColl& catalogue, int pixelWidth,
                                   const PointedAt& place, const std::filesystem::path& file) {
    const double unitsPerPixel = static_cast<double>(plan.width) * kUnitsPerMillimetre / pixelWidth;
    const double pixelHeight = std::round(plan.height * kUnitsPerMillimetre / unitsPerPixel);
    if (pixelHeight < 1 || pixelHeight > kLargestPixelHeight)
        throw Failure{L"Das Blatt ist für ein Bild dieser Breite zu flach oder zu hoch."};
    const Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(unitsPerPixel));
    FindSymbols(plan, catalogue); // names what is missing
    const PlacedPlan placed(plan.symbols, catalogue);
    const std::vector<std::size_t> marked = Marked(placed, place, *transformation.Get());

    const Ptr<_CPicture> picture = Create<_CPicture>(__uuidof(CPicture));
    Check(picture->Create(pixelWidth, static_cast<LONG>(pixelHeight), kWhite));
    const Canvas canvas{
        ContextOf(*picture.Get()), {pixelWidth, static_cast<LONG>(pixelHeight)}, *transformation.Get()};
    DrawBelowSymbols(canvas, plan);
    placed.ForEach([&](std::size_t i, _CSymbol& symbol, POINT at, double radians) {
        LONG colour = std::ranges::count(marked, i) > 0 ? kMarkColour : kOwnColours;
        Check(symbol.Draw(at.x, at.y, radians, picture.Get(), transformation.Get(), 1.0, 1.0, &colour),
              Describe(plan.symbols[i]));
    });
    DrawAboveSymbols(canvas, plan);
    Check(picture->Write2File(Bstr(std::filesystem::absolute(file).wstring()).Get()), file.wstring());

    std::vector<std::wstring> names;
    for (const std::size_t i : marked)
        names.push_back(plan.symbols[i].name);
    return names;
}
