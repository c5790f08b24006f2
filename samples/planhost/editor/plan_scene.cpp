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

Ptr<PictureBox> BoxOn(const Canvas& canvas) {
    return PictureBox::Create(canvas.dc, canvas.size.cx, canvas.size.cy, L"PlanBox", canvas.fineness);
}

} // namespace

std::vector<RECT> PlanScene::Show(const PlanDocument& document) {
    document_ = &document;
    // What has changed lies between what is the same at both ends.
    const std::vector<PlacedSymbol>& now = document.Content().symbols;
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
        reaches.push_back(
            Around(PlacedCorners(bounds_.Of(now[i].name, *document.Symbols()[i].Get()).drawn, now[i])));
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

bool PlanScene::DrawSymbols(const Canvas& canvas) const {
    return SUCCEEDED(document_->Placed().Draw(*BoxOn(canvas).Get(), canvas.transformation));
}

void PlanScene::DrawWhatCanBeDrawn(const Canvas& canvas) {
    const Ptr<PictureBox> box = BoxOn(canvas);
    document_->Placed().ForEach([&](std::size_t place, _CSymbol& symbol, POINT at, double radians) {
        const std::wstring& name = document_->Content().symbols[place].name;
        const HRESULT status =
            symbol.Draw(at.x, at.y, radians, box.Get(), &canvas.transformation, 1.0, 1.0, nullptr);
        if (SUCCEEDED(status) || !failed_.insert(name).second)
            return;
        try {
            Check(status, L"Das Symbol \"" + name + L"\" lässt sich nicht zeichnen");
        } catch (const Failure& failure) {
            failure_ = failure.message;
        }
    });
}

std::optional<std::wstring> PlanScene::TakeFailure() {
    return std::exchange(failure_, std::nullopt);
}

std::array<POINT, 4> PlanScene::Corners(std::size_t place) const {
    const PlacedSymbol& placed = document_->Content().symbols[place];
    return PlacedCorners(bounds_.Of(placed.name, *document_->Symbols()[place].Get()).figure, placed);
}
