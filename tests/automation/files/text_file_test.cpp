#include "support/automation_test.h"
#include "support/number_settings.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

namespace {

using support::ElementsOf;
using support::ElementSpec;
using support::FontSpec;
using support::NewSymbolAt;
using support::NumberSettings;
using support::Ref;
using support::TempFolder;

const std::vector<ElementSpec> kExample = {
    {.type = symPoly,
     .points = {{0, 0}, {0, 200}, {300, 200}, {300, 0}},
     .lineWidth = 25,
     .closed = true,
     .mainColor = 1},
    {.type = symCircle, .points = {{150, 100}}, .fillColor = 3, .mainColor = 2, .radius = 50},
    {.type = symArc, .points = {{150, 100}, {200, 100}, {150, 150}}, .mainColor = 7, .radius = 50},
    {.type = symText, .points = {{150, 100}}, .mainColor = 1, .text = L"WC", .font = FontSpec{}},
};

/// The lines of the example with the decimal separator in place of "_".
std::string ExampleFile(char decimal) {
    std::string text =
        "SYM;CNT=4;WID=3_00;HEI=2_00;RPX=1_50;RPY=-1_05\r\n"
        "POLY;CNT=4;COL=1;WID=0_25;CLS=TRUE;FIL=-1\r\n"
        "POINT;0_00;0_00\r\n"
        "POINT;0_00;2_00\r\n"
        "POINT;3_00;2_00\r\n"
        "POINT;3_00;0_00\r\n"
        "CIRCLE;COL=2;WID=0_00;MPX=1_50;MPY=1_00;RAD=0_50;FIL=3\r\n"
        "ARC;COL=7;WID=0_00;MPX=1_50;MPY=1_00;RAD=0_50\r\n"
        "POINT;2_00;1_00\r\n"
        "POINT;1_50;1_50\r\n"
        "TEXT;COL=1;ANG=0_00;NAM=Arial;HEI=6;BOL=FALSE;ITA=FALSE;UND=FALSE;STR=FALSE;ALI=0;BKM=1\r\n"
        "POINT;1_50;1_00\r\n"
        "STRING;\"WC\"\r\n";
    for (char& c : text)
        c = c == '_' ? decimal : c;
    return text;
}

class TextFile : public support::AutomationTest {
protected:
    TempFolder folder;
    std::wstring path = folder / L"Tür.syt";

