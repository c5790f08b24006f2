#include "qsymbol/files/binary_reader.h"

#include "qsymbol/files/binary_output.h"
#include "support/caught.h"
#include "support/test_environment.h"

#include <gmock/gmock.h>

#include <functional>

namespace {

using base::RunTimeError;
using qsymbol::BinaryOutput;
using qsymbol::Symbol;
using support::Caught;
using support::Expected;

/// Header with this last element index.
void PutHeader(BinaryOutput& out, std::int32_t last) {
    out.String("SYM");
    for (const std::int32_t value : {10, 20, 30, 40})
        out.I32(value);
    out.I32(last);
}

/// An element up to the font part, with this last point index and one point for every index.
void PutElement(BinaryOutput& out, std::int32_t lastPoint) {
    out.I32(1);
    out.U16(0);
    for (int i = 0; i < 3; ++i)
        out.I32(0);
    out.F64(0.5);
    for (int i = 0; i < 3; ++i)
        out.I32(0);
    out.String("");
    out.I32(lastPoint);
    for (std::int32_t i = 0; i <= lastPoint && i < 10; ++i) {
        out.I32(i);
        out.I32(-i);
    }
}

class BinaryReader : public testing::Test {
protected:
    support::TestEnvironment world_;
    Symbol symbol_;

    Caught Parse(std::string_view bytes) {
        return support::CaughtFrom([&] { world_.Parse(qsymbol::ParseBinary, symbol_, bytes); });
    }
    Caught Parse(const std::function<void(BinaryOutput&)>& put) {
        BinaryOutput out;
        put(out);
        return Parse(out.Release());
    }
};

TEST_F(BinaryReader, WhatIsNoSymbolFile) {
    const Caught refused{3501, u"CSymbol.ReadFromBinFile", u"Keine gültige Symboldatei."};
    using namespace std::string_view_literals;
    EXPECT_EQ(Parse("\x03\x00sym and so on"sv), refused);
    EXPECT_EQ(Parse("\x04\x00SYMX and so on"sv), refused);
    EXPECT_EQ(Parse("\x02\x00SYM"sv), refused);
    EXPECT_EQ(Parse("\x00\x00"sv), refused);
    EXPECT_EQ(Parse("\x03\x01SYM"sv), refused);
    EXPECT_EQ(Parse("SYM;CNT=1"sv), refused);
    world_.strings.texts[11102] = u"a";
    EXPECT_EQ(Parse("SYM;CNT=1"sv).description, u"a");
}

TEST_F(BinaryReader, CutShort) {
    using namespace std::string_view_literals;
    for (const std::string_view bytes :
         {""sv, "\x03"sv, "\x03\x00"sv, "\x03\x00SY"sv, "\x03\x00SYM"sv, "\x03\x00SYM123"sv})
        EXPECT_EQ(Parse(bytes), Expected(RunTimeError::InputPastEnd)) << bytes.size();
}

TEST_F(BinaryReader, LastElementIndexBelowZero) {
    for (const std::int32_t last : {-1, -2, -2147483647 - 1}) {
        EXPECT_EQ(Parse([&](BinaryOutput& out) { PutHeader(out, last); }),
                  Expected(RunTimeError::SubscriptOutOfRange));
        EXPECT_EQ(symbol_.width, 10) << "what was read stays";
        EXPECT_EQ(symbol_.refY, 40);
        EXPECT_TRUE(symbol_.elements.empty());
    }
}

TEST_F(BinaryReader, LastPointIndexBelowMinusOne) {
    for (const std::int32_t last : {-2, -2147483647 - 1})
        EXPECT_EQ(Parse([&](BinaryOutput& out) {
                      PutHeader(out, 0);
                      PutElement(out, last);
                      out.U16(0);
                  }),
                  Expected(RunTimeError::SubscriptOutOfRange));
}

TEST_F(BinaryReader, AnElementWithoutPoints) {
    EXPECT_EQ(Parse([&](BinaryOutput& out) {
                  PutHeader(out, 0);
                  PutElement(out, -1);
                  out.U16(0);
              }),
              Caught());
    EXPECT_TRUE(symbol_.elements[0].points.empty());
    EXPECT_EQ(*symbol_.elements[0].font, qsymbol::FontRecord()) << "without one stored it is Arial 6";
}

TEST_F(BinaryReader, AnyBitMakesABooleanTrue) {
    EXPECT_EQ(Parse([&](BinaryOutput& out) {
                  PutHeader(out, 0);
                  PutElement(out, 0);
                  out.U16(0x0100); // font present
                  out.U16(1);
                  out.U16(0);
                  out.String("X");
                  out.I32(-3);
                  out.U16(0x8000);
                  out.U16(0xFFFF);
              }),
              Caught());
    EXPECT_EQ(*symbol_.elements[0].font, (qsymbol::FontRecord{u"X", -3, true, false, true, true}));
}

TEST_F(BinaryReader, WhatLiesBehindIsNotLookedAt) {
    BinaryOutput out;
    PutHeader(out, 0);
    PutElement(out, 1);
    out.U16(0);
    std::string bytes = out.Release();
    EXPECT_EQ(Parse(bytes), Caught());
    const Symbol clean = symbol_;
    EXPECT_EQ(Parse(bytes + "anything"), Caught());
    EXPECT_EQ(symbol_, clean);
}

TEST_F(BinaryReader, PointsThatAreThereAreKept) {
    EXPECT_EQ(Parse([&](BinaryOutput& out) {
                  PutHeader(out, 1);
                  PutElement(out, 1000); // ten of them are there
              }),
              Expected(RunTimeError::InputPastEnd));
    ASSERT_EQ(symbol_.elements.size(), 2U);
    ASSERT_EQ(symbol_.elements[0].points.size(), 1001U);
    EXPECT_EQ(symbol_.elements[0].points[9], (qmath::Point{9, -9}));
    EXPECT_EQ(symbol_.elements[0].points[10], (qmath::Point{0, 0}));
    EXPECT_EQ(symbol_.elements[1], qsymbol::ElementRecord());
}

} // namespace
