#include "qsymbol/tools/CSymRef.h"

#include "qmath/math_util.h"
#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/recording_surface.h"
#include "unit/qsymbol/tools/recorded_target.h"
#include "unit/qsymbol/tools/value_symbol.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using qsymbol::CSymRef;
using qsymbol::SymbolPosition;
using tools::ValueSymbol;

CSymRef Reference(std::int32_t id, qmath::Point delta, double angle,
                  std::shared_ptr<const qsymbol::DrawableSymbol> symbol = nullptr) {
    CSymRef reference;
    reference.Init(id, delta, angle, std::move(symbol));
    return reference;
}

std::shared_ptr<ValueSymbol> Chair() {
    qsymbol::Symbol symbol;
    symbol.filePath = u"chair.syb";
    symbol.refX = 5;
    symbol.width = 40;
    symbol.elements = {support::Poly({{5, 0}, {105, 0}})};
    return std::make_shared<ValueSymbol>(symbol);
}

TEST(CSymRef, StartsEmpty) {
    const CSymRef reference;
    EXPECT_EQ(reference.ObjId(), 0);
    EXPECT_EQ(reference.DeltaX(), 0);
    EXPECT_EQ(reference.DeltaY(), 0);
    EXPECT_EQ(reference.Angle(), 0);
    EXPECT_EQ(reference.Symbol(), nullptr);
}

TEST(CSymRef, ShiftsByItsDeltaAndAddsItsAngle) {
    const SymbolPosition place = Reference(1, {100, 0}, 0.5).GetAbsoluteData({{1000, 2000}, 0});
    EXPECT_EQ(place.at, (qmath::Point{1100, 2000}));
    EXPECT_EQ(place.angle, 0.5);
}

/// A quarter turn counter-clockwise on a surface whose y grows downwards: from the right to the top.
TEST(CSymRef, TurnsItsDeltaWithTheObject) {
    const SymbolPosition place = Reference(1, {100, 0}, 0.5).GetAbsoluteData({{1000, 2000}, qmath::kPi / 2});
    EXPECT_EQ(place.at, (qmath::Point{1000, 1900}));
    EXPECT_DOUBLE_EQ(place.angle, qmath::kPi / 2 + 0.5);
    EXPECT_EQ(Reference(1, {0, 100}, 0).GetAbsoluteData({{0, 0}, qmath::kPi / 2}).at, (qmath::Point{100, 0}));
}

/// Where a symbol point is drawn with its symbol, a reference with that point as its delta stands.
TEST(CSymRef, SitsWhereTheTurnedObjectShowsIt) {
    qsymbol::Symbol symbol;
    symbol.elements = {support::Poly({{0, 0}, {730, -410}})};
    for (const double degrees : {0.0, 17.0, 90.0, 133.0, 250.0, 359.0}) {
        const SymbolPosition object{{1000, 2000}, qmath::DegToRad(degrees)};
        support::RecordingSurface surface;
        const qsymbol::PlainTransformation transformation = support::ScaledTransformation(1);
        qsymbol::DrawSymbol(symbol, object, surface, transformation, {.printer = 1, .screen = 1});
        const qmath::Point at = Reference(1, {730, -410}, 0).GetAbsoluteData(object).at;
        EXPECT_EQ(surface.calls.back(),
                  "Polyline (1000,2000) (" + std::to_string(at.x) + "," + std::to_string(at.y) + ")");
    }
}

TEST(CSymRef, RoundsToTheNearestAndOverflows) {
    EXPECT_EQ(Reference(1, {100, 0}, 0).GetAbsoluteData({{0, 0}, qmath::kPi / 4}).at,
              (qmath::Point{71, -71}));
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    const CSymRef far = Reference(1, {kMost, 0}, 0);
    EXPECT_EQ(support::ErrorNumberOf([&] { (void)far.GetAbsoluteData({{1, 0}, 0}); }), 6);
    EXPECT_EQ(far.GetAbsoluteData({{0, 0}, 0}).at.x, kMost);
}

TEST(CSymRef, CopyHasASymbolOfItsOwnWithoutItsSize) {
    const auto chair = Chair();
    const CSymRef original = Reference(17, {3, 4}, 0.5, chair);
    CSymRef copy;
    copy.CopyFrom(original);
    EXPECT_EQ(copy.ObjId(), 17);
    EXPECT_EQ(copy.DeltaX(), 3);
    EXPECT_EQ(copy.DeltaY(), 4);
    EXPECT_EQ(copy.Angle(), 0.5);
    EXPECT_EQ(original.Symbol(), chair);
    ASSERT_NE(copy.Symbol(), nullptr);
    ASSERT_NE(copy.Symbol(), original.Symbol());
    chair->value.refX = 99;
    const auto& own = dynamic_cast<const ValueSymbol&>(*copy.Symbol()).value;
    EXPECT_EQ(own.refX, 5);
    EXPECT_EQ(own.filePath, u"chair.syb");
    EXPECT_EQ(own.elements, chair->value.elements);
    EXPECT_EQ(own.width, 0);
    copy.CopyFrom(CSymRef());
    EXPECT_EQ(copy.Symbol(), nullptr);
}

TEST(CSymRef, DrawsItsSymbolAtTheAbsolutePlace) {
    support::RecordingSurface surface;
    tools::RecordedTarget target(surface, 10);
    const SymbolPosition object{{1000, 2000}, 0};
    Reference(1, {100, 0}, 0).Draw(object, target);
    EXPECT_EQ(surface.Take(), support::Calls{}); // no symbol
    Reference(1, {100, 0}, qmath::kPi / 2, Chair()).Draw(object, target);
    EXPECT_EQ(surface.calls.back(), "Polyline (110,200) (110,190)");
}

} // namespace
