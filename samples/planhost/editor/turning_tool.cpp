#include "turning_tool.h"

#include "../box_properties.h"
#include "symbol_group.h"

#include <cmath>
#include <numbers>

namespace {

constexpr int kStep = 15; // degrees, with Shift

/// From a point to another, in degrees counter-clockwise.
double DirectionTo(POINT from, POINT to) {
    return std::atan2(static_cast<double>(from.y) - to.y, static_cast<double>(to.x) - from.x) * 180 /
           std::numbers::pi;
}

} // namespace

TurningTool::TurningTool(const PlanDocument& document, POINT about, POINT from)
    : document_(document), about_(about), from_(DirectionTo(about, from)) {}

void TurningTool::MouseMove(PlanView& view, const Pointer& pointer) {
    const double turned =
        std::remainder(DirectionTo(about_, view.ToPlan(pointer.pixel)) - from_, 360); // the shorter way
    const int step = GetKeyState(VK_SHIFT) < 0 ? kStep : 1;
    TurnTo(view, static_cast<int>(std::lround(turned / step)) * step);
}

void TurningTool::MouseDown(PlanView& view, const Pointer& pointer) {
    MouseMove(view, pointer);
    Draw(view);
    isReady_ = true;
}

void TurningTool::Turn(PlanView& view, const TurnKey& key) {
    TurnTo(view, key.kind == TurnKey::By ? degrees_ + key.degrees : key.degrees);
}

void TurningTool::TurnTo(PlanView& view, int degrees) {
    Draw(view);
    degrees_ = degrees;
    Draw(view);
}

/// As the libraries' tools do it: each pixel of the image is inverted, so the second time takes it away.
void TurningTool::Draw(PlanView& view) {
    if (degrees_ == 0)
        return; // it lies on the symbols themselves
    constexpr LONG kNotXorPen = 10;
    constexpr LONG kCopyPen = 13;
    PutProperty(view.Box(), L"DrawMode", kNotXorPen);
    const std::vector<PlacedSymbol> turned = Turned();
    const std::vector<std::size_t>& places = document_.Marks().Places();
    for (std::size_t i = 0; i < turned.size(); ++i) {
        const auto& [x, y] = turned[i].at;
        Check(document_.Symbols()[places[i]]->Draw(x, y, Radians(turned[i]), &view.Box(),
                                                   &view.Transformation(), 1.0, 1.0, nullptr),
              Describe(turned[i]));
    }
    PutProperty(view.Box(), L"DrawMode", kCopyPen);
}

void TurningTool::Finish(PlanDocument& document) {
    document.Replace(document.Marks().Places(), Turned());
}

std::vector<PlacedSymbol> TurningTool::Turned() const {
    return TurnedAbout(document_.MarkedSymbols(), about_, degrees_);
}

std::optional<double> TurningTool::Direction() const {
    return DegreesOf(Radians({{}, {}, document_.MarkedSymbols().front().angle + degrees_}));
}

std::wstring TurningTool::Hint() const {
    return L"Drehen: um " + std::to_wstring(degrees_) +
           L"°; Umschalt dreht in Schritten von 15°; Esc bricht ab";
}
