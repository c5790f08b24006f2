#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/symbol_format.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/text_writer.h"
#include "qsymbol/files/wsc_reader.h"
#include "support/allocation_counter.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

#include <bit>

namespace {

using qsymbol::Symbol;
using support::AllocationCounter;

using Parse = decltype(qsymbol::SymbolFormat::parse);

/// What one reading took: blocks asked for, bytes asked for in all, bytes held at once.
struct Cost {
    std::size_t blocks;
    std::size_t total;
    std::size_t peak;
};

std::string Repeated(const std::string& piece, std::size_t count) {
    std::string text;
    text.reserve(piece.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        text += piece;
    return text;
}

/// Work is measured by what it allocates: copying a list or a text over and over shows as a total that grows
/// with the square of the file's size.
class FileBounds : public testing::Test {
protected:
    support::TestEnvironment world_;

    Cost CostOf(Parse parse, const std::string& bytes) {
        const qsymbol::FileEnvironment environment = world_.InMemory();
        Symbol symbol;
        const AllocationCounter memory;
        parse(symbol, bytes, environment);
        return {memory.Blocks(), memory.Total(), memory.Peak()};
    }

    /// Reads `head`, then so many times `piece`, then so many of them and ten times as many: ten times the
    /// file may cost ten times as much, and a list that grows may grow by a few doublings more.
    void ExpectLinear(Parse parse, const std::string& head, const std::string& piece, std::size_t count,
                      const std::string& tail = "") {
        const Cost small = CostOf(parse, head + Repeated(piece, count) + tail);
        const Cost large = CostOf(parse, head + Repeated(piece, 10 * count) + tail);
        // A list in powers of two may be just full or just doubled, hence the factor two.
        EXPECT_LE(large.total, 20 * small.total + 10000) << piece;
        EXPECT_LE(large.peak, 20 * small.peak + 10000) << piece;
        EXPECT_LE(large.blocks, 10 * small.blocks + 10) << piece;
    }
};

const std::string kText = "SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=0\n";
const std::string kImport = "BLT 10 20 0 0 0\n";

TEST_F(FileBounds, ManyContinuationLinesOfOnePolygon) {
    for (const char* open : {"FLA\n", "STF\n"}) {
        for (const char* line : {"SFF 1 2 3 4 5 6\n", "FLF 1 2 3 4 5 6\n"}) {
            ExpectLinear(qsymbol::ParseWsc, kImport + open, line, 2000);
            const std::size_t lines = 20000;
            const Cost cost = CostOf(qsymbol::ParseWsc, kImport + open + Repeated(line, lines));
            EXPECT_LE(cost.blocks, 4U + std::bit_width(3 * lines)) << "the list grows by doubling";
            EXPECT_LE(cost.total, 5 * 3 * lines * sizeof(qmath::Point));
        }
    }
}

TEST_F(FileBounds, ManyFiguresOfEveryKind) {
    for (const char* figure :
         {"STR F=1 D=2 0 0 0 1 2 3 4\n", "STF F=1 D=2 0 0 0 1 2 3 4 5 6\nSFF 7 8\n",
          "FLA F=1\nFLF 1 2 3 4 5 6\n", "ELL 0 0 0 0 0 0 0 9 9\n", "ELL 0 0 0 0 0 0 0 9 99\n",
          "EBO 0 0 0 0 0 0 0 9 9\nEBF 1 2 3 4\n", "EFL 0 0 0 0 0 0 9 99\n",
          "PIE 0 0 0 0 0 0 9 9\nPIF 1 2 3 4\n", "STR D=0.35 0.5\n"}) {
        ExpectLinear(qsymbol::ParseWsc, kImport, figure, 500);
        const Cost cost = CostOf(qsymbol::ParseWsc, kImport + Repeated(figure, 1000));
        EXPECT_LE(cost.blocks, 3 * 1000 + 10U) << figure;
    }
}

TEST_F(FileBounds, RepeatedContinuationsOfArcAndPie) {
    ExpectLinear(qsymbol::ParseWsc, kImport + "EBO\n", "EBF 1 2 3 4\n", 1000);
    ExpectLinear(qsymbol::ParseWsc, kImport + "PIE 0 0 0 0 0 0 9 9\n", "PIF 1 2 3 4\n", 1000);
    const Cost cost = CostOf(qsymbol::ParseWsc, kImport + "EBO\n" + Repeated("EBF 1 2 3 4\n", 10000));
    EXPECT_LE(cost.blocks, 5U) << "the same three points again and again";
}

TEST_F(FileBounds, VeryLongImportLines) {
    for (const char* field : {"F=1 ", "D=0.5 ", "X=1 ", " ", "= ", "1.5 "})
        for (const char* open : {"FLA ", "STR ", "STF\nSFF ", "PIE\nPIF ", "END "})
            ExpectLinear(qsymbol::ParseWsc, kImport + "STR\n" + open, field, 5000);
    for (const char* digit : {"0", "9", "1.", "=", ".", ","})
        ExpectLinear(qsymbol::ParseWsc, kImport + "STR 0 0 0 0 0 ", digit, 5000);
    ExpectLinear(qsymbol::ParseWsc, kImport + "X", "abc ", 5000); // the notice holds the whole line
}

TEST_F(FileBounds, VeryLongTextLines) {
    for (const char* field : {"COL=1;", ";", "XYZ=1;", "WID=0,25;", "CLS=TRUE;"})
        ExpectLinear(qsymbol::ParseText, kText + "POLY;", field, 5000);
    ExpectLinear(qsymbol::ParseText, kText + "TEXT;", "NAM=A longer name than fits;", 5000);
    ExpectLinear(qsymbol::ParseText, kText + "TEXT;NAM=", "Arial", 5000);
    ExpectLinear(qsymbol::ParseText, kText + "POLY;CNT=1\nPOINT;", "0", 5000);
    ExpectLinear(qsymbol::ParseText, kText + "POLY;CNT=1\nPOINT;", "1;", 5000);
}

TEST_F(FileBounds, ManyStringsOnOneElement) {
    ExpectLinear(qsymbol::ParseText, kText + "TEXT\n", "STRING;\"a piece of more than a few letters\"\n",
                 2000);
    const std::size_t lines = 20000;
    const std::string line = "STRING;\"a piece of more than a few letters\"\n";
    const Cost cost = CostOf(qsymbol::ParseText, kText + "TEXT\n" + Repeated(line, lines));
    EXPECT_LE(cost.blocks, 10 + 2 * lines);
    EXPECT_LE(cost.total, 12 * lines * line.size());
}

TEST_F(FileBounds, ManyCountsOnOneLine) {
    for (const char* count : {"CNT=100000;", "CNT=100000;CNT=1;"}) {
        const Cost cost = CostOf(qsymbol::ParseText, kText + "POLY;" + Repeated(count, 1000));
        EXPECT_LE(cost.total, 1000000U) << "only the last count makes a list";
    }
    Symbol symbol;
    ParseText(symbol, kText + "POLY;CNT=100000;CNT=7;COL=1\n", world_.InMemory());
    EXPECT_EQ(symbol.elements[0].points.size(), 7U);
}

TEST_F(FileBounds, ManyPointsAndElements) {
    const auto points = [&](std::size_t count) {
        return CostOf(qsymbol::ParseText, kText + "POLY;CNT=" + std::to_string(count) + "\n" +
                                              Repeated("POINT;12,34;-0,125\n", count));
    };
    EXPECT_EQ(points(100).blocks, points(10000).blocks);
    const auto circles = [&](std::size_t count) {
        return CostOf(qsymbol::ParseText,
                      "SYM;CNT=" + std::to_string(count) + ";WID=1;HEI=1;RPX=0;RPY=0\n" +
                          Repeated("CIRCLE;COL=1;MPX=1,00;MPY=2,00;RAD=3,00;FIL=-1\n", count));
    };
    EXPECT_LE(circles(10000).blocks, 10000 + 5U);
    EXPECT_LE(circles(10000).total, 11 * circles(1000).total);
}

TEST_F(FileBounds, BinaryElements) {
    const auto cost = [&](std::size_t count) {
        Symbol symbol;
        symbol.elements.assign(count, support::EveryField().elements[0]);
        return CostOf(qsymbol::ParseBinary, ComposeBinary(symbol, world_.InMemory()));
    };
    EXPECT_LE(cost(10000).blocks, 10000 + 5U) << "the points of each, and the table";
    EXPECT_LE(cost(10000).total, 11 * cost(1000).total);
}

TEST_F(FileBounds, Writing) {
    const auto cost = [&](auto compose, std::size_t count) {
        Symbol symbol;
        symbol.elements.assign(count, support::EveryField().elements[3]);
        const qsymbol::FileEnvironment environment = world_.InMemory();
        const AllocationCounter memory;
        compose(symbol, environment);
        return Cost{memory.Blocks(), memory.Total(), memory.Peak()};
    };
    for (const auto compose : {qsymbol::ComposeText, qsymbol::ComposeBinary}) {
        EXPECT_LE(cost(compose, 10000).total, 20 * cost(compose, 1000).total);
        EXPECT_LE(cost(compose, 10000).blocks, 10 * cost(compose, 1000).blocks + 10);
    }
}

} // namespace
