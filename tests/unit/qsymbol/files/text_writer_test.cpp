#include "qsymbol/files/text_writer.h"

#include "qsymbol/files/text_reader.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using base::RunTimeError;
using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;
using support::CaughtFrom;
using support::Expected;

class TextWriter : public testing::Test {
protected:
    support::TestEnvironment world_;

    std::string Compose(const Symbol& symbol) { return ComposeText(symbol, world_.InMemory()); }
    /// The file's lines for one element, without the header.
    std::string Compose(const ElementRecord& element) {
        Symbol symbol;
        symbol.elements = {element};
        const std::string text = Compose(symbol);
        return text.substr(text.find('\n') + 1);
    }
    support::Caught Error(const ElementRecord& element) {
        return CaughtFrom([&] { Compose(element); });
    }
};

ElementRecord Text() {
    return support::WashRoom().elements[2];
}

TEST_F(TextWriter, TheTenLinesOfTheExample) {
    EXPECT_EQ(Compose(support::WashRoom()), support::WashRoomText());
}

TEST_F(TextWriter, EnglishSettings) {
    std::string expected = support::WashRoomText();
    for (char& c : expected)
        c = c == ',' ? '.' : c;
    world_.regional = platform::EnglishSettings();
    EXPECT_EQ(Compose(support::WashRoom()), expected);
}

TEST_F(TextWriter, Arc) {
    ElementRecord arc;
    arc.type = ElementType::Arc;
    arc.mainColor = 1;
    arc.radius = 50;
    arc.points = {{150, 100}, {200, 100}, {150, 150}};
    EXPECT_EQ(Compose(arc),
              "ARC;COL=1;WID=0,00;MPX=1,50;MPY=1,00;RAD=0,50\r\nPOINT;2,00;1,00\r\nPOINT;1,50;1,50\r\n");
    arc.points.resize(1);
    EXPECT_EQ(Compose(arc), "ARC;COL=1;WID=0,00;MPX=1,50;MPY=1,00;RAD=0,50\r\n");
}

TEST_F(TextWriter, EveryTextField) {
    const ElementRecord text = support::EveryField().elements[3];
    EXPECT_EQ(Compose(text),
              "TEXT;COL=4711;ANG=45,00;NAM=B\xF6rse Sans;HEI=14;BOL=TRUE;ITA=TRUE;UND=TRUE;STR=TRUE;"
              "ALI=24;BKM=2;FKT=100\r\nPOINT;-0,99;1,00\r\n"
              "STRING;\"K\xFC"
              "che \"S\xFC"
              "d\" 10 \x80\"\r\n");
}

TEST_F(TextWriter, SizesAreWholeNumbersHalvesAwayFromZero) {
    ElementRecord text = Text();
    text.font->size = 8.25;
    EXPECT_NE(Compose(text).find(";HEI=8;"), std::string::npos);
    text.font->size = 8.5;
    EXPECT_NE(Compose(text).find(";HEI=9;"), std::string::npos);
}

TEST_F(TextWriter, AnUndefinedElementIsCountedOnly) {
    Symbol symbol;
    symbol.elements.resize(2);
    symbol.elements[1].type = static_cast<ElementType>(17);
    EXPECT_EQ(Compose(symbol), "SYM;CNT=2;WID=0,00;HEI=0,00;RPX=0,00;RPY=0,00\r\n");
}

TEST_F(TextWriter, NoElementsDoNotReadBack) {
    Symbol symbol;
    const std::string text = Compose(symbol);
    EXPECT_EQ(text, "SYM;CNT=0;WID=0,00;HEI=0,00;RPX=0,00;RPY=0,00\r\n");
    EXPECT_EQ(CaughtFrom([&] { ParseText(symbol, text, world_.InMemory()); }),
              Expected(RunTimeError::SubscriptOutOfRange));
}

TEST_F(TextWriter, APolylineWithoutPoints) {
    ElementRecord line;
    line.type = ElementType::Poly;
    EXPECT_EQ(Compose(line), "POLY;CNT=0;COL=0;WID=0,00;CLS=FALSE;FIL=-1\r\n");
}

TEST_F(TextWriter, WhatCannotBeComposed) {
    ElementRecord element;
    element.type = ElementType::Circle;
    EXPECT_EQ(Error(element), Expected(RunTimeError::SubscriptOutOfRange));
    element.type = ElementType::Arc;
    EXPECT_EQ(Error(element), Expected(RunTimeError::SubscriptOutOfRange));
    element = Text();
    element.points.clear();
    EXPECT_EQ(Error(element), Expected(RunTimeError::SubscriptOutOfRange));
    element.font.reset();
    EXPECT_EQ(Error(element), Expected(RunTimeError::ObjectNotSet));
    element = Text();
    element.textAngle = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Error(element), Expected(RunTimeError::Overflow));
    element = Text();
    element.font->size = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Error(element), Expected(RunTimeError::Overflow));
}

TEST_F(TextWriter, EveryFieldComesBack) {
    for (const base::RegionalSettings& settings : {platform::GermanSettings(), platform::EnglishSettings()}) {
        world_.regional = settings;
        Symbol back;
        ParseText(back, Compose(support::EveryField()), world_.InMemory());
        Symbol expected = support::EveryField();
        EXPECT_NEAR(back.elements[3].textAngle, expected.elements[3].textAngle, 0.0001);
        back.elements[3].textAngle = expected.elements[3].textAngle;
        EXPECT_EQ(back, expected);
    }
}

TEST_F(TextWriter, ATextIsCutAtTheSeparator) {
    Symbol symbol = support::WashRoom();
    symbol.elements[2].text = u"a;b";
    Symbol back;
    ParseText(back, Compose(symbol), world_.InMemory());
    EXPECT_EQ(back.elements[2].text, u"a");
}

TEST_F(TextWriter, CharactersOutsideTheCodePage) {
    ElementRecord text = Text();
    text.text = u"Ω\U0001F6BB!";
    EXPECT_NE(Compose(text).find("\"?\?!\""), std::string::npos);
}

} // namespace
