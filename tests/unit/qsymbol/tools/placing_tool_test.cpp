#include "qsymbol/tools/symbol_input.h"
#include "qsymbol/tools/symbol_tool.h"

#include "support/error_number_of.h"
#include "unit/qsymbol/tools/recorded_target.h"
#include "unit/qsymbol/tools/value_symbol.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <utility>

namespace {

using qsymbol::SymbolInput;
using qsymbol::SymbolTool;
using tools::RecordedTarget;

class PlacingTool : public testing::Test {
protected:
    support::RecordingSurface surface;
    RecordedTarget target{surface, 10};
};

/// What an event ignores it does not even open: a host's broken control is no matter then.
TEST_F(PlacingTool, OpensNothingForAnEventThatItIgnores) {
    SymbolInput input;
    input.Init(std::make_shared<tools::ValueSymbol>(qsymbol::Symbol()));
    input.Draw(target);
    input.KeyUp(36, 0, target);
    input.KeyUp(65, 0, target);
    SymbolTool tool;
    tool.Draw(target);
    tool.KeyUp(107, target);
    tool.KeyUp(65, target);
    tool.MouseDownReal({1, 2}, false, target);
    tool.MouseDown({1, 2}, target);
    tool.MouseMove({1, 2}, target);
    EXPECT_EQ(target.surfacesOpened, 0);
    EXPECT_EQ(target.transformationsOpened, 0);
    EXPECT_EQ(surface.Take(), support::Calls{});
}

TEST_F(PlacingTool, AnInputWithoutASymbolTakesPartInEverythingButDrawing) {
    SymbolInput input;
    input.MouseMove({30, 40}, target);
    EXPECT_EQ(input.Position(), (qmath::Point{300, 400}));
    input.MouseDown({31, 40}, target);
    EXPECT_TRUE(input.Ready());
    input.Draw(target);
    EXPECT_EQ(surface.Take(), support::Calls{});
}

/// A symbol that does something while it is drawn, as a host's control may.
class BusySymbol final : public qsymbol::DrawableSymbol {
public:
    void Draw(const qsymbol::SymbolPosition&, qsymbol::DrawingTarget&) const override {
        ++drawn;
        if (const auto action = std::exchange(whenDrawn, nullptr))
            action();
    }
    std::shared_ptr<const DrawableSymbol> Copy() const override { return nullptr; }

    mutable int drawn = 0;
    mutable std::function<void()> whenDrawn; ///< once
};

TEST_F(PlacingTool, ReferencesMayComeWhileTheGroupIsDrawn) {
    const auto busy = std::make_shared<BusySymbol>();
    const auto added = std::make_shared<BusySymbol>();
    SymbolTool tool;
    int id = 0;
    busy->whenDrawn = [&] {
        for (int i = 0; i < 100; ++i) // enough for the list to grow into new memory
            tool.AddSymref(++id, {0, 0}, 0, added);
    };
    tool.AddSymref(++id, {0, 0}, 0, busy);
    tool.MouseMove({1, 1}, target);
    EXPECT_EQ(tool.SymRefCount(), 101);
    EXPECT_EQ(busy->drawn, 1);
    EXPECT_EQ(added->drawn, 100);
}

TEST_F(PlacingTool, EventsMayComeWhileTheSymbolIsDrawn) {
    const auto busy = std::make_shared<BusySymbol>();
    SymbolInput input;
    input.Init(busy);
    busy->whenDrawn = [&] {
        input.Init(nullptr); // the tool's own hold goes while the symbol is at work
        input.MouseDown({5, 5}, target);
    };
    input.MouseMove({1, 1}, target);
    EXPECT_TRUE(input.Ready());
    EXPECT_EQ(input.Position(), (qmath::Point{50, 50}));
}

/// An angle that is no number cannot be turned on from.
TEST_F(PlacingTool, AnAngleThatIsNoNumberIsAnErrorOfTheNextTurn) {
    SymbolInput input;
    input.SetAngle(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(support::ErrorNumberOf([&] { input.KeyUp(36, 0, target); }), 5);
    input.KeyUp(36, 2, target);
    EXPECT_EQ(input.Angle(), 0);
}

} // namespace
