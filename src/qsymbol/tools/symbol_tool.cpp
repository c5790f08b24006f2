#include "qsymbol/tools/symbol_tool.h"

#include "base/checked.h"
#include "qmath/math_util.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qsymbol {

namespace {

enum class KeyTurn {
    Step,     ///< on from the present angle
    Direction ///< to where the first reference looks in this direction
};

struct PadKey {
    std::int16_t code;
    KeyTurn turn;
    double degrees;
};

/// The numeric pad. Plus turns clockwise and minus counter-clockwise: hosts rely on it.
constexpr std::array<PadKey, 12> kPadKeys{{
    {107, KeyTurn::Step, -1},       // +
    {109, KeyTurn::Step, 1},        // -
    {106, KeyTurn::Step, -10},      // *
    {111, KeyTurn::Step, 10},       // /
    {104, KeyTurn::Direction, 0},   // 8
    {103, KeyTurn::Direction, 45},  // 7
    {100, KeyTurn::Direction, 90},  // 4
    {97, KeyTurn::Direction, 135},  // 1
    {98, KeyTurn::Direction, 180},  // 2
    {99, KeyTurn::Direction, 225},  // 3
    {102, KeyTurn::Direction, 270}, // 6
    {105, KeyTurn::Direction, 315}, // 9
}};

/// Error 91 for a reference that is not there.
const CSymRef& Found(const CSymRefColl::Reference& reference) {
    if (reference == nullptr)
        base::Raise(base::RunTimeError::ObjectNotSet);
    return *reference;
}

} // namespace

void SymbolTool::AddSymref(std::int32_t objectId, qmath::Point delta, double angle,
                           std::shared_ptr<const DrawableSymbol> symbol) {
    const auto made = std::make_shared<CSymRef>();
    made->Init(objectId, delta, angle, std::move(symbol));
    CSymRefColl::Reference reference = made;
    references_.AppendRef(reference);
}

void SymbolTool::KeyUp(std::int16_t keyCode, DrawingTarget& target) {
    if (Ready())
        return;
    if (const std::optional<double> angle = AngleAfter(keyCode))
        TurnTo(qmath::NormalizeAngle(*angle), target);
}

std::optional<double> SymbolTool::AngleAfter(std::int16_t keyCode) const {
    const auto* const key = std::find_if(kPadKeys.begin(), kPadKeys.end(),
                                         [&](const PadKey& entry) { return entry.code == keyCode; });
    if (key == kPadKeys.end())
        return {};
    const double turn = qmath::DegToRad(key->degrees);
    return key->turn == KeyTurn::Step ? Angle() + turn : turn - Found(references_.ItemByPos(1)).Angle();
}

void SymbolTool::MouseDown(ScreenPosition mouse, DrawingTarget& target) {
    if (Ready())
        return;
    MoveTo(WorldPoint(mouse, target), target, Redraw::No);
    Fix();
}

void SymbolTool::MouseDownReal(qmath::Point point, bool relative, DrawingTarget& target) {
    if (Ready())
        return;
    if (relative) {
        if (!GuideStart())
            base::Raise(base::RunTimeError::ObjectNotSet);
        point = {base::CheckedAdd(GuideStart()->x, point.x), base::CheckedAdd(GuideStart()->y, point.y)};
    }
    MoveTo(point, target, Redraw::No);
    Fix();
}

std::int32_t SymbolTool::GetObjIdByPos(std::int32_t position) const {
    return Found(references_.ItemByPos(position)).ObjId();
}

std::optional<SymbolPosition> SymbolTool::GetSymrefDataById(std::int32_t objectId) const {
    if (!Position())
        return {};
    return Found(references_.ItemByIndex(objectId)).GetAbsoluteData({*Position(), Angle()});
}

std::optional<SymbolPosition> SymbolTool::GetSymrefDataByPos(std::int32_t position) const {
    if (!Position())
        return {};
    return Found(references_.ItemByPos(position)).GetAbsoluteData({*Position(), Angle()});
}

void SymbolTool::DrawImage(const SymbolPosition& place, DrawingTarget& target) const {
    std::uint64_t last = 0;
    while (const auto* const item = references_.Items().NextAfter(last)) {
        last = item->serial;
        const CSymRefColl::Reference reference = item->value;
        reference->Draw(place, target);
    }
}

} // namespace qsymbol
