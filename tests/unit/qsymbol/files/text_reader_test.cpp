#include "qsymbol/files/text_reader.h"

#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gmock/gmock.h>

#include <numbers>

namespace {

using base::RunTimeError;
using qmath::Point;
using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;
using support::Caught;
using support::Expected;
using testing::ElementsAre;

const std::string kHeader = "SYM;CNT=1;WID=1,00;HEI=1,00;RPX=0,00;RPY=0,00\n";

class TextReader : public testing::Test {
protected:
    support::TestEnvironment world_;
    Symbol symbol_ = support::EveryField(); // whatever was there must go

    Caught Parse(const std::string& text) {
        return support::CaughtFrom([&] { world_.Parse(qsymbol::ParseText, symbol_, text); });
    }
    /// The one element of a file with this text behind its header.
    ElementRecord Element(const std::string& text) {
        EXPECT_EQ(Parse(kHeader + text), Caught()) << text;
        return symbol_.elements.empty() ? ElementRecord() : symbol_.elements[0];
    }
    Caught ElementError(const std::string& text) { return Parse(kHeader + text); }
};

TEST_F(TextReader, TheTenLinesOfTheExample) {
    EXPECT_EQ(Parse(support::WashRoomText()), Caught());
    EXPECT_EQ(symbol_, support::WashRoom());
}

TEST_F(TextReader, LinesEndWithLineFeed) {
    std::string text = support::WashRoomText();
    std::erase(text, '\r');
    text.pop_back(); // the last line need not end
    EXPECT_EQ(Parse(text), Caught());
    EXPECT_EQ(symbol_, support::WashRoom());
}

TEST_F(TextReader, ALoneCarriageReturnIsNoLineEnd) {
    EXPECT_EQ(ElementError("POLY;CNT=1\rPOINT;1,00;1,00\n"), Expected(RunTimeError::TypeMismatch));
    EXPECT_EQ(Element("TEXT\nSTRING;\"a\rb\"\n").text, u"a\rb");
    EXPECT_EQ(Element("TEXT\nSTRING;\"a\"\r\r\n").text, u"a\"\r") << "only one before the line feed goes";
}

TEST_F(TextReader, BlankLinesAreSkipped) {
    EXPECT_EQ(Parse("\r\n\n" + kHeader + "\n\r\nCIRCLE;RAD=1,00\n\n"), Caught());
    EXPECT_EQ(symbol_.elements[0].radius, 100);
}

TEST_F(TextReader, ALineOfSpacesIsNotEmpty) {
    EXPECT_EQ(Parse("  \n" + kHeader).number, 3501);
    EXPECT_EQ(ElementError("   \nCIRCLE\n"), Expected(RunTimeError::SubscriptOutOfRange));
}

TEST_F(TextReader, WithoutAnyLineTheSymbolStaysEmpty) {
    for (const char* text : {"", "\n", "\r\n\r\n"}) {
        EXPECT_EQ(Parse(text), Caught());
        EXPECT_EQ(symbol_, Symbol());
    }
}

TEST_F(TextReader, HeaderWithWrongFieldCountOrType) {
    const Caught refused{3501, u"CSymbol.ReadFromTxtFile", u"Keine gültige Symboldatei."};
    EXPECT_EQ(Parse("SYM;CNT=1;WID=1,00;HEI=1,00;RPX=0,00\n"), refused);
    EXPECT_EQ(Parse("SYM;CNT=1;WID=1,00;HEI=1,00;RPX=0,00;RPY=0,00;\n"), refused);
    EXPECT_EQ(Parse("SYM;CNT=1;WID=1,00;HEI=1,00;RPX=0,00;RPY=0,00;X=1\n"), refused);
    EXPECT_EQ(Parse("sym;cnt=1;wid=1,00;hei=1,00;rpx=0,00;rpy=0,00\n"), refused);
    EXPECT_EQ(Parse("SYMX;CNT=1;WID=1,00;HEI=1,00;RPX=0,00;RPY=0,00\n"), refused);
    EXPECT_EQ(Parse("POINT;1,00;1,00\n"), refused);
    EXPECT_EQ(symbol_, Symbol()) << "the old content is gone";
}

TEST_F(TextReader, HeaderWithMissingKeys) {
    const Caught faulty{3502, u"CSymbol.ReadFromTxtFile", u"Kopfzeile fehlerhaft."};
    EXPECT_EQ(Parse("SYM;CNT=1;WID=1;HEI=1;RPX=0;XYZ=0\n"), faulty);
    EXPECT_EQ(Parse("SYM;CNT=1;wid=1;HEI=1;RPX=0;RPY=0\n"), faulty);
    EXPECT_EQ(Parse("SYM;CNT=1;WID=1;HEI=1;RPX=0;\n"), faulty);
    EXPECT_EQ(symbol_.width, 100) << "what was read stays";
    EXPECT_EQ(symbol_.elements.size(), 1U);
}

TEST_F(TextReader, HeaderErrorsTakeTheirTextFromTheResource) {
    world_.strings.texts = {{11102, u"a"}, {11103, u"b"}};
    EXPECT_EQ(Parse("X\n").description, u"a");
    EXPECT_EQ(Parse("SYM;CNT=1;WID=1;HEI=1;RPX=0;XYZ=0\n").description, u"b");
}

TEST_F(TextReader, HeaderKeysInAnyOrderAndWithAnyFourthCharacter) {
    EXPECT_EQ(Parse("SYM;RPY:4,00;RPX 3,00;HEIx2,00;WID=1,00;CNT=1\n"), Caught());
    EXPECT_EQ(symbol_.width, 100);
    EXPECT_EQ(symbol_.height, 200);
    EXPECT_EQ(symbol_.refX, 300);
    EXPECT_EQ(symbol_.refY, 400);
    EXPECT_EQ(symbol_.elements.size(), 1U);
}

TEST_F(TextReader, ARepeatedHeaderKeyCountsEachTime) {
    EXPECT_EQ(Parse("SYM;CNT=9;WID=1;CNT=2;RPX=0;CNT=3\n"), Caught());
    EXPECT_EQ(symbol_.elements.size(), 3U);
}

TEST_F(TextReader, ASecondHeaderLineIsAnUnknownElement) {
    EXPECT_EQ(Element(kHeader), ElementRecord());
}

TEST_F(TextReader, NumbersThatDoNotConvert) {
    EXPECT_EQ(Parse("SYM;CNT=x;WID=1;HEI=1;RPX=0;RPY=0\n"), Expected(RunTimeError::TypeMismatch));
    EXPECT_EQ(Parse("SYM;CNT=1;WID=;HEI=1;RPX=0;RPY=0\n"), Expected(RunTimeError::TypeMismatch));
    EXPECT_EQ(Parse("SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=99999999\n"), Expected(RunTimeError::Overflow));
    EXPECT_EQ(Parse("SYM;CNT=2147483648;WID=1;HEI=1;RPX=0;RPY=0\n"), Expected(RunTimeError::Overflow));
    for (const char* line : {"POLY;CNT=a",   "POLY;COL=",    "POLY;WID=1,2,3", "POLY;FIL=x",   "CIRCLE;COL=x",
                             "CIRCLE;WID=x", "CIRCLE;MPX=x", "CIRCLE;MPY=x",   "CIRCLE;RAD=x", "CIRCLE;FIL=x",
                             "ARC;COL=x",    "ARC;WID=x",    "ARC;MPX=x",      "ARC;MPY=x",    "ARC;RAD=x",
                             "TEXT;COL=x",   "TEXT;ANG=x",   "TEXT;HEI=x",     "TEXT;ALI=x",   "TEXT;BKM=x"})
        EXPECT_EQ(ElementError(line), Expected(RunTimeError::TypeMismatch)) << line;
    for (const char* line :
         {"POLY;COL=2147483648", "CIRCLE;RAD=21474836,48", "TEXT;HEI=32768", "TEXT;ANG=1e400"})
        EXPECT_EQ(ElementError(line), Expected(RunTimeError::Overflow)) << line;
}

TEST_F(TextReader, CountsOfNothingAreOutOfRange) {
    for (const char* count : {"0", "-1", "-2147483648"}) {
        const std::string value = count;
        EXPECT_EQ(Parse("SYM;CNT=" + value + ";WID=1;HEI=1;RPX=0;RPY=0\n"),
                  Expected(RunTimeError::SubscriptOutOfRange));
        EXPECT_EQ(ElementError("POLY;CNT=" + value), Expected(RunTimeError::SubscriptOutOfRange));
    }
}

TEST_F(TextReader, LengthsRoundHalfToEven) {
    EXPECT_EQ(Element("CIRCLE;RAD=0,125").radius, 12);
    EXPECT_EQ(Element("CIRCLE;RAD=0,375").radius, 38);
    EXPECT_EQ(Element("CIRCLE;RAD=2,005").radius, 200);
    EXPECT_EQ(Element("CIRCLE;COL=2,5").mainColor, 2);
}

TEST_F(TextReader, SeparatorsAreTheUsers) {
    EXPECT_EQ(Element("CIRCLE;RAD=1.234,50").radius, 123450);
    world_.regional = platform::EnglishSettings();
    EXPECT_EQ(Parse("SYM;CNT=1;WID=1.00;HEI=1.50;RPX=0;RPY=0\nCIRCLE;RAD=1,234.50"), Caught());
    EXPECT_EQ(symbol_.height, 150);
    EXPECT_EQ(symbol_.elements[0].radius, 123450);
}

TEST_F(TextReader, Circle) {
    const ElementRecord circle =
        Element("CIRCLE;COL=5;WID=0,10;MPX=1,00;MPY=-2,00;RAD=3,00;FIL=6;CLS=TRUE;???\n");
    ElementRecord expected;
    expected.type = ElementType::Circle;
    expected.mainColor = 5;
    expected.lineWidth = 10;
    expected.points = {{100, -200}};
    expected.radius = 300;
    expected.fillColor = 6;
    EXPECT_EQ(circle, expected);
}

TEST_F(TextReader, Arc) {
    const ElementRecord arc =
        Element("ARC;COL=1;WID=0,00;MPX=1,50;MPY=1,00;RAD=0,50;FIL=7\nPOINT;2,00;1,00\nPOINT;1,50;1,50\n");
    EXPECT_EQ(arc.type, ElementType::Arc);
    EXPECT_EQ(arc.fillColor, -1) << "an arc has no fill key";
    EXPECT_THAT(arc.points, ElementsAre(Point{150, 100}, Point{200, 100}, Point{150, 150}));
    EXPECT_EQ(ElementError("ARC\nPOINT;1;1\nPOINT;1;1\nPOINT;1;1\n"),
              Expected(RunTimeError::SubscriptOutOfRange));
}

TEST_F(TextReader, Text) {
    const ElementRecord text = Element("TEXT;COL=9;ANG=90,00;NAM=Gr\xF6\xDF"
                                       "er;HEI=12;BOL=TRUE;ITA=true;UND=TRUE;STR=TRUE;ALI=24;BKM=2;FKT=100\n"
                                       "POINT;1,00;2,00\nSTRING;\"K\xFC"
                                       "che \x80\"\n");
    EXPECT_EQ(text.type, ElementType::Text);
    EXPECT_EQ(text.mainColor, 9);
    EXPECT_DOUBLE_EQ(text.textAngle, std::numbers::pi / 2);
    EXPECT_EQ(*text.font, (qsymbol::FontRecord{u"Größer", 12, true, false, true, true}));
    EXPECT_EQ(text.textAlign, 24);
    EXPECT_EQ(text.textBkMode, 2);
    EXPECT_TRUE(text.lineClosed);
    EXPECT_THAT(text.points, ElementsAre(Point{100, 200}));
    EXPECT_EQ(text.text, u"Küche €");
}

TEST_F(TextReader, ATextAlwaysHasAFont) {
    const ElementRecord text = Element("TEXT\n");
    EXPECT_EQ(*text.font, (qsymbol::FontRecord{u"Arial", 6, false, false, false, false}));
    EXPECT_FALSE(text.lineClosed);
    EXPECT_EQ(text.textBkMode, 1);
    EXPECT_THAT(text.points, ElementsAre(Point{0, 0}));
}

TEST_F(TextReader, TheTextFactorsValueIsIgnored) {
    EXPECT_TRUE(Element("TEXT;FKT=0\n").lineClosed);
    EXPECT_TRUE(Element("TEXT;FKT\n").lineClosed);
    EXPECT_FALSE(Element("TEXT;fkt=100\n").lineClosed);
    EXPECT_FALSE(Element("POLY;FKT=100\n").lineClosed);
}

TEST_F(TextReader, OnlyTheWordTrueCloses) {
    EXPECT_TRUE(Element("POLY;CLS=TRUE\n").lineClosed);
    for (const char* value : {"FALSE", "true", "TRUE ", "1", ""})
        EXPECT_FALSE(Element("POLY;CLS=" + std::string(value) + "\n").lineClosed) << value;
    EXPECT_FALSE(Element("POLY;CLS=TRUE;CLS=FALSE\n").lineClosed) << "the last one counts";
}

TEST_F(TextReader, PointsThatAreNoNumberAreZero) {
    EXPECT_THAT(Element("POLY;CNT=4\nPOINT;x;2,00\nPOINT;1,00\nPOINT\nPOINT;;1e400;9\n").points,
                ElementsAre(Point{0, 200}, Point{100, 0}, Point{0, 0}, Point{0, 0}));
    EXPECT_EQ(ElementError("POLY;CNT=1\nPOINT;99999999;0\n"), Expected(RunTimeError::Overflow));
}

TEST_F(TextReader, ARecordTypeIsTheWholeField) {
    EXPECT_EQ(Element("POINTS;1;1\n"), ElementRecord());
    EXPECT_EQ(Element("poly;CNT=1\n"), ElementRecord());
    EXPECT_EQ(Element(";\n"), ElementRecord());
}

TEST_F(TextReader, TwoClosedPointsSpanARectangle) {
    const std::string points = "POINT;0,00;0,00\nPOINT;3,00;2,00\n";
    EXPECT_THAT(Element("POLY;CNT=2;CLS=TRUE\n" + points).points,
                ElementsAre(Point{0, 0}, Point{0, 200}, Point{300, 200}, Point{300, 0}));
    EXPECT_THAT(Element("POLY;CNT=2;CLS=FALSE\n" + points).points, ElementsAre(Point{0, 0}, Point{300, 200}));
    EXPECT_EQ(Element("POLY;CNT=3;CLS=TRUE\n" + points).points.size(), 3U);
    EXPECT_EQ(Element("POLY;CNT=2;CLS=TRUE\nPOINT;0,00;0,00\n").points.size(), 2U);
}

TEST_F(TextReader, MorePointsThanCounted) {
    EXPECT_EQ(ElementError("POLY;CNT=1\nPOINT;1;1\nPOINT;1;1\n"),
              Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(ElementError("POLY\nPOINT;1;1\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(ElementError("CIRCLE\nPOINT;1;1\nPOINT;1;1\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(ElementError("TEXT\nPOINT;1;1\nPOINT;1;1\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(ElementError("OTHER\nPOINT;1;1\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(symbol_.elements.size(), 1U) << "what was read stays";
    EXPECT_EQ(symbol_.width, 100);
}

TEST_F(TextReader, ARepeatedPointCountStartsAnew) {
    EXPECT_EQ(Element("POLY;CNT=5;CNT=2\nPOINT;1;1\n").points.size(), 2U);
}

TEST_F(TextReader, PointOrStringAheadOfAnyElement) {
    EXPECT_EQ(ElementError("POINT;1;1\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(ElementError("STRING;\"a\"\n"), Expected(RunTimeError::SubscriptOutOfRange));
}

TEST_F(TextReader, MoreElementsThanCounted) {
    EXPECT_EQ(ElementError("CIRCLE;COL=3\nCIRCLE\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(symbol_.elements[0].mainColor, 3) << "what was read stays";
    EXPECT_EQ(Parse("SYM;WID=1;WID=1;HEI=1;RPX=0;RPY=0\nCIRCLE\n"),
              Expected(RunTimeError::SubscriptOutOfRange))
        << "a header without a count";
}

TEST_F(TextReader, UnknownTypesTakeASlot) {
    EXPECT_EQ(Parse("SYM;CNT=3;WID=1;HEI=1;RPX=0;RPY=0\nCIRCLE;COL=1\nOTHER;COL=2\nCIRCLE;COL=3\n"),
              Caught());
    EXPECT_EQ(symbol_.elements[1], ElementRecord());
    EXPECT_EQ(symbol_.elements[2].mainColor, 3);
    EXPECT_EQ(ElementError("OTHER\nOTHER\n"), Expected(RunTimeError::SubscriptOutOfRange));
}

TEST_F(TextReader, FewerElementsThanCountedStayUndefined) {
    EXPECT_EQ(Parse("SYM;CNT=2;WID=1;HEI=1;RPX=0;RPY=0\nCIRCLE;COL=1\n"), Caught());
    ASSERT_EQ(symbol_.elements.size(), 2U);
    EXPECT_EQ(symbol_.elements[1], ElementRecord());
}

TEST_F(TextReader, QuotesAroundAText) {
    EXPECT_EQ(Element("TEXT\nSTRING;\"\"a\"b\"\"\n").text, u"\"a\"b\"");
    EXPECT_EQ(Element("TEXT\nSTRING;abc\n").text, u"abc");
    EXPECT_EQ(Element("TEXT\nSTRING;\"\n").text, u"");
    EXPECT_EQ(Element("TEXT\nSTRING;\"\"\n").text, u"");
    EXPECT_EQ(Element("TEXT\nSTRING\n").text, u"");
    EXPECT_EQ(Element("TEXT\nSTRING;\"a;b\"\n").text, u"a") << "cut at the separator";
}

TEST_F(TextReader, StringsConcatenate) {
    EXPECT_EQ(Element("TEXT\nSTRING;\"a\"\nSTRING;\"b\"\nSTRING;c\n").text, u"abc");
    EXPECT_EQ(Element("CIRCLE\nSTRING;\"a\"\n").text, u"a") << "of any element";
}

TEST_F(TextReader, PathAndMirrorValueStay) {
    symbol_.filePath = u"plan/a.syt";
    symbol_.etagenbreite = 7;
    Parse(kHeader);
    EXPECT_EQ(symbol_.filePath, u"plan/a.syt");
    EXPECT_EQ(symbol_.etagenbreite, 7);
}

} // namespace
