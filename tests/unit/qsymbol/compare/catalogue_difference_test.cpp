#include "qsymbol/compare/catalogue_difference.h"

#include "qsymbol/compare/decimal_separator.h"

#include <gmock/gmock.h>

#include <limits>
#include <numbers>

namespace {

using namespace qsymbol;
using testing::ElementsAre;

ElementRecord Element(ElementType type, std::int32_t colour) {
    ElementRecord element;
    element.type = type;
    element.mainColor = colour;
    element.points = {{0, 0}, {colour, 100}};
    return element;
}

Symbol Of(std::initializer_list<std::int32_t> colours) {
    Symbol symbol;
    for (const std::int32_t colour : colours)
        symbol.elements.push_back(Element(colour < 100 ? ElementType::Poly : ElementType::Text, colour));
    return symbol;
}

/// Each difference as "old->new", 0 for none.
std::vector<std::string> Aligned(const Symbol& before, const Symbol& after) {
    std::vector<std::string> found;
    for (const ElementDifference& element : Compare(before, after, Precision::Exact).elements)
        found.push_back(std::to_string(element.before) + "->" + std::to_string(element.after));
    return found;
}

CatalogueSymbol Named(std::u16string name, Symbol symbol, bool isText = false) {
    symbol.filePath = name + u".syb";
    return {std::move(name), isText, std::move(symbol)};
}

} // namespace

TEST(SymbolDifference, FindsTheSameElementsInTheirOrder) {
    EXPECT_THAT(Aligned(Of({1, 2, 3}), Of({1, 2, 3})), ElementsAre());
    EXPECT_THAT(Aligned(Of({1, 2, 3}), Of({1, 3})), ElementsAre("2->0"));
    EXPECT_THAT(Aligned(Of({1, 3}), Of({1, 2, 3, 4})), ElementsAre("0->2", "0->4"));
    EXPECT_THAT(Aligned(Of({1, 2, 3}), Of({1, 9, 3})), ElementsAre("2->2"));
    EXPECT_THAT(Aligned(Of({1, 2, 3}), Of({1, 200, 3})), ElementsAre("2->0", "0->2"));
    EXPECT_THAT(Aligned(Of({1, 2, 3, 4}), Of({2, 3, 4, 1})), ElementsAre("1->0", "0->4"));
}

TEST(SymbolDifference, NamesFieldsAndPoints) {
    const Symbol before = Of({5, 500});
    Symbol after = before;
    after.width = 7;
    after.elements[0].points[1].x = 6;
    after.elements[0].points.push_back({1, 1});
    after.elements[0].radius = 99; // a line has none
    after.elements[1].font = FontRecord{.bold = true};
    const SymbolDifference found = Compare(before, after, Precision::Exact);
    EXPECT_THAT(found.header, ElementsAre(Change{"width", ValueOf(0), ValueOf(7)}));
    ASSERT_EQ(found.elements.size(), 2u);
    EXPECT_THAT(found.elements[0].changes,
                ElementsAre(Change{"points", ValueOf(qmath::Point{5, 100}), ValueOf(qmath::Point{6, 100}), 2},
                            Change{"points", FieldValue(), ValueOf(qmath::Point{1, 1}), 3}));
    EXPECT_THAT(found.elements[1].changes, ElementsAre(Change{"bold", ValueOf(false), ValueOf(true)}));
}

TEST(SymbolDifference, TellsBothTexts) {
    Symbol before = Of({500});
    before.elements[0].text = u"WC";
    Symbol after = before;
    after.elements[0].text = u"Bad";
    EXPECT_THAT(Compare(before, after, Precision::Exact).elements.at(0).changes,
                ElementsAre(Change{"text", ValueOf(std::u16string(u"WC")), ValueOf(std::u16string(u"Bad"))}));
}

