#include "placed_plan.h"

#include <algorithm>

namespace {

Ptr<_CPlan> NewPlan(_CSymbolColl& catalogue) {
    Ptr<_CPlan> plan = Create<_CPlan>(__uuidof(CPlan));
    Check(plan->putref_Symbols(&catalogue));
    return plan;
}

Ptr<_CRect> MakeRect(const RECT& pixels) {
    Ptr<_CRect> rect = Create<_CRect>(__uuidof(CRect));
    Check(rect->put_Left(pixels.left));
    Check(rect->put_Top(pixels.top));
    Check(rect->put_Right(pixels.right));
    Check(rect->put_Bottom(pixels.bottom));
    return rect;
}

} // namespace

Ptr<_CPlan> OpenPlan(const std::filesystem::path& file, _CSymbolColl& catalogue) {
    Ptr<_CPlan> plan = NewPlan(catalogue);
    Check(plan->ReadFromFile(Bstr(std::filesystem::absolute(file).wstring()).Get()), file.wstring());
    return plan;
}

PlacedPlan::PlacedPlan(const std::vector<PlacedSymbol>& symbols, _CSymbolColl& catalogue)
    : plan_(NewPlan(catalogue)) {
    numbers_.reserve(symbols.size());
    for (const PlacedSymbol& placed : symbols)
        Add(placed);
}

void PlacedPlan::Add(const PlacedSymbol& placed) {
    Ptr<_CPlacement> placement;
    Check(plan_->Add(Bstr(placed.name).Get(), placed.at.x, placed.at.y, Radians(placed), placement.Put()),
          Describe(placed));
    LONG number = 0;
    Check(placement->get_Id(&number));
    numbers_.push_back(number);
}

void PlacedPlan::Exchange(std::size_t first, std::span<const PlacedSymbol> before,
                          std::span<const PlacedSymbol> after, std::span<const PlacedSymbol> above) {
    if (std::ranges::equal(before, after, {}, &PlacedSymbol::name, &PlacedSymbol::name)) {
        for (std::size_t i = 0; i < after.size(); ++i) {
            Ptr<_CPlacement> placement;
            Check(plan_->get_ItemById(numbers_[first + i], placement.Put()));
            Check(placement->put_LogX(after[i].at.x));
            Check(placement->put_LogY(after[i].at.y));
            Check(placement->put_Angle(Radians(after[i])));
        }
        return;
    }
    // The library adds on top only: what lies above is put there again.
    const std::size_t end = after.empty() ? first + before.size() : numbers_.size();
    for (std::size_t i = first; i < end; ++i)
        Check(plan_->RemoveById(numbers_[i]));
    numbers_.erase(numbers_.begin() + static_cast<std::ptrdiff_t>(first),
                   numbers_.begin() + static_cast<std::ptrdiff_t>(end));
    if (after.empty())
        return;
    for (const PlacedSymbol& placed : after)
        Add(placed);
    for (const PlacedSymbol& placed : above)
        Add(placed);
}

void PlacedPlan::UseCatalogue(_CSymbolColl& catalogue) {
    Check(plan_->putref_Symbols(&catalogue));
}

HRESULT PlacedPlan::Draw(IDispatch& surface, _CTrans& transformation) const {
    return plan_->Draw(&surface, &transformation);
}

void PlacedPlan::ForEach(const Work& work) const {
    for (std::size_t place = 0; place < numbers_.size(); ++place) {
        Ptr<_CPlacement> placement;
        Ptr<_CSymbol> symbol;
        POINT at{};
        double radians = 0;
        Check(plan_->get_ItemById(numbers_[place], placement.Put()));
        Check(placement->get_Symbol(symbol.Put()));
        Check(placement->get_LogX(&at.x));
        Check(placement->get_LogY(&at.y));
        Check(placement->get_Angle(&radians));
        work(place, *symbol.Get(), at, radians);
    }
}

std::size_t PlacedPlan::PlaceOf(_CPlacement& placement) const {
    LONG number = 0;
    Check(placement.get_Id(&number));
    return static_cast<std::size_t>(std::ranges::lower_bound(numbers_, number) - numbers_.begin());
}

std::optional<std::size_t> PlacedPlan::TopmostAt(POINT pixel, _CTrans& transformation) const {
    Ptr<_CPlacement> hit;
    Check(plan_->HitTest(&transformation, pixel.x, pixel.y, hit.Put()));
    return hit ? std::optional(PlaceOf(*hit.Get())) : std::nullopt;
}

std::vector<std::size_t> PlacedPlan::SymbolsAt(const PointedAt& place, _CTrans& transformation) const {
    Ptr<_CPlacementColl> hits;
    LONG count = 0;
    Check(plan_->HitRect(&transformation, MakeRect(place.pixels).Get(), hits.Put()));
    Check(hits->get_Count(&count));
    std::vector<std::size_t> found;
    for (LONG position = count; position > 0; --position) { // what is drawn last lies on top
        Ptr<_CPlacement> hit;
        Check(hits->get_ItemByPos(position, hit.Put()));
        found.push_back(PlaceOf(*hit.Get()));
    }
    return found;
}

std::optional<POINT> PlacedPlan::Catch(POINT pixel, SHORT range, _CTrans& transformation) const {
    auto x = static_cast<float>(pixel.x);
    auto y = static_cast<float>(pixel.y);
    POINT point{};
    VARIANT_BOOL isCaught = VARIANT_FALSE;
    Check(plan_->CatchPt(&x, &y, &point.x, &point.y, &transformation, range, &isCaught));
    return isCaught != VARIANT_FALSE ? std::optional(point) : std::nullopt;
}
