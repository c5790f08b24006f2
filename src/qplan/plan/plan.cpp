#include "qplan/plan/plan.h"

#include "base/checked.h"
#include "base/error.h"
#include "qsymbol/draw/surface_factors.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace qplan {

using qsymbol::SymbolPosition;

namespace {

void RequireAngle(const SymbolPosition& position) {
    if (!std::isfinite(position.angle))
        base::Raise(base::RunTimeError::InvalidCall);
}

/// The square of the distance of a caught point from the cursor.
double Distance(qmath::Point caught, float x, float y) {
    const double dx = static_cast<double>(caught.x) - x;
    const double dy = static_cast<double>(caught.y) - y;
    return dx * dx + dy * dy;
}

} // namespace

/// A placement that is going to be asked.
struct Plan::Asked {
    std::size_t slot;
    std::int32_t id;
};

void Plan::SetSymbols(std::shared_ptr<SymbolSource> source) {
    symbols_.SetSource(std::move(source));
    index_.Forget();
}

std::int32_t Plan::Add(std::u16string_view name, const SymbolPosition& position) {
    return AddUsed(symbols_.Take(name), position);
}

std::int32_t Plan::AddUsed(std::uint32_t symbol, const SymbolPosition& position) {
    RequireAngle(position);
    if (lastId_ == std::numeric_limits<std::int32_t>::max()) // GCOVR_EXCL_LINE: two thousand million ids away
        base::Raise(base::RunTimeError::Overflow);           // GCOVR_EXCL_LINE: see above
    placements_.Append({lastId_ + 1, symbol, position});
    ++changes_;
    return ++lastId_;
}

void Plan::Move(std::int32_t id, const SymbolPosition& position) {
    const std::optional<std::size_t> slot = placements_.SlotOf(id);
    if (!slot)
        base::Raise(base::RunTimeError::InvalidCall);
    RequireAngle(position);
    index_.Moved(*slot);
    placements_.Move(*slot, position);
    ++changes_;
}

void Plan::RemoveById(std::int32_t id) {
    const std::optional<std::size_t> slot = placements_.SlotOf(id);
    if (!slot)
        base::Raise(base::RunTimeError::InvalidCall);
    if (placements_.Remove(*slot))
        index_.Forget();
    ++changes_;
}

void Plan::Clear() {
    placements_.Clear();
    symbols_.Clear();
    index_.Forget();
    sheet_ = {};
    ++changes_;
}

void Plan::Refresh() const {
    if (symbols_.Refresh())
        index_.Forget();
}

Plan Plan::Successor() const {
    Plan next;
    next.symbols_.SetSource(symbols_.Source());
    next.lastId_ = lastId_;
    next.changes_ = changes_ + 1; // so that a question that is going on sees the change
    return next;
}

WorldBox Plan::Near(const PixelWindow& pixels, const qsymbol::Transformation& transformation,
                    double factor) const {
    const std::optional<WorldBox> window = WorldWindow(pixels, transformation);
    // Last, because all before may call a host, which may change the plan.
    index_.Update(placements_, symbols_, factor);
    return window && std::isfinite(factor) ? *window : WorldBox::Everything();
}

std::vector<Plan::Asked> Plan::Candidates(const WorldBox& window) const {
    std::vector<Asked> candidates;
    for (const PlacementIndex::Proposal& proposal : index_.SlotsIn(window))
        if (const Placement* const placement = placements_.AtSlot(proposal.slot))
            candidates.push_back({proposal.slot, placement->id});
    return candidates;
}

const Placement* Plan::Still(const Asked& asked) const {
    if (asked.slot < placements_.SlotCount())
        if (const Placement* const there = placements_.AtSlot(asked.slot);
            there != nullptr && there->id == asked.id)
            return there;
    return placements_.ById(asked.id);
}

std::optional<std::int32_t> Plan::HitTest(const View& view, qmath::Point screen) const {
    Refresh();
    const PixelWindow pixel = PixelWindow::Around({screen.x, screen.y, screen.x, screen.y});
    BoxIndex::Descent descent = index_.DescendIn(Near(pixel, view.transformation, view.screenFactor));
    const auto isHit = [&](const Placement& placement) {
        const std::shared_ptr<const PlacedSymbol> symbol = SymbolOf(placement);
        return symbol->IsHitAt(SymbolPosition(placement.position), view, screen);
    };
    const std::uint64_t before = changes_;
    for (std::uint32_t slot = 0; descent.Next(slot);) {
        const Placement* const placement = placements_.AtSlot(slot);
        if (placement == nullptr)
            continue;
        const std::int32_t id = placement->id;
        if (isHit(*placement))
            return id;
        if (changes_ == before)
            continue;
        // A symbol of the host has changed the plan: what lies below is asked as it is now.
        std::vector<Asked> below = Candidates(WorldBox::Everything());
        std::reverse(below.begin(), below.end());
        for (const Asked& asked : below)
            if (const Placement* const there = asked.id < id ? Still(asked) : nullptr)
                if (isHit(*there))
                    return asked.id;
        return std::nullopt;
    }
    return std::nullopt;
}