/// What is not drawn is no content, and text files do not keep it.
TEST(CatalogueDifference, ElementsWithoutAKindDoNotTellSymbolsApart) {
    Symbol more = Of({1});
    more.elements.push_back(Element(ElementType::Undefined, 7));
    more.elements.push_back(Element(static_cast<ElementType>(9), 7));
    const auto found = Compare({Named(u"Alt", Of({1}), true)}, {Named(u"Neu", more, true)});
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].before + u">" + found[0].after, u"Alt>Neu");
}

TEST(SymbolDifference, TextFilesKeepHundredthsOfDegreesAndWholeFontSizes) {
    Symbol before = Of({500});
    before.elements[0].font = FontRecord{.size = 12};
    Symbol after = before;
    after.elements[0].textAngle = 0.004 * std::numbers::pi / 180;
    after.elements[0].font->size = 12.4;
    for (const ElementType type : {ElementType::Circle, ElementType::Text}) {
        ElementRecord element = Element(type, 7);
        element.points = {{1, 2}};
        before.elements.push_back(element);
        element.points.push_back({3, 4}); // a text file has one point of these
        after.elements.push_back(element);
    }
    after.elements.push_back({});
    EXPECT_TRUE(Compare(before, after, Precision::Text).IsEmpty());
    EXPECT_EQ(Compare(before, after, Precision::Exact).elements.size(), 4u);
}

TEST(SymbolDifference, APointLessIsToldAndAnAngleThatIsNoNumberEqualsItself) {
    Symbol before = Of({5, 500});
    before.elements[1].textAngle = std::numeric_limits<double>::quiet_NaN();
    Symbol after = before;
    EXPECT_TRUE(Compare(before, after, Precision::Exact).IsEmpty());
    after.elements[1].textAngle = 1;
    after.elements[0].points.pop_back();
    const SymbolDifference found = Compare(before, after, Precision::Exact);
    ASSERT_EQ(found.elements.size(), 2u);
    EXPECT_THAT(found.elements[0].changes,
                ElementsAre(Change{"points", ValueOf(qmath::Point{5, 100}), FieldValue(), 2}));
    ASSERT_EQ(found.elements[1].changes.size(), 1u);
    EXPECT_EQ(found.elements[1].changes[0].field, "textAngle");
    EXPECT_EQ(Compare(after, before, Precision::Exact).elements.size(), 2u);
}

TEST(SymbolDifference, VeryManyElementsAreComparedPlaceByPlace) {
    Symbol before;
    Symbol after;
    for (std::int32_t i = 0; i < 3000; ++i) {
        before.elements.push_back(Element(ElementType::Poly, i));
        after.elements.push_back(Element(ElementType::Poly, i + 10000));
    }
    EXPECT_EQ(Compare(before, after, Precision::Exact).elements.size(), 3000u);
    after.elements[1000] = before.elements[1000];
    EXPECT_EQ(Compare(before, after, Precision::Exact).elements.size(), 2999u);
}

TEST(CatalogueDifference, MatchesByNameThenByContent) {
    const auto found = Compare({Named(u"Alt", Of({1})), Named(u"Bleibt", Of({2})), Named(u"Weg", Of({3}))},
                               {Named(u"BLEIBT", Of({2})), Named(u"Neu", Of({1})), Named(u"Mehr", Of({4}))});
    std::vector<std::u16string> names;
    for (const CatalogueDifference& difference : found)
        names.push_back(difference.before + u">" + difference.after);
    EXPECT_THAT(names, ElementsAre(u"Weg>", u"Bleibt>BLEIBT", u"Alt>Neu", u">Mehr"));
}

TEST(DecimalSeparator, IsTheOneThatTheNumbersHold) {
    EXPECT_EQ(DecimalSeparatorOf("SYM;CNT=1;WID=3,00"), ',');
    EXPECT_EQ(DecimalSeparatorOf("SYM;CNT=1;WID=1.003,00"), ',');
    EXPECT_EQ(DecimalSeparatorOf("SYM;CNT=1\r\nSTRING;\"1,5\"\r\nTEXT;NAM=A,B;ANG=1.5"), '.');
    EXPECT_EQ(DecimalSeparatorOf("SYM;CNT=1;WID=3"), std::nullopt);
}