    Ref<_CSymbol> Read() const {
        Ref<_CSymbol> symbol = NewSymbolAt(path);
        EXPECT_OK(symbol->ReadFromFile());
        return symbol;
    }
    Ref<_CSymbol> Read(const std::vector<std::string>& lines) const {
        support::WriteLines(path, lines);
        return Read();
    }
    static LONG Width(const Ref<_CSymbol>& symbol) {
        LONG width = 0;
        EXPECT_OK(symbol->get_Width(&width));
        return width;
    }
    void WriteExample() const {
        const Ref<_CSymbol> symbol = support::NewSymbol(150, -105, 300, 200, kExample);
        EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
        EXPECT_OK(symbol->Write2File());
    }
};

TEST_F(TextFile, FollowsTheRegionalSettings) {
    {
        const auto german = NumberSettings::German();
        WriteExample();
        EXPECT_EQ(support::ReadBytes(path), ExampleFile(','));
        EXPECT_EQ(ElementsOf(Read().Get()), kExample);
    }
    EXPECT_NE(DeleteFileW(path.c_str()), FALSE);
    const auto english = NumberSettings::English();
    WriteExample();
    EXPECT_EQ(support::ReadBytes(path), ExampleFile('.'));
    const Ref<_CSymbol> symbol = Read();
    EXPECT_EQ(ElementsOf(symbol.Get()), kExample);
    const support::Dispatch late(symbol);
    EXPECT_EQ(late.Get(L"RefX").value.Long(), 150);
    EXPECT_EQ(late.Get(L"RefY").value.Long(), -105);
    EXPECT_EQ(late.Get(L"Width").value.Long(), 300);
    EXPECT_EQ(late.Get(L"Height").value.Long(), 200);
    EXPECT_EQ(late.Get(L"FilePath").value.Text(), path) << "the path is not the file's";
}

TEST_F(TextFile, IsReadWithTheSettingsOfTheMoment) {
    support::WriteLines(path, {"SYM;CNT=1;WID=1.50;HEI=1;RPX=0;RPY=0"});
    const auto german = NumberSettings::German();
    EXPECT_EQ(Width(Read()), 15000) << "the full stop separates thousands";
    const auto english = NumberSettings::English();
    EXPECT_EQ(Width(Read()), 150);
}

TEST_F(TextFile, RoundsHalvesToEven) {
    const auto german = NumberSettings::German();
    EXPECT_EQ(Width(Read({"SYM;CNT=1;WID=0,125;HEI=1;RPX=0;RPY=0"})), 12);
    EXPECT_EQ(Width(Read({"SYM;CNT=1;WID=0,375;HEI=1;RPX=0;RPY=0"})), 38);
    EXPECT_EQ(Width(Read({"SYM;CNT=1;WID=-0,125;HEI=1;RPX=0;RPY=0"})), -12);
    EXPECT_EQ(Width(Read({"SYM;CNT=1;WID=1.234,56;HEI=1;RPX=0;RPY=0"})), 123456);
}

TEST_F(TextFile, SkipsBlankLinesOnly) {
    const Ref<_CSymbol> symbol =
        Read({"", "", "SYM;CNT=2;WID=1;HEI=1;RPX=0;RPY=0", "", "CIRCLE;MPX=1;MPY=2;RAD=3", "", " "});
    const auto elements = ElementsOf(symbol.Get());
    ASSERT_EQ(elements.size(), 2U);
    EXPECT_EQ(elements[0].radius, 300);
    EXPECT_EQ(elements[1].type, symUndefined) << "a line of spaces is an element of unknown type";
}

TEST_F(TextFile, TwoCornersStandForARectangle) {
    const auto elements =
        ElementsOf(Read({"SYM;CNT=2;WID=1;HEI=1;RPX=0;RPY=0", "POLY;CNT=2;CLS=TRUE", "POINT;0;0", "POINT;3;2",
                         "POLY;CNT=2;CLS=FALSE", "POINT;0;0", "POINT;3;2"})
                       .Get());
    ASSERT_EQ(elements.size(), 2U);
    EXPECT_EQ(elements[0].points, (std::vector<POINT>{{0, 0}, {0, 200}, {300, 200}, {300, 0}}));
    EXPECT_EQ(elements[1].points, (std::vector<POINT>{{0, 0}, {300, 200}}));
}

TEST_F(TextFile, ToleratesWhatIsNotNumericInPointsOnly) {
    const auto elements =
        ElementsOf(Read({"SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=0", "POLY;CNT=2", "POINT;abc;2", "POINT;;"}).Get());
    EXPECT_EQ(elements.at(0).points, (std::vector<POINT>{{0, 200}, {0, 0}}));
}

TEST_F(TextFile, TextsLoseOneQuoteAtEachEnd) {
    const auto elements =
        ElementsOf(Read({"SYM;CNT=3;WID=1;HEI=1;RPX=0;RPY=0", "TEXT;FKT=0", "STRING;\"a\"b\"\"", "TEXT",
                         "STRING;\"x;y\"", "TEXT", "STRING;eins", "STRING;\"zwei\""})
                       .Get());
    ASSERT_EQ(elements.size(), 3U);
    EXPECT_EQ(elements[0].text, L"a\"b\"");
    EXPECT_TRUE(elements[0].closed) << "the key alone sets the flag";
    EXPECT_EQ(elements[1].text, L"x") << "cut at the separator";
    EXPECT_FALSE(elements[1].closed);
    EXPECT_EQ(elements[2].text, L"einszwei") << "several lines run together";
}

TEST_F(TextFile, AnUnknownTypeTakesAPlace) {
    const auto elements = ElementsOf(Read({"SYM;CNT=3;WID=1;HEI=1;RPX=0;RPY=0", "ELLIPSE;COL=1;MPX=x",
                                           "circle;RAD=1", "CIRCLE;RAD=1;xyz=?;col=9"})
                                         .Get());
    ASSERT_EQ(elements.size(), 3U);
    EXPECT_EQ(elements[0], ElementSpec{});
    EXPECT_EQ(elements[1], ElementSpec{});
    EXPECT_EQ(elements[2].type, symCircle);
    EXPECT_EQ(elements[2].mainColor, 0) << "keys are upper case";
}

TEST_F(TextFile, UndefinedElementsMoveToTheEnd) {
    const Ref<_CSymbol> symbol = support::NewSymbol(
        0, 0, 1, 1, {{.type = symUndefined}, {.type = symCircle, .points = {{1, 2}}, .radius = 3}});
    EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
    EXPECT_OK(symbol->Write2File());
    const auto elements = ElementsOf(Read().Get());
    ASSERT_EQ(elements.size(), 2U);
    EXPECT_EQ(elements[0].type, symCircle);
    EXPECT_EQ(elements[1].type, symUndefined);
}

TEST_F(TextFile, AnglesAreDegrees) {
    const auto english = NumberSettings::English();
    const Ref<_CSymbol> symbol = support::NewSymbol(
        0, 0, 1, 1, {{.type = symText, .points = {{0, 0}}, .textAngle = 3.14159265358979323846 / 6}});
    EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
    EXPECT_OK(symbol->Write2File());
    EXPECT_NE(support::ReadBytes(path).find(";ANG=30.00;"), std::string::npos);
    EXPECT_DOUBLE_EQ(ElementsOf(Read().Get()).at(0).textAngle, 3.14159265358979323846 / 6);
}

TEST_F(TextFile, TextsAreWrittenInTheAnsiCodePage) {
    const Ref<_CSymbol> symbol = support::NewSymbol(
        0, 0, 1, 1, {{.type = symText, .points = {{0, 0}}, .closed = true, .text = L"Küche €"}});
    EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
    EXPECT_OK(symbol->Write2File());
    const std::string bytes = support::ReadBytes(path);
    EXPECT_NE(bytes.find(";BKM=1;FKT=100\r\n"), std::string::npos);
    if (GetACP() == 1252) {
        EXPECT_NE(bytes.find("STRING;\"K\xFC"
                             "che \x80\"\r\n"),
                  std::string::npos);
    }
    EXPECT_EQ(ElementsOf(Read().Get()).at(0).text, L"Küche €");
}

} // namespace
