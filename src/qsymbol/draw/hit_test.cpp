#include "qsymbol/draw/hit_test.h"

#include "qmath/outline.h"
#include "qsymbol/draw/bounds.h"
#include "qsymbol/draw/quick_hit.h"

#include <array>

namespace qsymbol {

namespace {

std::array<qmath::Point, 4> ScreenOutline(const Symbol& symbol, const SymbolPosition& position,
                                          double screenFactor, const Transformation& transformation) {
    std::array<qmath::Point, 4> corners = OutlineCorners(symbol, position, screenFactor);
    transformation.PointsToScreen(corners);
    return corners;
}

} // namespace

bool ObjIdentByPt(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                  const Transformation& transformation, qmath::Point screen) {
    if (IsEmpty(symbol))
        return false;
    if (const qmath::Transform* const plain = transformation.Plain())
        if (const auto answer = QuickHit(symbol, position, screenFactor, *plain).Contains(screen))
            return *answer;
    return qmath::OutlineContains(ScreenOutline(symbol, position, screenFactor, transformation), screen);
}

bool ObjIdentByRect(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                    const Transformation& transformation, const qmath::Rect& screen) {
    if (IsEmpty(symbol))
        return false;
    if (const qmath::Transform* const plain = transformation.Plain())
        if (const auto answer = QuickHit(symbol, position, screenFactor, *plain).Meets(screen))
            return *answer;
    return qmath::OutlineMeets(ScreenOutline(symbol, position, screenFactor, transformation), screen);
}

} // namespace qsymbol
