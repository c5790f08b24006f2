#pragma once

#include "qsymbol/tools/drawable_symbol.h"
#include "qsymbol/tools/placing_tool.h"

#include <cstdint>
#include <memory>

namespace qsymbol {

/// Places one new symbol.
///
///  1. Init gives the symbol, SetOldLogPos a guide line's start where wanted.
///  2. MouseMove: the inverted image follows the mouse.
///  3. KeyUp: Home +90°, End −90°, Page Up +10°, Page Down −10°, Up +1°, Down −1°; Ctrl+Home back to 0;
///     the digit 0 draws the image anew.
///  4. MouseDown: the image moves to the click, stays there inverted and is fixed.
///  5. The host reads position and angle, and draws the symbol with its plan.
class SymbolInput final : public PlacingTool {
public:
    void Init(std::shared_ptr<const DrawableSymbol> symbol) { symbol_ = std::move(symbol); }

    /// Rotation in radians; what stands on the surface is not drawn anew.
    void SetAngle(double angle) { PresetAngle(angle); }
    /// Start of the guide line in world coordinates.
    void SetOldLogPos(qmath::Point start) { SetGuideStart(start); }

    /// keyCode: virtual key; shift: 2 when Ctrl alone is held. Other keys are ignored. The new angle lies
    /// in [0, 2π).
    void KeyUp(std::int16_t keyCode, std::int16_t shift, DrawingTarget& target);
    void MouseDown(ScreenPosition mouse, DrawingTarget& target);

private:
    bool HasImage() const override { return symbol_ != nullptr; }
    void DrawImage(const SymbolPosition& place, DrawingTarget& target) const override;

    std::shared_ptr<const DrawableSymbol> symbol_;
};

} // namespace qsymbol
