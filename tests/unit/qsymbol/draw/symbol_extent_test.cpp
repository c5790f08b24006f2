#include "qsymbol/draw/symbol_extent.h"

#include "qmath/math_util.h"
#include "support/elements.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace {

using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;
using support::Arc;
using support::Circle;
using support::Poly;
using support::Text;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

/// Every letter is half as wide as the font is high, 0.8 of it above the base line.
class EvenLetters final : public base::TextMeasure {
public:
    base::TextSize Measure(const base::FontRequest& font, std::u16string_view text) const override {
        return {.width = 0.5 * font.height * static_cast<double>(text.size()),
                .ascent = 0.8 * font.height,
                .descent = 0.2 * font.height};
    }
};

std::string Extent(std::vector<ElementRecord> elements, const base::TextMeasure* texts = nullptr) {
    Symbol symbol;
    symbol.elements = std::move(elements);
    const qmath::Rect extent = qsymbol::SymbolExtent(symbol, texts);
    return std::to_string(extent.left) + " " + std::to_string(extent.top) + " " +
           std::to_string(extent.right) + " " + std::to_string(extent.bottom);
}

ElementRecord Wide(ElementRecord element, std::int32_t width) {
    element.lineWidth = width;
    return element;
}

TEST(SymbolExtent, OfLinesAndCirclesWithHalfTheirPens) {
    EXPECT_EQ(Extent({}), "0 0 0 0");
    EXPECT_EQ(Extent({support::Element(ElementType::Undefined, {{-9, 9}}), Poly({})}), "0 0 0 0");
    EXPECT_EQ(Extent({Wide(Poly({{10, 20}, {30, 5}}), 0)}), "10 5 30 20");
    EXPECT_EQ(Extent({Wide(Poly({{10, 20}, {30, 5}}), 20)}), "0 -5 40 30");
    EXPECT_EQ(Extent({Wide(Poly({{10, 20}, {30, 5}}), 3)}), "8 3 32 22"); // whole units around it
    EXPECT_EQ(Extent({Wide(Poly({{10, 20}, {30, 5}}), -7)}), "10 5 30 20");
    EXPECT_EQ(Extent({Wide(Circle({0, 0}, -50), 20)}), "-60 -60 60 60");
    EXPECT_EQ(Extent({Wide(Circle({0, 0}, 50, 77), 20)}),
              "-50 -50 50 50"); // a filled one keeps its line inside
    EXPECT_EQ(Extent({Circle({kLowest + 5, kHighest - 5}, kHighest)}),
              std::to_string(kLowest) + " -15 14 " + std::to_string(kHighest));
}

TEST(SymbolExtent, OfArcsByTheirSweep) {
    const auto arc = [](qmath::Point start, qmath::Point end) {
        return Extent({Wide(
            Arc({1000, 1000}, 500, {1000 + start.x, 1000 + start.y}, {1000 + end.x, 1000 + end.y}), 0)});
    };
    EXPECT_EQ(arc({1, 0}, {0, -1}), "1000 500 1500 1000");   // a quarter, counter-clockwise as it is seen
    EXPECT_EQ(arc({0, -1}, {1, 0}), "500 500 1500 1500");    // the other three
    EXPECT_EQ(arc({3, -4}, {-3, -4}), "700 500 1300 600");   // over the top
    EXPECT_EQ(arc({-3, -4}, {3, -4}), "500 600 1500 1500");  // the long way round
    EXPECT_EQ(arc({4, -3}, {3, -4}), "1300 600 1400 700");   // between two axes
    EXPECT_EQ(arc({0, 9}, {0, -7}), "1000 500 1500 1500");   // a half
    EXPECT_EQ(arc({3, 4}, {300, 400}), "500 500 1500 1500"); // one direction: all of it
    EXPECT_EQ(arc({0, 0}, {0, -1}), "1000 500 1500 1000");   // a start on the centre lies to the right
    EXPECT_EQ(Extent({Wide(Arc({0, 0}, 500, {1, 0}, {0, -1}), 40)}), "-20 -520 520 20");
}

