#include "qsymbol/files/wsc_reader.h"

#include "qsymbol/files/symbol_file.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gmock/gmock.h>

namespace {

using base::RunTimeError;
using qmath::Point;
using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;
using support::Caught;
using support::Expected;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::string kHeader = "BLT 300 200 0 0 0\r\n";
const Caught kRefused{3501, u"CSymbol.ReadFromWSCFile", u"Keine gültige Symboldatei."};
const std::u16string kNoArcs = u"Ellipsenbögen können nicht verarbeitet werden --> Abbruch";

class WscReader : public testing::Test {
protected:
    support::TestEnvironment world_;
    Symbol symbol_ = support::EveryField(); // whatever was there must go

    Caught Parse(const std::string& text) {
        return support::CaughtFrom([&] { world_.Parse(qsymbol::ParseWsc, symbol_, text); });
    }
    Caught FigureError(const std::string& text) { return Parse(kHeader + text); }
    /// The first element of a file 300 x 200 with these lines.
    ElementRecord Figure(const std::string& text) {
        EXPECT_EQ(FigureError(text), Caught()) << text;
        EXPECT_THAT(world_.prompt.said, IsEmpty());
        return symbol_.elements.empty() ? ElementRecord() : symbol_.elements[0];
    }
    std::vector<Point> Points(const std::string& text) { return Figure(text).points; }
};

TEST_F(WscReader, HeaderSizesAndReferencePoint) {
    EXPECT_EQ(Parse("BLT 120.5 80 0 0 0\r\nSTR\r\n"), Caught());
    EXPECT_EQ(symbol_.width, 120);
    EXPECT_EQ(symbol_.height, 80);
    EXPECT_EQ(symbol_.refX, 5000);
    EXPECT_EQ(symbol_.refY, 5000);
    EXPECT_THAT(symbol_.elements, SizeIs(1));
    EXPECT_EQ(Parse("BLT 121.5 -7 x y z\nSTR\n"), Caught()) << "the last three fields are ignored";
    EXPECT_EQ(symbol_.width, 122);
    EXPECT_EQ(symbol_.height, -7);
    EXPECT_EQ(symbol_.refX, 5000);
}

TEST_F(WscReader, HeaderThatIsNone) {
    for (const char* header :
         {"BLT 1 2 3 4", "BLT 1 2 3 4 5 6", "BLT 1 2 3 4 5 ", "BLT", "blt 1 2 3 4 5", "BLTX 1 2 3 4 5",
          " BLT 1 2 3 4", "SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=0", "STR 1 2 3 4 5", " "}) {
        EXPECT_EQ(Parse(std::string(header) + "\r\nSTR\r\n"), kRefused) << header;
        EXPECT_EQ(symbol_, Symbol()) << "the old content is gone";
        EXPECT_EQ(Parse(std::string(header) + "\r\n"), kRefused) << "also without a figure: " << header;
    }
    EXPECT_THAT(world_.prompt.said, IsEmpty());
    world_.strings.texts = {{11102, u"a"}};
    EXPECT_EQ(Parse("X\n").description, u"a");
}

TEST_F(WscReader, HeaderNumbers) {
    EXPECT_EQ(Parse("BLT x 80 0 0 0\nSTR\n"), Expected(RunTimeError::TypeMismatch));
    EXPECT_EQ(Parse("BLT 1  0 0 0\nSTR\n"), Expected(RunTimeError::TypeMismatch));
    EXPECT_EQ(Parse("BLT 1 2147483648 0 0 0\nSTR\n"), Expected(RunTimeError::Overflow));
    EXPECT_EQ(symbol_.width, 1) << "what was read stays";
}

TEST_F(WscReader, EmptyLines) {
    EXPECT_EQ(Points("\r\n\r\nSTR F=1 D=0 0 0 0 1 2 3 4\r\n\r\n"), (std::vector<Point>{{1, 198}, {3, 196}}));
    EXPECT_EQ(Parse("\r\nSTR\r\n"), kRefused) << "the first line that is not empty is the header";
    EXPECT_THAT(world_.prompt.said, IsEmpty());
    EXPECT_EQ(Parse("\r\n" + kHeader), Caught()) << "only the very first line is not looked at before";
    EXPECT_THAT(world_.prompt.said,
                ElementsAre(u"Folgende Zeile kann nicht verarbeitet werden: BLT 300 200 0 0 0 --> Abbruch"));
}

TEST_F(WscReader, WithoutAnyFigure) {
    EXPECT_EQ(Parse(""), Expected(RunTimeError::InputPastEnd)) << "there is no first line";
    EXPECT_EQ(Parse("\r\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(Parse(kHeader), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(Parse(kHeader + "END\r\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(symbol_, Symbol());
}

TEST_F(WscReader, ALineThatCannotBeProcessed) {
    for (const char* line : {"XYZ 1 2", "str 1 2", " STR", "ST", "BLT 1 2 3 4 5",
                             "K\xFC"
                             "che"}) {
        world_.prompt.said.clear();
        symbol_ = support::EveryField();
        EXPECT_EQ(FigureError("STR F=1\r\nEND\r\n" + std::string(line) + "\r\nABC\r\n"), Caught());
        EXPECT_EQ(symbol_, Symbol()) << "nothing is imported";
        EXPECT_THAT(world_.prompt.said, ElementsAre(u"Folgende Zeile kann nicht verarbeitet werden: " +
                                                    world_.codePage.Decode(line) + u" --> Abbruch"))
            << "once, for the first such line";
    }
    world_.prompt.said.clear();
    EXPECT_EQ(Parse("not looked at\r\nXYZ\r\n"), Caught());
    EXPECT_THAT(world_.prompt.said, SizeIs(1));
}

TEST_F(WscReader, WordsThatOnlyBeginWithAKeyword) {
    EXPECT_EQ(FigureError("STRICH F=1\nENDE\nELL=3\nSTR F=5\nSTR;x\n"), Caught());
    EXPECT_THAT(world_.prompt.said, IsEmpty());
    ASSERT_THAT(symbol_.elements, SizeIs(1));
    EXPECT_EQ(symbol_.elements[0].mainColor, 5);
}

TEST_F(WscReader, StraightLine) {
    ElementRecord expected;
    expected.type = ElementType::Poly;
    expected.mainColor = 255;
    expected.lineWidth = 35;
    expected.points = {{10, 180}, {-30, 240}};
    EXPECT_EQ(Figure("STR 0 F=255 D=0.35 0 0 10 20 -30 -40\r\n"), expected);
    EXPECT_EQ(Figure("STR 0 F=255 D=0.35 0 0 10 20 -30 -40 50 60 F=7"), expected) << "the rest is ignored";
}

TEST_F(WscReader, KeyedFieldsStandInFieldsTwoToSix) {
    EXPECT_EQ(Figure("STR F=1 F=2 D=1 F=3 D=2 1 1 1 1\n").mainColor, 3) << "the last one counts";
    EXPECT_EQ(symbol_.elements[0].lineWidth, 200);
    EXPECT_EQ(Figure("STR 0 0 0 0 0 F=9 1 1 1\n").mainColor, 0) << "field 7 is a coordinate";
    EXPECT_EQ(Figure("STR f=9 d=9 X=9 FF=9 =9 0\n").mainColor, 0);
    EXPECT_EQ(symbol_.elements[0].lineWidth, 0);
    EXPECT_EQ(Figure("STR F=12=34\n").mainColor, 12) << "the second of the parts between the equal signs";
    EXPECT_EQ(Figure("STR F=2.5 D=0.125\n").mainColor, 2);
    EXPECT_EQ(symbol_.elements[0].lineWidth, 12) << "rounded half to even";
    EXPECT_EQ(Figure("STR F=-1\n").mainColor, -1);
}

TEST_F(WscReader, KeyedFieldsThatDoNotConvert) {
    for (const char* line : {"STR F=x", "STR F=", "STR F", "STR D=1x", "STF F=x", "FLA D=x", "ELL D=x",
                             "EBO F=x", "EFL F=x", "PIE D=x", "FLA 1 2 3 4 5 6 7 8 9 F=x"})
        EXPECT_EQ(FigureError(line), Expected(RunTimeError::TypeMismatch)) << line;
    EXPECT_EQ(FigureError("STR F=2147483648"), Expected(RunTimeError::Overflow));
    EXPECT_EQ(FigureError("STR D=21474836.48"), Expected(RunTimeError::Overflow));
    EXPECT_EQ(FigureError("STR F=1e400"), Expected(RunTimeError::Overflow));
}

TEST_F(WscReader, CoordinatesThatAreNoNumberAreZero) {
    EXPECT_THAT(Points("STR 0 0 0 0 0 x 10 1e400 \n"), ElementsAre(Point{0, 190}, Point{0, 200}));
    EXPECT_THAT(Points("STR 0 0 0 0 0 7\n"), ElementsAre(Point{7, 200}, Point{0, 200}));
    EXPECT_THAT(Points("STR\n"), ElementsAre(Point{0, 200}, Point{0, 200}));
}

TEST_F(WscReader, CoordinatesAreRoundedOnceHalfToEven) {
    EXPECT_THAT(Points("STR 0 0 0 0 0 1.5 1.5 2.5 2.5\n"), ElementsAre(Point{2, 198}, Point{2, 198}));
    EXPECT_EQ(Parse("BLT 1 81 0 0 0\nSTR 0 0 0 0 0 0.5 0.5 -0.5 -0.5\n"), Caught());
    EXPECT_THAT(symbol_.elements[0].points, ElementsAre(Point{0, 80}, Point{0, 82}));
}

TEST_F(WscReader, CoordinatesOutsideTheRange) {
    EXPECT_EQ(FigureError("STR 0 0 0 0 0 2147483648 0 0 0"), Expected(RunTimeError::Overflow));
    EXPECT_EQ(FigureError("STR 0 0 0 0 0 0 -2147483647 0 0"), Expected(RunTimeError::Overflow))
        << "mirrored it lies outside";
    EXPECT_THAT(Points("STR 0 0 0 0 0 -2147483648 2147483648 0 0"),
                ElementsAre(Point{-2147483647 - 1, -2147483448}, Point{0, 200}));
    EXPECT_EQ(FigureError("ELL 0 0 0 0 0 0 0 1e300 1e300"), Expected(RunTimeError::Overflow));
    EXPECT_EQ(FigureError("ELL 0 0 0 0 0 -1e308 0 1e308 1"), Expected(RunTimeError::Overflow));
    EXPECT_EQ(FigureError("ELL 0 0 0 0 0 -1e308 -1e308 1e308 1e308"), Expected(RunTimeError::Overflow));
    EXPECT_EQ(FigureError("PIE 0 0 0 0 -1e308 -1e308 1e308 1e308\nPIF 1 1 2 2"),
              Expected(RunTimeError::Overflow));
}

TEST_F(WscReader, TheFirstPointOfANumberBecomesAComma) {
    EXPECT_THAT(Points("STR 0 0 0 0 0 1.6 2,4 1.2.6 1,234.5\n"), ElementsAre(Point{2, 198}, Point{0, 200}))
        << "what has two of them is no number";
    world_.regional = platform::EnglishSettings();
    EXPECT_EQ(Parse("BLT 120.5 80 0 0 0\nSTR 0 0 0 0 0 1.6 2.4 10 20\n"), Caught());
    EXPECT_EQ(symbol_.width, 1205) << "an English comma separates thousands";
    EXPECT_THAT(symbol_.elements[0].points, ElementsAre(Point{16, 56}, Point{10, 60}));
}

TEST_F(WscReader, ChainAndItsContinuations) {
    const std::string chain = "STF F=3 D=0.5 0 0 0 1 1 2 2 3 3\r\n";
    EXPECT_THAT(Points(chain), ElementsAre(Point{1, 199}, Point{2, 198}, Point{3, 197}));
    EXPECT_FALSE(symbol_.elements[0].lineClosed);
    EXPECT_EQ(symbol_.elements[0].fillColor, -1);
    EXPECT_EQ(symbol_.elements[0].lineWidth, 50);
    EXPECT_THAT(Points(chain + "SFF 4 4 5 5 6 6\r\nSFF 7 7\r\n"),
                ElementsAre(Point{1, 199}, Point{2, 198}, Point{3, 197}, Point{4, 196}, Point{5, 195},
                            Point{6, 194}, Point{7, 193}));
    EXPECT_THAT(Points(chain + "SFF 4 4 5 5\r\n"), SizeIs(5));
    for (const char* fields : {"", " ", " 4", " 4 4 ", " 4 4 5 5 6", " 4 4 5 5 6 6 7", " 4 4 5 5 6 6 7 7"})
        EXPECT_THAT(Points(chain + "SFF" + fields), SizeIs(3))
            << "no other number of fields carries a point:" << fields;
}

TEST_F(WscReader, TheCounterGrowsByThreeWhateverTheLineCarried) {
    const std::string chain = "STF 0 0 0 0 0 1 1 2 2 3 3\n";
    for (const char* shorter : {"SFF 4 4\n", "SFF 4 4 5 5\n", "SFF\n", "SFF 4 4 5 5 6 6 7 7\n"}) {
        EXPECT_EQ(FigureError(chain + shorter + "SFF 6 6 7 7 8 8\n"),
                  Expected(RunTimeError::SubscriptOutOfRange))
            << shorter;
        EXPECT_EQ(FigureError(chain + shorter + "SFF\n"), Caught()) << "without points nothing lies outside";
    }
    EXPECT_EQ(FigureError(chain + "SFF 4 4 5 5\nSFF 6 6 7 7 8 8\n"),
              Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_THAT(symbol_.elements[0].points,
                ElementsAre(Point{1, 199}, Point{2, 198}, Point{3, 197}, Point{4, 196}, Point{5, 195},
                            Point{0, 0}, Point{6, 194}, Point{7, 193}))
        << "what was read up to there stays";
}

TEST_F(WscReader, FilledArea) {
    const ElementRecord area = Figure("FLA F=65280\r\nFLF 0 0 0 100 100 100\r\nFLF 100 0\r\n");
    ElementRecord expected;
    expected.type = ElementType::Poly;
    expected.lineClosed = true;
    expected.mainColor = 65280;
    expected.fillColor = 65280;
    expected.points = {{0, 200}, {0, 100}, {100, 100}, {100, 200}};
    EXPECT_EQ(area, expected);
    EXPECT_EQ(Figure("FLA 1 2 3 4 5 6 7 D=0.25 F=7\n").lineWidth, 25)
        << "a width is taken where there is one";
    EXPECT_EQ(Figure("FLA\nFLF 1 1").fillColor, -1);
    EXPECT_EQ(FigureError("FLA\nFLF 1 1\nFLF 2 2\n"), Expected(RunTimeError::SubscriptOutOfRange));
}

TEST_F(WscReader, EachChainAndAreaCountsAnew) {
    EXPECT_EQ(FigureError("STF\nSFF 1 1 2 2 3 3\nFLA\nFLF 1 1 2 2 3 3\nSTF\nSFF 1 1\n"), Caught());
    EXPECT_THAT(symbol_.elements[0].points, SizeIs(6));
    EXPECT_THAT(symbol_.elements[1].points, SizeIs(3));
    EXPECT_THAT(symbol_.elements[2].points, SizeIs(4));
}

TEST_F(WscReader, ContinuationsWorkOnTheCurrentElement) {
    EXPECT_THAT(Points("STF\nFLF 5 5\n"), SizeIs(4));
    EXPECT_EQ(FigureError("STR\nSFF 1 1\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(FigureError("STF\nSTR\nSFF 1 1\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_THAT(Points("STR\nEBF 1 2 3 4\n"), ElementsAre(Point{0, 200}, Point{1, 198}, Point{3, 196}));
    for (const char* line : {"SFF 1 1\n", "SFF\n", "FLF 1 1\n", "EBF 1 1 2 2\n", "PIF 1 1 2 2\n"})
        EXPECT_EQ(FigureError(std::string(line) + "STR\n"), Expected(RunTimeError::SubscriptOutOfRange))
            << "ahead of any figure: " << line;
}

TEST_F(WscReader, SquareEllipse) {
    const ElementRecord circle = Figure("ELL F=7 D=0.1 0 0 0 100 40 140 80\n");
    ElementRecord expected;
    expected.type = ElementType::Circle;
    expected.mainColor = 7;
    expected.lineWidth = 10;
    expected.radius = 20;
    expected.points = {{120, 140}};
    EXPECT_EQ(circle, expected);
    EXPECT_EQ(Figure("ELL F=7 D=0.1 0 0 0 140 80 100 40\n"), expected) << "corners in any order";
    EXPECT_EQ(Figure("ELL F=7 D=0.1 0 0 0 100 80 140 40\n"), expected);
}

TEST_F(WscReader, ABoxIsSquareWithinOneUnit) {
    EXPECT_EQ(Figure("ELL 0 0 0 0 0 0 0 11 10\n").type, ElementType::Circle);
    EXPECT_EQ(symbol_.elements[0].radius, 6) << "5.5, from the width";
    EXPECT_THAT(symbol_.elements[0].points, ElementsAre(Point{6, 195}));
    EXPECT_EQ(Figure("ELL 0 0 0 0 0 0 0 10 11\n").type, ElementType::Circle);
    EXPECT_EQ(symbol_.elements[0].radius, 5);
    EXPECT_EQ(Figure("ELL 0 0 0 0 0 0 0 11.5 10\n").type, ElementType::Poly);
    EXPECT_EQ(Figure("ELL 0 0 0 0 0 0 0 10 11.5\n").type, ElementType::Poly);
    EXPECT_EQ(Figure("ELL\n").radius, 0) << "a box of nothing is square too";
}

TEST_F(WscReader, EllipseOfTwentyOnePoints) {
    const ElementRecord oval = Figure("ELL F=7 D=0.1 0 0 0 0 0 200 100\n");
    EXPECT_EQ(oval.type, ElementType::Poly);
    EXPECT_FALSE(oval.lineClosed);
    EXPECT_EQ(oval.fillColor, -1);
    EXPECT_EQ(oval.lineWidth, 10);
    EXPECT_THAT(oval.points,
                ElementsAre(Point{200, 150}, Point{195, 135}, Point{181, 121}, Point{159, 110},
                            Point{131, 102}, Point{100, 100}, Point{69, 102}, Point{41, 110}, Point{19, 121},
                            Point{5, 135}, Point{0, 150}, Point{5, 165}, Point{19, 179}, Point{41, 190},
                            Point{69, 198}, Point{100, 200}, Point{131, 198}, Point{159, 190},
                            Point{181, 179}, Point{195, 165}, Point{200, 150}));
}

TEST_F(WscReader, FilledEllipse) {
    const ElementRecord circle = Figure("EFL F=7 D=0.1 0 0 100 40 140 80\n");
    EXPECT_EQ(circle.type, ElementType::Circle);
    EXPECT_EQ(circle.mainColor, 7);
    EXPECT_EQ(circle.fillColor, 7);
    EXPECT_EQ(circle.lineWidth, 10);
    EXPECT_EQ(circle.radius, 20);
    EXPECT_THAT(circle.points, ElementsAre(Point{120, 140}));
    const std::vector<Point> outline = Points("ELL 0 0 0 0 0 0 0 200 100\n");
    const ElementRecord oval = Figure("EFL 0 0 0 F=9 0 0 200 100\n");
    EXPECT_EQ(oval.type, ElementType::Poly);
    EXPECT_EQ(oval.mainColor, 9);
    EXPECT_EQ(oval.fillColor, 9);
    EXPECT_TRUE(oval.lineClosed) << "an open polyline would not be filled";
    EXPECT_EQ(oval.points, outline);
}

TEST_F(WscReader, Arc) {
    const ElementRecord arc = Figure("EBO F=7 D=0.1 0 0 0 100 40 140 80\nEBF 140 60 120 80\n");
    ElementRecord expected;
    expected.type = ElementType::Arc;
    expected.mainColor = 7;
    expected.lineWidth = 10;
    expected.radius = 20;
    expected.points = {{120, 140}, {140, 140}, {120, 120}};
    EXPECT_EQ(arc, expected);
    EXPECT_THAT(Points("EBO 0 0 0 0 0 100 40 140 80\n"), ElementsAre(Point{120, 140})) << "without its ends";
    EXPECT_THAT(Points("EBO\nEBF 1 1 2 2\nEBF 3 3 4 4\n"),
                ElementsAre(Point{0, 200}, Point{3, 197}, Point{4, 196}));
}

TEST_F(WscReader, AnEllipticArcEndsTheImport) {
    EXPECT_EQ(FigureError("STR F=3 0 0 0 0 1 1 2 2\nEBO F=4 0 0 0 0 0 0 200 100\nSTR F=5\nSTR F=x\n"),
              Caught());
    EXPECT_THAT(world_.prompt.said, ElementsAre(kNoArcs));
    EXPECT_EQ(symbol_.width, 300) << "what was read before stays";
    EXPECT_EQ(symbol_.refX, 5000);
    ASSERT_THAT(symbol_.elements, SizeIs(4));
    EXPECT_EQ(symbol_.elements[0].mainColor, 3);
    EXPECT_EQ(symbol_.elements[1].type, ElementType::Undefined);
    EXPECT_THAT(symbol_.elements[1].points, IsEmpty());
    EXPECT_EQ(symbol_.elements[2], ElementRecord());
    EXPECT_EQ(symbol_.elements[3], ElementRecord());
}

TEST_F(WscReader, Pie) {
    // A quarter of a circle around (100, 100), from the right to the top.
    const ElementRecord pie = Figure("PIE F=7 D=0.1 0 0 0 0 200 200\nPIF 200 100 100 500\n");
    EXPECT_EQ(pie.type, ElementType::Poly);
    EXPECT_TRUE(pie.lineClosed);
    EXPECT_EQ(pie.mainColor, 7);
    EXPECT_EQ(pie.fillColor, 7);
    EXPECT_EQ(pie.lineWidth, 10);
    ASSERT_THAT(pie.points, SizeIs(22));
    EXPECT_EQ(pie.points[0], (Point{200, 100}));
    EXPECT_EQ(pie.points[10], (Point{171, 29}));
    EXPECT_EQ(pie.points[20], (Point{100, 0}));
    EXPECT_EQ(pie.points[21], (Point{100, 100})) << "closed through the centre";
    EXPECT_THAT(Points("PIE 0 0 0 0 0 0 200 200\n"), IsEmpty()) << "its rays come with the continuation";
}

TEST_F(WscReader, PieContinuationOfAnotherFigure) {
    EXPECT_EQ(FigureError("STR\nPIF 1 1 2 2\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_EQ(FigureError("PIE\nSTR\nPIF 1 1 2 2\n"), Expected(RunTimeError::SubscriptOutOfRange));
    EXPECT_THAT(Points("PIE 0 0 0 0 0 0 200 200\nPIF 1 1 2 2\nPIF 200 100 100 200\n"), SizeIs(22));
    EXPECT_EQ(symbol_.elements[0].points[0], (Point{200, 100}));
}

TEST_F(WscReader, FiguresKeepTheirOrder) {
    EXPECT_EQ(FigureError(
                  "STR F=1\nSTF F=2\nFLA F=3\nELL F=4\nEBO F=5\nEBF\nEFL F=6\nPIE F=7\nPIF\nEND\nSTR F=8\n"),
              Caught());
    ASSERT_THAT(symbol_.elements, SizeIs(8)) << "figures behind END count too";
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(symbol_.elements[static_cast<std::size_t>(i)].mainColor, i + 1);
}

TEST_F(WscReader, SeveralBlanksAreSeveralSeparators) {
    EXPECT_THAT(Points("STR  F=1 0 0 0 10 10 20 20\n"), ElementsAre(Point{10, 190}, Point{20, 180}));
    EXPECT_THAT(Points("STR 0 0 0 0 0  1 2 3\n"), ElementsAre(Point{0, 199}, Point{2, 197}));
}

TEST_F(WscReader, AFailureKeepsWhatWasRead) {
    EXPECT_EQ(FigureError("STR F=1 0 0 0 0 1 1 2 2\nSTR F=2 D=x\nSTR F=3\n"),
              Expected(RunTimeError::TypeMismatch));
    EXPECT_EQ(symbol_.height, 200);
    ASSERT_THAT(symbol_.elements, SizeIs(3));
    EXPECT_EQ(symbol_.elements[0].points[1], (Point{2, 198}));
    EXPECT_EQ(symbol_.elements[1].mainColor, 2);
    EXPECT_EQ(symbol_.elements[2], ElementRecord());
}

TEST_F(WscReader, PathAndMirrorValueStay) {
    symbol_.filePath = u"plan/a.wsc";
    symbol_.etagenbreite = 7;
    Parse("BLT 1 2 3 4 5\nXYZ\n");
    EXPECT_EQ(symbol_.filePath, u"plan/a.wsc");
    EXPECT_EQ(symbol_.etagenbreite, 7);
}

TEST_F(WscReader, TheExtensionChoosesIt) {
    world_.memory.files[u"plan/a.WSC"] = kHeader + "STR F=9\r\n";
    symbol_.filePath = u"plan/a.WSC";
    ReadFromFile(symbol_, world_.InMemory());
    ASSERT_THAT(symbol_.elements, SizeIs(1));
    EXPECT_EQ(symbol_.elements[0].mainColor, 9);
    EXPECT_EQ(world_.memory.opened, 1) << "one reading serves all passes";
    EXPECT_EQ(world_.memory.openNow, 0);
}

} // namespace