std::vector<std::int32_t> Plan::HitRect(const View& view, const qmath::Rect& screen) const {
    Refresh();
    const PixelWindow pixels = PixelWindow::Around(screen);
    const WorldBox window = Near(pixels, view.transformation, view.screenFactor);
    // What need not be asked has no slot here.
    constexpr std::size_t kCertain = std::numeric_limits<std::size_t>::max();
    std::vector<Asked> candidates;
    for (const auto& [slot, isWithin] : index_.SlotsIn(window, InnerWindow(pixels, view.transformation)))
        if (const Placement* const placement = placements_.AtSlot(slot)) {
            const bool isCertain = isWithin && symbols_[placement->symbol].reach.isHitWithin;
            candidates.push_back({isCertain ? kCertain : slot, placement->id});
        }
    std::vector<std::int32_t> hits;
    hits.reserve(candidates.size());
    for (const Asked& asked : candidates)
        if (asked.slot == kCertain) {
            hits.push_back(asked.id);
        } else if (const Placement* const placement = Still(asked)) {
            const std::shared_ptr<const PlacedSymbol> symbol = SymbolOf(*placement);
            if (symbol->IsHitBy(SymbolPosition(placement->position), view, screen))
                hits.push_back(asked.id);
        }
    return hits;
}

std::optional<qsymbol::CaughtPoint> Plan::CatchPt(const View& view, float x, float y,
                                                  std::int16_t range) const {
    Refresh();
    const double reach = std::max<double>(range, 0);
    const PixelWindow pixels{x - reach, y - reach, x + reach, y + reach};
    std::optional<qsymbol::CaughtPoint> nearest;
    double least = 0;
    for (const Asked& asked : Candidates(Near(pixels, view.transformation, view.screenFactor))) {
        const Placement* const placement = Still(asked);
        if (placement == nullptr)
            continue;
        const std::shared_ptr<const PlacedSymbol> symbol = SymbolOf(*placement);
        const auto caught = symbol->CatchPt(SymbolPosition(placement->position), view, x, y, range);
        if (!caught)
            continue;
        // What comes later lies on top.
        if (const double distance = Distance(caught->screen, x, y); !nearest || distance <= least) {
            nearest = caught;
            least = distance;
        }
    }
    return nearest;
}

std::optional<qmath::Rect> Plan::Extent(double screenFactor) const {
    Refresh();
    const std::uint64_t placements = changes_;
    const std::uint64_t symbols = symbols_.Changes();
    if (extent_ && extent_->placements == placements && extent_->symbols == symbols &&
        extent_->factor == screenFactor)
        return extent_->extent;
    std::optional<qmath::Rect> extent;
    for (const Placement* next = placements_.NextAfter(0); next != nullptr;) {
        const std::int32_t id = next->id;
        const std::shared_ptr<const PlacedSymbol> symbol = SymbolOf(*next);
        const qmath::Rect bounds = symbol->Bounds(SymbolPosition(next->position), screenFactor);
        const qmath::Rect last = extent.value_or(bounds);
        extent = {std::min(last.left, bounds.left), std::min(last.top, bounds.top),
                  std::max(last.right, bounds.right), std::max(last.bottom, bounds.bottom)};
        next = placements_.NextAfter(id);
    }
    extent_ = {placements, symbols, screenFactor, extent};
    return extent;
}

/// How far from its points, in pixels, drawing can leave a mark, texts aside.
double Plan::MarginOfDrawing(const qsymbol::Transformation& transformation, double scale) const {
    // The thinnest pen, a rounded box and the pixel that a line leaves out.
    constexpr double kMargin = 2;
    if (transformation.Plain() != nullptr)
        return kMargin;
    try {
        return kMargin + transformation.LengthToScreen(base::RoundToLong(symbols_.MostLength() * scale));
    } catch (const base::Error&) {
        return std::numeric_limits<double>::infinity();
    }
}

std::vector<std::int32_t> Plan::Visible(const qsymbol::Transformation& transformation,
                                        const std::optional<qmath::Rect>& pixels,
                                        double geometryFactor) const {
    constexpr double kLargestFactor = 1e6;
    Refresh();
    const double scale = std::max(1.0, std::abs(geometryFactor));
    WorldBox window = WorldBox::Everything();
    std::optional<WorldBox> exact;
    double pixel = 0; // world units
    if (pixels) {
        const double margin = MarginOfDrawing(transformation, scale);
        window = Near(PixelWindow::Around(*pixels, margin + symbols_.MostPixels() * scale), transformation,
                      geometryFactor);
        // What one symbol adds counts for it alone. A factor of 0 draws into one point, but texts as they are.
        const qmath::Transform* const plain = transformation.Plain();
        if (plain != nullptr && geometryFactor != 0 && scale <= kLargestFactor) {
            exact = WorldWindow(PixelWindow::Around(*pixels, margin), transformation);
            pixel = plain->Scale() * scale;
        }
    } else {
        index_.Update(placements_, symbols_, geometryFactor);
    }
    std::vector<std::int32_t> ids;
    // Most lie wholly in the window: they need no sine.
    const auto proposals = exact ? index_.SlotsIn(window, *exact) : index_.SlotsIn(window);
    ids.reserve(proposals.size());
    for (const auto& [slot, isWithin] : proposals) {
        const Placement* const placement = placements_.AtSlot(slot);
        if (placement == nullptr)
            continue;
        const SymbolReach& reach = symbols_[placement->symbol].reach;
        if (!exact || isWithin ||
            PlacementIndex::Shows(*placement, reach, geometryFactor, reach.pixels * pixel, *exact))
            ids.push_back(placement->id);
    }
    return ids;
}

void Plan::Draw(qsymbol::Surface& surface, const qsymbol::Transformation& transformation,
                const std::optional<qmath::Rect>& pixels, const qsymbol::DrawFactors& factors,
                std::int32_t markColor) const {
    const double factor = FactorsFor(surface, factors).geometry;
    for (const std::int32_t id : Visible(transformation, pixels, factor)) {
        const Placement* const placement = placements_.ById(id);
        if (placement == nullptr)
            continue;
        const std::shared_ptr<const PlacedSymbol> symbol = SymbolOf(*placement);
        symbol->Draw(SymbolPosition(placement->position), surface, transformation, factors, markColor);
    }
}

} // namespace qplan
