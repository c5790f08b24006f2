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
    std::string Compose(const ElementRecord& element) {
        Symbol symbol;
        symbol.elements = {element};
        return Compose(symbol);
    }
    support::Caught Error(const ElementRecord& element) {
        Symbol symbol;
        symbol.elements = {element};
        return CaughtFrom([&] { Compose(symbol); });
    }
};

ElementRecord Text() {
    return support::WashRoom().elements[2];
}

/// What a reader would refuse, or read as other fields.
TEST_F(TextWriter, WhatWouldNotReadBack) {
    ElementRecord element;
    element.type = ElementType::Poly;
    EXPECT_EQ(Error(element), Expected(RunTimeError::SubscriptOutOfRange)) << "no points";
    element.type = ElementType::Arc;
    element.points.resize(4);
    EXPECT_EQ(Error(element), Expected(RunTimeError::SubscriptOutOfRange));
    for (const double size : {32767.5, 40000.0, -32768.5, 1e300}) {
        element = Text();
        element.font->size = size;
        EXPECT_EQ(Error(element), Expected(RunTimeError::Overflow)) << size;
    }
    element.font->size = 32767.4;
    EXPECT_NE(Compose(element).find(";HEI=32767;"), std::string::npos);
    for (const char16_t* name : {u"A;HEI=x", u"A\nB"}) {
        element.font->name = name;
        EXPECT_EQ(Error(element), Expected(RunTimeError::InvalidCall));
    }
    element = Text();
    element.text = u"a\r\nPOLY;CNT=x";
    EXPECT_EQ(Error(element), Expected(RunTimeError::InvalidCall));
}

TEST_F(TextWriter, WhatCannotBeComposed) {
    ElementRecord element;
    element.type = ElementType::Text;
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

TEST_F(TextWriter, CharactersOutsideTheCodePage) {
    ElementRecord text = Text();
    text.text = u"Ω\U0001F6BB≤√!";
    EXPECT_NE(Compose(text).find("\"?\?\?\?!\""), std::string::npos);
}

} // namespace
