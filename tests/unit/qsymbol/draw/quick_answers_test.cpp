#include "qmath/math_util.h"
#include "qsymbol/draw/bounds.h"
#include "qsymbol/draw/hit_test.h"
#include "qsymbol/draw/snapping.h"
#include "support/elements.h"
#include "support/error_number_of.h"
#include "support/opaque_transformation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>

/// Hits and snaps that need not look at every corner and point give what the plain formulas give: the same answers and
/// the same errors. QSYMBOL_PLACEMENTS sets how many random placements are compared.

namespace {

using qsymbol::Symbol;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

int Placements() {
    const char* const wanted = std::getenv("QSYMBOL_PLACEMENTS");
    return wanted == nullptr ? 20000 : std::atoi(wanted);
}

/// A symbol somewhere, and a cursor that is often where it matters.
struct Case {
    Symbol symbol;
    qsymbol::SymbolPosition position;
    double factor = 0;
    qmath::Transform transform;
    qmath::Point cursor;
    qmath::Rect rect;
    std::int16_t range = 0;
};

class Chance {
public:
    Case Next() {
        Case made;
        made.symbol = AnySymbol();
        made.position = {.at = {Coordinate(), Coordinate()}, .angle = Angle()};
        made.factor = One(std::array{0.0, 1.0, 0.37, 2.5, -1.5, 1e-6, 40.0, 0.0, 1.0});
        made.transform.SetScale(std::exp(Real(std::log(1e-3), std::log(1e5))));
        if (Whole(0, 3) == 0)
            made.transform.SetScale(1);
        made.transform.SetOffsetX(Near(made.position.at.x));
        made.transform.SetOffsetY(Near(made.position.at.y));
        made.cursor = Cursor(made);
        const std::int32_t width = Whole(-3, 40);
        const std::int32_t height = Whole(-3, 40);
        made.rect = {made.cursor.x, made.cursor.y, Shifted(made.cursor.x, width),
                     Shifted(made.cursor.y, height)};
        made.range = static_cast<std::int16_t>(Whole(-1, 12));
        return made;
    }

private:
    std::int32_t Whole(std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(random_);
    }
    double Real(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    template <class Values>
    typename Values::value_type One(const Values& values) {
        return values[static_cast<std::size_t>(Whole(0, static_cast<std::int32_t>(values.size()) - 1))];
    }
    static std::int32_t Shifted(std::int64_t value, std::int64_t by) {
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(value + by, std::numeric_limits<std::int32_t>::min(), qmath::kMaxLong));
    }
    /// All four quadrants; now and then the ends of the range.
    std::int32_t Coordinate() {
        const std::int32_t reach = One(std::array{100, 100000, 100000000, qmath::kMaxLong});
        const std::int32_t value = Whole(-reach, reach);
        return Whole(0, 9) == 0 ? Shifted(value < 0 ? -qmath::kMaxLong : qmath::kMaxLong, -value / 1000)
                                : value;
    }
    std::int32_t Near(std::int32_t value) {
        return Whole(0, 4) == 0 ? Coordinate() : Shifted(value, Whole(-9999, 9999));
    }
    double Angle() {
        switch (Whole(0, 19)) {
        case 0: return One(std::array{kNaN, kInfinity, 1e300, -1e18});
        case 1:
        case 2:
        case 3: return Whole(-8, 8) * qmath::kPi / 2;
        case 4: return Whole(-8, 8) * qmath::kPi / 4 + Real(-1e-9, 1e-9);
        default: return Real(-7, 7);
        }
    }
    Symbol AnySymbol() {
        Symbol symbol;
        const std::int32_t reach = One(std::array{3, 500, 50000, 50000, 1000000000});
        symbol.width = Whole(Whole(0, 9) == 0 ? -reach : 0, reach);
        symbol.height = Whole(Whole(0, 9) == 0 ? -reach : 0, reach);
        symbol.refX = Whole(-reach, reach);
        symbol.refY = Whole(0, 2) == 0 ? symbol.height / 2 : Whole(-reach, reach);
        const int points = Whole(1, 14);
        qsymbol::ElementRecord poly = support::Poly({});
        for (int i = 0; i < points; ++i)
            poly.points.push_back({Whole(-reach, reach), Whole(-reach, reach)});
        symbol.elements.push_back(poly);
        symbol.elements.push_back(support::Text({Whole(-reach, reach), 0}, u"a"));
        symbol.elements.push_back(support::Arc({0, Whole(0, reach)}, reach, {reach, 0}, {0, -reach}));
        return symbol;
    }
    /// On the outline or on a point, give or take some pixels; else anywhere.
    qmath::Point Cursor(const Case& made) {
        try {
            qmath::Point world = made.position.at;
            if (Whole(0, 1) == 0) {
                const auto corners = qsymbol::OutlineCorners(made.symbol, made.position, made.factor);
                const std::size_t edge = static_cast<std::size_t>(Whole(0, 3));
                const double along = Real(0, 1);
                const auto between = [&](std::int32_t a, std::int32_t b) {
                    return base::RoundToLong(a + along * (static_cast<double>(b) - a));
                };
                world = {between(corners[edge].x, corners[(edge + 1) % 4].x),
                         between(corners[edge].y, corners[(edge + 1) % 4].y)};
            } else {
                const qsymbol::ElementRecord& poly = std::as_const(made.symbol.elements)[0];
                world = qsymbol::SurfaceFreePlacement(Reference(made.symbol), made.position, made.factor)
                            .Map(One(poly.points));
            }
            const qmath::Point pixel = made.transform.WorldToScreen(world);
            const std::int32_t away = One(std::array{0, 1, 3, 12, 200});
            return {Shifted(pixel.x, Whole(-away, away)), Shifted(pixel.y, Whole(-away, away))};
        } catch (const base::Error&) {
            return {Coordinate(), Coordinate()};
        }
    }

