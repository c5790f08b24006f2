#pragma once

#include "plan/host_objects.h"
#include "support/picture_box.h"

#include <optional>
#include <vector>

namespace plan {

using support::Bstr;

inline support::Failure Error(int number) {
    return support::RunTimeError(number, L"QPlan");
}

/// Symbols of three kinds, one of them flat and off its box, in the order of their names A, B, C.
Ref<_CSymbol> NewPlanSymbol(int kind);

/// What a plan answers, in comparable form.
struct Caught {
    bool isCaught = false;
    float x = 0;
    float y = 0;
    LONG worldX = 0;
    LONG worldY = 0;
    bool operator==(const Caught&) const = default;
};

class PlanTest : public support::AutomationTest {
protected:
    PlanTest();

    /// Places a symbol; its id.
    LONG Add(const wchar_t* name, LONG x, LONG y, double angle = 0) const;
    LONG HitTest(_CTrans* trans, LONG x, LONG y) const; ///< id; 0 for Nothing
    std::vector<LONG> HitRect(_CTrans* trans, const RECT& rect) const;
    Caught CatchPt(_CTrans* trans, float x, float y, SHORT range) const;
    std::vector<LONG> Ids() const; ///< in drawing order, by For Each
    Ref<_CPlacement> ById(LONG id) const;
    LONG Count() const;

    std::vector<Ref<_CSymbol>> symbols; ///< A, B, C
    Ref<_CSymbolColl> catalogue;
    Ref<_CPlan> plan;
};

LONG IdOf(_CPlacement* placement);
Ref<_CRect> NewRect(const RECT& rect);
/// The edges; empty without an object.
std::optional<RECT> Edges(_CRect* rect);

} // namespace plan
