#include "qsymbol/tools/symbol_input.h"

#include "qmath/math_util.h"

#include <algorithm>
#include <array>

namespace qsymbol {

namespace {

struct TurningKey {
    std::int16_t code;
    double degrees;
};

constexpr std::int16_t kHome = 36;
constexpr std::int16_t kDigit0 = 48;
constexpr std::int16_t kCtrl = 2;

constexpr std::array<TurningKey, 6> kTurningKeys{{
    {kHome, 90},
    {35, -90}, // End
    {33, 10},  // Page Up
    {34, -10}, // Page Down
    {38, 1},   // Up
    {40, -1},  // Down
}};

} // namespace

void SymbolInput::KeyUp(std::int16_t keyCode, std::int16_t shift, DrawingTarget& target) {
    if (Ready())
        return;
    if (keyCode == kDigit0)
        return TurnTo(Angle(), target);
    if (keyCode == kHome && shift == kCtrl)
        return TurnTo(0, target);
    const auto* const key = std::find_if(kTurningKeys.begin(), kTurningKeys.end(),
                                         [&](const TurningKey& entry) { return entry.code == keyCode; });
    if (key != kTurningKeys.end())
        TurnTo(qmath::NormalizeAngle(Angle() + qmath::DegToRad(key->degrees)), target);
}

void SymbolInput::MouseDown(ScreenPosition mouse, DrawingTarget& target) {
    if (Ready())
        return;
    MouseMove(mouse, target);
    Fix();
}

void SymbolInput::DrawImage(const SymbolPosition& place, DrawingTarget& target) const {
    const std::shared_ptr<const DrawableSymbol> symbol = symbol_;
    symbol->Draw(place, target);
}

} // namespace qsymbol
