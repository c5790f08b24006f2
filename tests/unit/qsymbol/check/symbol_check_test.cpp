#include "qsymbol/check/symbol_check.h"

#include "qsymbol/check/file_check.h"
#include "qsymbol/check/millimetres.h"

#include <gmock/gmock.h>

#include <functional>

namespace {

using namespace qsymbol;
using testing::ElementsAre;

ElementRecord Line(std::vector<qmath::Point> points) {
    ElementRecord line;
    line.type = ElementType::Poly;
    line.points = std::move(points);
    return line;
}

/// 100 x 50 mm with an arc, a circle and a text: nothing is wrong with it.
Symbol Whole() {
    Symbol symbol;
    symbol.width = 10000;
    symbol.height = 5000;
    symbol.elements.push_back(Line({{0, 0}, {10000, 5000}}));
    ElementRecord arc = Line({{5000, 2500}, {6000, 2500}, {5000, 1500}});
    arc.type = ElementType::Arc;
    arc.radius = 1000;
    symbol.elements.push_back(arc);
    ElementRecord circle = Line({{5000, 2500}});
    circle.type = ElementType::Circle;
    circle.radius = 1000;
    symbol.elements.push_back(circle);
    ElementRecord text = Line({{90000, 0}}); // where a text stands does not count
    text.type = ElementType::Text;
    text.text = u"WC";
    symbol.elements.push_back(text);
    return symbol;
}

/// The code and the element of each finding after a change.
std::vector<std::string> Codes(const std::function<void(Symbol&)>& change) {
    Symbol symbol = Whole();
    change(symbol);
    std::vector<std::string> codes;
    for (const Finding& finding : CheckSymbol(symbol))
        codes.push_back(std::string(finding.code) +
                        (finding.element ? " " + std::to_string(*finding.element) : std::string()));
    return codes;
}

} // namespace

TEST(SymbolCheck, TellsWhatIsWrong) {
    EXPECT_THAT(Codes([](Symbol&) {}), ElementsAre());
    EXPECT_THAT(Codes([](Symbol& s) { s.elements.clear(); }), ElementsAre("empty"));
    EXPECT_THAT(Codes([](Symbol& s) { s.elements[2].type = static_cast<ElementType>(7); }),
                ElementsAre("undefined-element 3"));
    EXPECT_THAT(Codes([](Symbol& s) {
                    s.elements[0].points[1] = {0, 0};
                }),
                ElementsAre("degenerate-element 1", "size-mismatch"));
    EXPECT_THAT(Codes([](Symbol& s) { s.elements[0].points.resize(1); }),
                ElementsAre("degenerate-element 1", "size-mismatch"));
    EXPECT_THAT(Codes([](Symbol& s) { s.elements[1].radius = s.elements[2].radius = 0; }),
                ElementsAre("degenerate-element 2", "degenerate-element 3"));
    EXPECT_THAT(Codes([](Symbol& s) { s.elements[3].text.clear(); }), ElementsAre("degenerate-element 4"));
    EXPECT_THAT(Codes([](Symbol& s) { s.width = s.height = 0; }), ElementsAre("zero-size"));
    EXPECT_THAT(Codes([](Symbol& s) { s.refX = -10001; }), ElementsAre("reference-far"));
    EXPECT_THAT(Codes([](Symbol& s) { s.refX = -10000; }), ElementsAre());
    EXPECT_THAT(Codes([](Symbol& s) { s.elements[3].mainColor = 0x010203; }),
                ElementsAre("colour-not-in-table 4"));
    EXPECT_THAT(Codes([](Symbol& s) { s.elements[2].fillColor = 0x010203; }), ElementsAre());
    EXPECT_THAT(Codes([](Symbol& s) { s.elements[3].text = u"a\nb"; }), ElementsAre("text-line-break 4"));
    EXPECT_THAT(Codes([](Symbol& s) { s.elements[3].font = FontRecord{.size = 150}; }), ElementsAre());
    EXPECT_THAT(Codes([](Symbol& s) { s.elements[3].font = FontRecord{.size = 151}; }),
                ElementsAre("dxf-text-size 4"));
}

TEST(SymbolCheck, SizesMayDifferByATwentiethOfTheLargerSide) {
    const auto drawn = [](std::int32_t height, std::int32_t pen) {
        return Codes([=](Symbol& s) {
            s.elements[0].points[1].y = height;
            s.elements[0].lineWidth = pen;
        });
    };
    EXPECT_THAT(drawn(5500, 0), ElementsAre());
    EXPECT_THAT(drawn(5501, 0), ElementsAre("size-mismatch"));
    EXPECT_THAT(drawn(5400, 100), ElementsAre());
    EXPECT_THAT(drawn(5400, 102), ElementsAre("size-mismatch"));
    Symbol symbol = Whole();
    symbol.width = 20000;
    ASSERT_EQ(CheckSymbol(symbol).size(), 1u);
    EXPECT_EQ(CheckSymbol(symbol)[0].message,
              u"the nominal size is 200 x 50 mm, what is drawn measures 100 x 50 mm");
}

TEST(FileCheck, ASecondFileOfOneFormatAndNameIsFound) {
    FileNames names;
    EXPECT_FALSE(names.Add(u"a/Tür.syb"));
    EXPECT_FALSE(names.Add(u"a/Tür.syt"));
    EXPECT_FALSE(names.Add(u"a/Türe.syb"));
    const auto finding = names.Add(u"b/TÜR.SYB");
    ASSERT_TRUE(finding);
    EXPECT_EQ(finding->code, "duplicate-name");
    EXPECT_NE(finding->message.find(u"a/Tür.syb"), std::u16string::npos);
}

TEST(Millimetres, HaveTheDecimalsThatTheyNeed) {
    EXPECT_EQ(Millimetres(88500), "885");
    EXPECT_EQ(Millimetres(1250), "12.5");
    EXPECT_EQ(Millimetres(-5), "-0.05");
}
