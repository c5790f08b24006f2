// Draws a plan with the symbol library alone: a surface of the host's own, a map, and each symbol in its place.

#include "bitmap.h"
#include "picture_box.h"
#include "plan_drawing.h"
#include "plan_symbols.h"
#include "sample.h"

#include <QMath.h>

#include <cmath>

namespace {

constexpr int kDefaultPixelWidth = 2000;

void Draw(const Arguments& arguments) {
    const Plan plan = ReadPlan(arguments[1]);
    const Ptr<_CSymbolColl> catalogue = OpenCatalogue(arguments[0]);
    const std::vector<Ptr<_CSymbol>> symbols = FindSymbols(plan, *catalogue.Get());

    // The map is the one that the host's own drawing uses as well.
    const int width = arguments.size() > 3 ? std::stoi(arguments[3]) : kDefaultPixelWidth;
    const double scale = static_cast<double>(plan.width) * kUnitsPerMillimetre / width;
    const Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(scale));
    const Bitmap bitmap(width, static_cast<int>(std::lround(plan.height * kUnitsPerMillimetre / scale)));
    const Canvas canvas{bitmap.Dc(), {bitmap.Width(), bitmap.Height()}, *transformation.Get()};

    DrawBelowSymbols(canvas, plan);
    {
        // Gives the device context back as it was.
        const Ptr<PictureBox> box =
            PictureBox::Create(bitmap.Dc(), bitmap.Width(), bitmap.Height(), L"PlanBox");
        for (std::size_t i = 0; i < symbols.size(); ++i) {
            const PlacedSymbol& placed = plan.symbols[i];
            Check(symbols[i]->Draw(placed.at.x, placed.at.y, Radians(placed), box.Get(), transformation.Get(),
                                   1.0, 1.0, nullptr),
                  Describe(placed));
        }
    }
    DrawAboveSymbols(canvas, plan);
    bitmap.SavePng(arguments[2]);
    PrintLine(std::to_wstring(symbols.size()) + L" Symbole in " + arguments[2] + L" gezeichnet.");
}

} // namespace

int wmain(int count, wchar_t** values) {
    return RunSample(count, values, 3, L"draw KATALOGORDNER PLANDATEI BILD.png [BILDBREITE]", Draw);
}
