#pragma once

#include "qsymbol/tools/CSymRefColl.h"
#include "qsymbol/tools/placing_tool.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace qsymbol {

/// Places or moves a group of symbol references as one.
///
///  1. AddSymref gives the references, SetMoveStartPos the base of relative fixing and of a guide line.
///  2. MouseMove: the inverted group follows the mouse.
///  3. KeyUp, keys of the numeric pad: + and − turn by −1° and +1°, * and / by −10° and +10°; 8, 7, 4, 1, 2, 3, 6, 9
///     turn so that the first reference looks to 0°, 45° and so on.
///  4. MouseDown: the image is taken away and the group is fixed at the click. MouseDownReal: the same at logical
///     coordinates.
///  5. The host reads the place of each reference and draws the group with its plan.
class SymbolTool final : public PlacingTool {
public:
    /// The symbol is shared and may be missing. Error 457 for an object id that is there already.
    void AddSymref(std::int32_t objectId, qmath::Point delta, double angle,
                   std::shared_ptr<const DrawableSymbol> symbol);
    std::int32_t SymRefCount() const { return references_.Count(); }
    /// World coordinates.
    void SetMoveStartPos(qmath::Point start) { SetGuideStart(start); }

    /// keyCode: virtual key; other keys are ignored. Error 91 for a direction without any reference. The new
    /// angle lies in [0, 2π).
    void KeyUp(std::int16_t keyCode, DrawingTarget& target);
    void MouseDown(ScreenPosition mouse, DrawingTarget& target);
    /// relative: the point counts from the move start; error 91 without one, error 6 outside 32 bits.
    void MouseDownReal(qmath::Point point, bool relative, DrawingTarget& target);

    /// position: from 1; error 91 when there is none.
    std::int32_t GetObjIdByPos(std::int32_t position) const;
    /// Where the reference of an object stands; nothing before the first position. Error 91 for an
    /// unknown id.
    std::optional<SymbolPosition> GetSymrefDataById(std::int32_t objectId) const;
    /// The same for the reference at a position from 1.
    std::optional<SymbolPosition> GetSymrefDataByPos(std::int32_t position) const;

private:
    bool HasImage() const override { return true; }
    void DrawImage(const SymbolPosition& place, DrawingTarget& target) const override;
    /// The angle after a key; nothing for a key that is ignored.
    std::optional<double> AngleAfter(std::int16_t keyCode) const;

    CSymRefColl references_;
};

} // namespace qsymbol
