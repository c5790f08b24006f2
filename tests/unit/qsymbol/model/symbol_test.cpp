#include "qsymbol/model/symbol.h"

#include "support/sample_symbols.h"

#include <gtest/gtest.h>

namespace {

using qsymbol::Symbol;

TEST(Symbol, NameComesFromThePath) {
    Symbol symbol;
    EXPECT_EQ(Name(symbol), u"");
    symbol.filePath = u"C:\\Symbole\\Küche.neu.syb";
    EXPECT_EQ(Name(symbol), u"Küche.neu");
    symbol.filePath = u"wc";
    EXPECT_EQ(Name(symbol), u"wc");
}

TEST(Symbol, CopyLeavesSizeAndMirrorValue) {
    Symbol source = support::EveryField();
    source.filePath = u"plan/a.syb";
    source.etagenbreite = 5;
    Symbol target;
    CopySymbol(target, source);
    EXPECT_EQ(target.filePath, source.filePath);
    EXPECT_EQ(target.refX, source.refX);
    EXPECT_EQ(target.refY, source.refY);
    EXPECT_EQ(target.elements, source.elements);
    EXPECT_EQ(target.width, 0);
    EXPECT_EQ(target.height, 0);
    EXPECT_EQ(target.etagenbreite, 0);
}

TEST(Symbol, CopyIsIndependentAndMayBeOfItself) {
    Symbol source = support::EveryField();
    Symbol target;
    CopySymbol(target, source);
    source.elements[0].points[0].x = 99;
    EXPECT_EQ(target.elements[0].points[0].x, -1);
    const Symbol before = source;
    CopySymbol(source, source);
    EXPECT_EQ(source, before);
}

TEST(Symbol, ResetKeepsPathAndMirrorValue) {
    Symbol symbol = support::EveryField();
    symbol.filePath = u"plan/a.syb";
    symbol.etagenbreite = 5;
    ResetContent(symbol);
    Symbol expected;
    expected.filePath = u"plan/a.syb";
    expected.etagenbreite = 5;
    EXPECT_EQ(symbol, expected);
}

TEST(Symbol, RecordStartValues) {
    const qsymbol::ElementRecord record;
    EXPECT_EQ(record.type, qsymbol::ElementType::Undefined);
    EXPECT_FALSE(record.lineClosed);
    EXPECT_EQ(record.lineWidth, 0);
    EXPECT_EQ(record.textAlign, 0);
    EXPECT_EQ(record.textBkMode, 1);
    EXPECT_EQ(record.textAngle, 0.0);
    EXPECT_EQ(record.radius, 0);
    EXPECT_EQ(record.mainColor, 0);
    EXPECT_EQ(record.fillColor, -1);
    EXPECT_TRUE(record.text.empty());
    EXPECT_TRUE(record.points.empty());
    EXPECT_FALSE(record.font.has_value());
}

} // namespace
