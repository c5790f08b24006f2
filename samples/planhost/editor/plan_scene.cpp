#include "plan_scene.h"

#include "../picture_box.h"
#include "../text.h"

#include <algorithm>

namespace {

/// Whether two placed symbols look the same; the line in the file is nothing to see.
bool LookAlike(const PlacedSymbol& one, const PlacedSymbol& other) {
    return one.at.x == other.at.x && one.at.y == other.at.y && one.angle == other.angle &&
           one.name == other.name;
}

} // namespace

std::vector<RECT> PlanScene::Show(const Plan& plan, const std::vector<Ptr<_CSymbol>>& symbols) {
    plan_ = &plan;
    symbols_ = &symbols;
    // What has changed lies between what is the same at both ends.
    const std::vector<PlacedSymbol>& now = plan.symbols;
    const std::size_t shorter = std::min(now.size(), shown_.size());
    std::size_t first = 0;
    while (first < shorter && LookAlike(now[first], shown_[first]))
        ++first;
    std::size_t last = 0;
    while (last < shorter - first && LookAlike(now[now.size() - 1 - last], shown_[shown_.size() - 1 - last]))
        ++last;

    const auto begin = reaches_.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = reaches_.end() - static_cast<std::ptrdiff_t>(last);
    std::vector<RECT> changed(begin, end);
    std::vector<RECT> reaches;
    for (std::size_t i = first; i < now.size() - last; ++i)
        reaches.push_back(Around(PlacedCorners(bounds_.Of(now[i].name, *symbols[i].Get()).drawn, now[i])));
    changed.insert(changed.end(), reaches.begin(), reaches.end());
    reaches_.insert(reaches_.erase(begin, end), reaches.begin(), reaches.end());
    shown_ = now;
    return changed;
}

void PlanScene::Forget() {
    bounds_.Clear();
    shown_.clear();
    reaches_.clear();
    failed_.clear();
}

void PlanScene::DrawSymbols(const Canvas& canvas, const RECT& area) {
    const Ptr<PictureBox> box =
        PictureBox::Create(canvas.dc, canvas.size.cx, canvas.size.cy, L"PlanBox", canvas.fineness);
    for (std::size_t i = 0; i < reaches_.size(); ++i) {
        const PlacedSymbol& placed = plan_->symbols[i];
        if (!Touch(reaches_[i], area))
            continue;
        const HRESULT status = (*symbols_)[i]->Draw(placed.at.x, placed.at.y, Radians(placed), box.Get(),
                                                    &canvas.transformation, 1.0, 1.0, nullptr);
        if (SUCCEEDED(status) || !failed_.insert(placed.name).second)
            continue;
        try {
            Check(status, L"Das Symbol \"" + placed.name + L"\" lässt sich nicht zeichnen");
        } catch (const Failure& failure) {
            failure_ = failure.message;
        }
    }
}

std::optional<std::wstring> PlanScene::TakeFailure() {
    return std::exchange(failure_, std::nullopt);
}

std::vector<std::size_t> PlanScene::SymbolsAt(const PointedAt& place, _CTrans& transformation,
                                              const RECT& area) const {
    std::vector<std::size_t> found;
    for (std::size_t i = reaches_.size(); i-- > 0;) { // what is drawn last lies on top
        if (Touch(reaches_[i], area) &&
            IsSymbolAt(place, plan_->symbols[i], *(*symbols_)[i].Get(), transformation))
            found.push_back(i);
    }
    return found;
}

std::array<POINT, 4> PlanScene::Corners(std::size_t place) const {
    const PlacedSymbol& placed = plan_->symbols[place];
    return PlacedCorners(bounds_.Of(placed.name, *(*symbols_)[place].Get()).figure, placed);
}
