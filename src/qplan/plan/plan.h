#pragma once

#include "qmath/point.h"
#include "qmath/rect.h"
#include "qplan/model/placement.h"
#include "qplan/model/sheet.h"
#include "qplan/model/symbol_source.h"
#include "qplan/plan/placement_index.h"
#include "qplan/plan/placement_list.h"
#include "qplan/plan/symbol_table.h"
#include "qplan/plan/world_window.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qplan {

/// Placed symbols in drawing order, what is later lies on top, and the sheet that they stand on.
///
/// Every answer is the one that a loop over all placements would give, asking each alone. Only placements near the
/// question are asked: their errors pass through, what lies elsewhere raises none. A change of a placement, of a
/// symbol or of the source is seen by the next call. A plan belongs to one thread, questions too; symbols and
/// transformations that change the plan while it asks them do no harm. Copies share the symbols.
class Plan {
public:
    /// Takes symbols from here from now on. Error 5, nothing changed, when a symbol that the plan uses is missing there; null leaves
    /// the plan with those that it has.
    void SetSymbols(std::shared_ptr<SymbolSource> source);
    const std::shared_ptr<SymbolSource>& Symbols() const { return symbols_.Source(); }

    std::int32_t Count() const { return placements_.Count(); }
    /// Places a symbol on top; the new id. Error 91 without symbols, 5 for an unknown name and an angle that is no
    /// number, 6 when all ids are used.
    std::int32_t Add(std::u16string_view name, const qsymbol::SymbolPosition& position);
    /// The same for a symbol that the plan uses: Placement::symbol. Not across Clear and SetSymbols.
    std::int32_t AddUsed(std::uint32_t symbol, const qsymbol::SymbolPosition& position);
    /// Error 5 for an unknown id and an angle that is no number.
    void Move(std::int32_t id, const qsymbol::SymbolPosition& position);
    /// Error 5 for an unknown id.
    void RemoveById(std::int32_t id);
    /// No placements and no sheet; the symbols stay, ids go on.
    void Clear();
    /// An empty plan with the same symbols, whose ids begin where these end.
    Plan Successor() const;
    /// The highest id so far, 0 at first.
    std::int32_t LastId() const { return lastId_; }

    /// nullptr for an unknown id. Valid until the plan changes.
    const Placement* ById(std::int32_t id) const { return placements_.ById(id); }
    /// Positions count from 1 in drawing order; nullptr outside.
    const Placement* ByPos(std::int32_t position) const { return placements_.ByPos(position); }
    /// The first placement of a larger id, for walks that survive changes; 0 starts from the front. nullptr at the
    /// end.
    const Placement* NextAfter(std::int32_t id) const { return placements_.NextAfter(id); }
    /// The name that the symbol was placed under.
    const std::u16string& NameOf(const Placement& placement) const { return symbols_[placement.symbol].name; }
    const std::shared_ptr<const PlacedSymbol>& SymbolOf(const Placement& placement) const {
        return symbols_[placement.symbol].symbol;
    }

    const qplan::Sheet& Sheet() const { return sheet_; }
    void SetSheet(qplan::Sheet sheet) { sheet_ = std::move(sheet); }

    /// The topmost placement at a pixel.
    std::optional<std::int32_t> HitTest(const View& view, qmath::Point screen) const;
    /// The placements that share a pixel with the rectangle, in drawing order.
    std::vector<std::int32_t> HitRect(const View& view, const qmath::Rect& screen) const;
    /// Of what the placements catch the one with the least distance in pixels, of equal ones the topmost's.
    std::optional<qsymbol::CaughtPoint> CatchPt(const View& view, float x, float y, std::int16_t range) const;
    /// Around the bounds of all placements, in world coordinates; nothing without placements.
    std::optional<qmath::Rect> Extent(double screenFactor) const;

    /// Draws the placements that may show within the pixels, without them all, in drawing order.
    void Draw(qsymbol::Surface& surface, const qsymbol::Transformation& transformation,
              const std::optional<qmath::Rect>& pixels,
              const qsymbol::DrawFactors& factors = qsymbol::kUnscaled, std::int32_t markColor = -1) const;
    /// Those that it would draw, for hosts that draw themselves. geometryFactor: that of the surface.
    std::vector<std::int32_t> Visible(const qsymbol::Transformation& transformation,
                                      const std::optional<qmath::Rect>& pixels,
                                      double geometryFactor = 1) const;

private:
    struct Asked;
    struct KnownExtent {
        std::uint64_t placements;
        std::uint64_t symbols;
        double factor;
        std::optional<qmath::Rect> extent;
    };

    void Refresh() const;
    WorldBox Near(const PixelWindow& pixels, const qsymbol::Transformation& transformation,
                  double factor) const;
    double MarginOfDrawing(const qsymbol::Transformation& transformation, double scale) const;
    std::vector<Asked> Candidates(const WorldBox& window) const;
    /// The placement as it is now; nullptr when it has gone meanwhile.
    const Placement* Still(const Asked& asked) const;

    SymbolTable symbols_;
    PlacementList placements_;
    qplan::Sheet sheet_;
    std::int32_t lastId_ = 0;
    std::uint64_t changes_ = 1; ///< of the placements
    mutable PlacementIndex index_;
    mutable std::optional<KnownExtent> extent_;
};

} // namespace qplan
