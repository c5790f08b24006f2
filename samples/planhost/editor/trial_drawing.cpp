#include "trial_drawing.h"

#include "../bitmap.h"
#include "../picture_box.h"

#include <QMath.h>

void RequireDrawable(const std::vector<PlacedSymbol>& placed, const std::vector<Ptr<_CSymbol>>& symbols) {
    const Bitmap speck(1, 1);
    const Ptr<PictureBox> box = PictureBox::Create(speck.Dc(), 1, 1, L"PlanBox");
    const Ptr<_CTrans> transformation = Create<_CTrans>(__uuidof(CTrans));
    Check(transformation->SetScale(1000));
    for (std::size_t i = 0; i < placed.size(); ++i) {
        Check(symbols[i]->Draw(placed[i].at.x, placed[i].at.y, Radians(placed[i]), box.Get(),
                               transformation.Get(), 1.0, 1.0, nullptr),
              L"Das Symbol \"" + placed[i].name + L"\" lässt sich an dieser Stelle nicht zeichnen");
    }
}