    std::mt19937 random_{static_cast<unsigned>(20261121)};
};

/// An answer, or the number of the error in its place.
template <class Question>
std::string Answer(Question&& question) {
    std::string answer;
    const int error = support::ErrorNumberOf([&] { answer = question(); });
    return error == 0 ? answer : "error " + std::to_string(error);
}

std::string ByEveryPoint(const Case& made, float x, float y) {
    const qsymbol::Placement placement =
        qsymbol::SurfaceFreePlacement(Reference(made.symbol), made.position, made.factor);
    for (const qsymbol::ElementRecord& element : made.symbol.elements) {
        if (element.type == qsymbol::ElementType::Text)
            continue;
        for (const qmath::Point point : element.points) {
            const qmath::Point world = placement.Map(point);
            const qmath::Point screen = made.transform.WorldToScreen(world);
            if (std::abs(screen.x - static_cast<double>(x)) < made.range &&
                std::abs(screen.y - static_cast<double>(y)) < made.range)
                return std::to_string(world.x) + "," + std::to_string(world.y);
        }
    }
    return "none";
}

std::string Caught(const Case& made, const qsymbol::Transformation& transformation, float x, float y) {
    const auto caught =
        qsymbol::CatchPt(made.symbol, made.position, made.factor, transformation, x, y, made.range);
    return caught ? std::to_string(caught->world.x) + "," + std::to_string(caught->world.y) : "none";
}

TEST(QuickAnswers, AreThoseOfThePlainFormulas) {
    Chance chance;
    std::array<int, 3> hits{};
    int errors = 0;
    const int placements = Placements();
    for (int i = 0; i < placements; ++i) {
        const Case made = chance.Next();
        const qsymbol::PlainTransformation plain(made.transform);
        const support::OpaqueTransformation opaque(made.transform);
        const auto byPoint = [&](const qsymbol::Transformation& transformation) {
            return Answer([&] {
                return qsymbol::ObjIdentByPt(made.symbol, made.position, made.factor, transformation,
                                             made.cursor)
                           ? "hit"
                           : "miss";
            });
        };
        const auto byRect = [&](const qsymbol::Transformation& transformation) {
            return Answer([&] {
                return qsymbol::ObjIdentByRect(made.symbol, made.position, made.factor, transformation,
                                               made.rect)
                           ? "hit"
                           : "miss";
            });
        };
        const auto x = static_cast<float>(made.cursor.x);
        const auto y = static_cast<float>(made.cursor.y);
        const std::string expectedPoint = byPoint(opaque);
        const std::string expectedRect = byRect(opaque);
        const std::string expectedCatch = Answer([&] { return ByEveryPoint(made, x, y); });
        ASSERT_EQ(byPoint(plain), expectedPoint) << i;
        ASSERT_EQ(byRect(plain), expectedRect) << i;
        ASSERT_EQ(Answer([&] { return Caught(made, plain, x, y); }), expectedCatch) << i;
        ASSERT_EQ(Answer([&] { return Caught(made, opaque, x, y); }), expectedCatch) << i;
        hits[0] += expectedPoint == "hit";
        hits[1] += expectedRect == "hit";
        hits[2] += expectedCatch != "none" && !expectedCatch.starts_with("error");
        errors += expectedPoint == "error 6";
    }
    // The cases are worth something: every answer comes often.
    for (const int count : hits) {
        EXPECT_GT(count, placements / 20);
        EXPECT_LT(count, placements / 2);
    }
    EXPECT_GT(errors, placements / 50);
}

TEST(QuickAnswers, AFarSymbolCostsFourCornersHoweverManyPointsItHas) {
    Symbol symbol;
    symbol.elements.push_back(support::Poly(std::vector<qmath::Point>(1000, {10, 20})));
    const support::OpaqueTransformation opaque{qmath::Transform()};
    const auto caught = [&](float x) {
        return qsymbol::CatchPt(symbol, {.at = {500, 500}, .angle = 1}, 0, opaque, x, 500, 5).has_value();
    };
    EXPECT_FALSE(caught(5000));
    EXPECT_EQ(opaque.calls, 4);
    EXPECT_FALSE(caught(500));
    EXPECT_GT(opaque.calls, 1000);
}

} // namespace
