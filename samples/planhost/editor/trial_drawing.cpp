#include "trial_drawing.h"

#include "../bitmap.h"
#include "../picture_box.h"
#include "symbol_bounds.h"

#include <QMath.h>

#include <set>

namespace {

/// Within this, in units, every point of a symbol can be drawn wherever the picture is moved; beyond, it has to be tried.
constexpr RECT kSafe{-1'000'000'000, -1'000'000'000, 1'000'000'000, 1'000'000'000};

bool IsSafe(const RECT& reach) {
    return reach.left >= kSafe.left && reach.top >= kSafe.top && reach.right <= kSafe.right &&
           reach.bottom <= kSafe.bottom;
}

} // namespace

void RequireDrawable(const std::vector<PlacedSymbol>& placed, const std::vector<Ptr<_CSymbol>>& symbols) {
    const Bitmap speck(1, 1);
    const Ptr<PictureBox> box = PictureBox::Create(speck.Dc(), 1, 1, L"PlanBox");
    const Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(1000));
    BoundsOfSymbols bounds;
    std::set<std::wstring> drawn;
    for (std::size_t i = 0; i < placed.size(); ++i) {
        const bool isKnown = !drawn.insert(placed[i].name).second;
        if (isKnown &&
            IsSafe(Around(PlacedCorners(bounds.Of(placed[i].name, *symbols[i].Get()).drawn, placed[i]))))
            continue;
        Check(symbols[i]->Draw(placed[i].at.x, placed[i].at.y, Radians(placed[i]), box.Get(),
                               transformation.Get(), 1.0, 1.0, nullptr),
              L"Das Symbol \"" + placed[i].name + L"\" lässt sich an dieser Stelle nicht zeichnen");
    }
}