/// No point of an arc lies outside, and on each side one lies near.
TEST(SymbolExtent, OfAnyArcIsThatOfItsPoints) {
    for (int start = 0; start < 360; start += 7) {
        for (int sweep = 1; sweep < 360; sweep += 11) {
            const auto rim = [](double degrees) {
                const double radians = qmath::DegToRad(degrees);
                return qmath::Point{static_cast<std::int32_t>(std::lround(1e6 * std::cos(radians))),
                                    static_cast<std::int32_t>(std::lround(-1e6 * std::sin(radians)))};
            };
            Symbol symbol;
            symbol.elements = {Wide(Arc({0, 0}, 1000000, rim(start), rim(start + sweep)), 0)};
            const qmath::Rect extent = qsymbol::SymbolExtent(symbol);
            qmath::Rect points{qmath::kMaxLong, qmath::kMaxLong, -qmath::kMaxLong, -qmath::kMaxLong};
            for (double along = 0; along <= sweep; along += 0.25) {
                const qmath::Point point = rim(start + along);
                points = {std::min(points.left, point.x), std::min(points.top, point.y),
                          std::max(points.right, point.x), std::max(points.bottom, point.y)};
            }
            for (const auto& [own, seen] : {std::pair(extent.left, points.left),
                                            {extent.top, points.top},
                                            {extent.right, points.right},
                                            {extent.bottom, points.bottom}})
                ASSERT_NEAR(own, seen, 4) << start << " " << sweep;
        }
    }
}

TEST(SymbolExtent, OfTextsAsTheyAreMeasured) {
    const EvenLetters letters;
    // 72 points are 2540 units: four letters are 5080 wide, 2032 above and 508 below the base line.
    ElementRecord text = Text({0, 0}, u"Bett");
    text.font->size = 72;
    const auto aligned = [&](std::int32_t align, double angle = 0) {
        text.textAlign = align;
        text.textAngle = angle;
        return Extent({text}, &letters);
    };
    EXPECT_EQ(Extent({text}), "0 0 0 0"); // without a measure the anchor
    EXPECT_EQ(aligned(0), "0 0 5080 2540");
    EXPECT_EQ(aligned(2), "-5080 0 0 2540");
    EXPECT_EQ(aligned(6), "-2540 0 2540 2540");
    EXPECT_EQ(aligned(8), "0 -2540 5080 0");
    EXPECT_EQ(aligned(24), "0 -2032 5080 508");
    EXPECT_EQ(aligned(30), "-2540 -2032 2540 508");
    EXPECT_EQ(aligned(0, qmath::kPi / 2), "0 -5080 2540 0"); // reads upwards
    EXPECT_EQ(aligned(24, qmath::kPi), "-5080 -508 0 2032");
    text.lineClosed = true; // a size in hundredths
    text.font->size = 7200;
    EXPECT_EQ(aligned(0), "0 0 5080 2540");
    text.text.clear();
    EXPECT_EQ(Extent({text, Poly({{50, 50}, {60, 60}})}, &letters), "40 40 70 70");
}

TEST(SymbolExtent, FollowsEveryChangeAndIsSharedByCopies) {
    Symbol symbol;
    symbol.elements = {Wide(Poly({{0, 0}, {10, 10}}), 0)};
    const auto right = [](const Symbol& of) { return qsymbol::SymbolExtent(of).right; };
    EXPECT_EQ(right(symbol), 10);
    const Symbol copy = symbol;
    symbol.elements[0].points[1].x = 20;
    EXPECT_EQ(right(symbol), 20);
    symbol.elements.push_back(Wide(Poly({{0, 0}, {30, 10}}), 0));
    EXPECT_EQ(right(symbol), 30);
    symbol.elements.back().points[1].x = 40;
    EXPECT_EQ(right(symbol), 40);
    for (ElementRecord& element : symbol.elements)
        element.points[1].x = 50;
    EXPECT_EQ(right(symbol), 50);
    symbol.elements.resize(1);
    EXPECT_EQ(right(symbol), 50);
    EXPECT_EQ(right(copy), 10);
    Symbol taken = std::move(symbol);
    EXPECT_EQ(right(taken), 50);
    taken = copy;
    EXPECT_EQ(right(taken), 10);
    taken.elements.clear();
    EXPECT_EQ(right(taken), 0);
    // Kept by a copy: the list of a copy has what the original had computed.
    EXPECT_EQ(std::as_const(copy.elements).Extent().drawn.right, 10);
}

} // namespace
