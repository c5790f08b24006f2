// Places a symbol with the symbol library's tool, as a window would: it moves, turns, and is fixed by a click.

#include "bitmap.h"
#include "picture_box.h"
#include "sample.h"

#include <QMath.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kUnitsPerPixel = 1000;

/// Whether anything is drawn on a white picture.
bool IsDrawnOn(const Bitmap& picture) {
    GdiFlush();
    const BYTE* const bits = picture.Bits();
    const int bytes = picture.Width() * 3 * picture.Height(); // rows of this width need no padding
    return std::any_of(bits, bits + bytes, [](BYTE byte) { return byte != 0xFF; });
}

void Place(const Arguments& arguments) {
    const Ptr<_CSymbolColl> catalogue = OpenCatalogue(arguments[0]);
    Ptr<_CSymInput> tool;
    // The library tells the user itself when it cannot make the tool.
    Check(catalogue->GetSymInput(Bstr(arguments[1]).Get(), tool.Put()));
    if (!tool)
        throw Failure{L"Das Symbol \"" + arguments[1] + L"\" lässt sich nicht setzen."};
    const auto x = std::stof(arguments[2]);
    const auto y = std::stof(arguments[3]);

    const Bitmap picture(800, 600);
    const Ptr<PictureBox> box =
        PictureBox::Create(picture.Dc(), picture.Width(), picture.Height(), L"PlanBox");
    const Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(kUnitsPerPixel));
    Check(tool->MouseMove(100, 100, box.Get(), transformation.Get()));
    Check(tool->KeyUp(VK_HOME, 0, box.Get(), transformation.Get())); // a quarter to the left
    Check(tool->MouseMove(x, y, box.Get(), transformation.Get()));
    // Its image inverts: the second time takes it away, before the window is painted, and the third brings it back.
    const bool wasSeen = IsDrawnOn(picture);
    Check(tool->Draw(box.Get(), transformation.Get()));
    const bool isGone = !IsDrawnOn(picture);
    Check(tool->Draw(box.Get(), transformation.Get()));
    Check(tool->MouseDown(x, y, box.Get(), transformation.Get()));
    Check(tool->Draw(box.Get(), transformation.Get())); // for good, in the symbol's own colours

    VARIANT_BOOL isReady = VARIANT_FALSE;
    POINT at{};
    double radians = 0;
    Check(tool->get_Ready(&isReady));
    Check(tool->get_PosX(&at.x));
    Check(tool->get_PosY(&at.y));
    Check(tool->get_Angle(&radians));
    if (isReady == VARIANT_FALSE || !wasSeen || !isGone)
        throw Failure{L"Das Werkzeug ist nicht fertig."};
    PrintLine(arguments[1] + L";" + MillimetresText(at.x, L'.') + L";" + MillimetresText(at.y, L'.') + L";" +
              std::to_wstring(std::lround(radians * 180 / std::numbers::pi)));
}

} // namespace

int wmain(int count, wchar_t** values) {
    return RunSample(count, values, 4, L"place KATALOGORDNER SYMBOL X Y", Place);
}
