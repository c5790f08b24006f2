#pragma once

#include "catalogue.h"
#include "plan_file.h"
#include "pointed_at.h"

#include <QMath.h>
#include <QPlan.h>

#include <functional>
#include <optional>
#include <span>
#include <vector>

/// Reads a plan file into a plan of the library.
Ptr<_CPlan> OpenPlan(const std::filesystem::path& file, _CSymbolColl& catalogue);

/// The placed symbols of a plan, in its order, in the library's hands: it draws them, finds them and catches their points. They
/// are known by their places in the plan; the library knows them by numbers, which grow from below to the top.
class PlacedPlan {
public:
    /// All symbols must be in the catalogue.
    PlacedPlan(const std::vector<PlacedSymbol>& symbols, _CSymbolColl& catalogue);

    /// From a place on some give way to others. above: those that lie on top of them, as they are.
    void Exchange(std::size_t first, std::span<const PlacedSymbol> before,
                  std::span<const PlacedSymbol> after, std::span<const PlacedSymbol> above);
    /// Takes the symbols of the same names from another catalogue.
    void UseCatalogue(_CSymbolColl& catalogue);

    /// Draws what can be seen. When it fails, part of it is drawn, and which symbol it was shows when each is drawn alone.
    HRESULT Draw(IDispatch& surface, _CTrans& transformation) const;
    /// Work with a symbol, and where it is placed.
    using Work = std::function<void(std::size_t place, _CSymbol& symbol, POINT at, double radians)>;
    void ForEach(const Work& work) const;

    /// The topmost at a pixel.
    std::optional<std::size_t> TopmostAt(POINT pixel, _CTrans& transformation) const;
    /// All at a pixel or below a rectangle, covered ones too, the topmost first.
    std::vector<std::size_t> SymbolsAt(const PointedAt& place, _CTrans& transformation) const;
    /// The nearest of all points that are fewer pixels away, in units.
    std::optional<POINT> Catch(POINT pixel, SHORT range, _CTrans& transformation) const;

private:
    void Add(const PlacedSymbol& placed);
    std::size_t PlaceOf(_CPlacement& placement) const;

    Ptr<_CPlan> plan_;
    std::vector<LONG> numbers_; ///< by place
};
