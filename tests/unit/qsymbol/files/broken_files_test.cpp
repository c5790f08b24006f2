#include "qsymbol/files/binary_output.h"
#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/symbol_file.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/text_writer.h"
#include "support/allocation_counter.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

namespace {

using base::RunTimeError;
using qsymbol::BinaryOutput;
using qsymbol::Symbol;
using support::Caught;
using support::CaughtFrom;
using support::Expected;

/// Reads files in memory and holds every reading against the memory bound.
class BrokenFiles : public testing::Test {
protected:
    support::TestEnvironment world_;

    std::string Text(const Symbol& symbol) { return ComposeText(symbol, world_.InMemory()); }
    std::string Binary(const Symbol& symbol) { return ComposeBinary(symbol, world_.InMemory()); }

    /// The whole way from the file to the symbol, the file's buffer included.
    Caught Read(const char16_t* path, const std::string& bytes) {
        const qsymbol::FileEnvironment environment = world_.InMemory();
        world_.memory.files[path] = bytes;
        Symbol symbol;
        symbol.filePath = path;
        const support::AllocationCounter memory;
        const Caught caught = CaughtFrom([&] { ReadFromFile(symbol, environment); });
        EXPECT_LE(memory.Peak(), (64U << 20) + 64 * bytes.size());
        peak_ = memory.Peak();
        return caught;
    }
    Caught ReadText(const std::string& bytes) { return Read(u"plan/a.syt", bytes); }
    Caught ReadBinary(const std::string& bytes) { return Read(u"plan/a.syb", bytes); }

    std::size_t peak_ = 0; ///< of the last reading
};

TEST_F(BrokenFiles, TheCounterCounts) {
    const support::AllocationCounter memory;
    { const std::string block(1000000, 'x'); }
    EXPECT_GE(memory.Peak(), 1000000U);
    EXPECT_LT(memory.Peak(), 1100000U);
    EXPECT_EQ(memory.Blocks(), 1U);
}

TEST_F(BrokenFiles, ABinaryFileCutAtEveryByte) {
    const std::string whole = Binary(support::EveryField());
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(ReadBinary(whole.substr(0, size)), Expected(RunTimeError::InputPastEnd)) << size;
    EXPECT_EQ(ReadBinary(whole), Caught());
}

TEST_F(BrokenFiles, ATextFileCutAtEveryByte) {
    const std::string whole = Text(support::EveryField());
    int fine = 0;
    for (std::size_t size = 0; size <= whole.size(); ++size)
        fine += ReadText(whole.substr(0, size)) == Caught() ? 1 : 0;
    EXPECT_GT(fine, 0);
    EXPECT_LT(fine, static_cast<int>(whole.size()));
}

TEST_F(BrokenFiles, EveryBitOfABinaryFile) {
    const std::string whole = Binary(support::EveryField());
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string bytes = whole;
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << bit % 8));
        const std::int32_t number = ReadBinary(bytes).number;
        EXPECT_TRUE(number == 0 || number == 7 || number == 9 || number == 62 || number == 3501)
            << bit << ' ' << number;
    }
}

TEST_F(BrokenFiles, EveryBitOfATextFile) {
    const std::string whole = Text(support::EveryField());
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string bytes = whole;
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << bit % 8));
        const std::int32_t number = ReadText(bytes).number;
        EXPECT_TRUE(number == 0 || number == 6 || number == 7 || number == 9 || number == 13 ||
                    number == 3501 || number == 3502)
            << bit << ' ' << number;
    }
}

TEST_F(BrokenFiles, EveryByteSetToEveryKindOfCharacter) {
    const std::string text = Text(support::WashRoom());
    const std::string binary = Binary(support::WashRoom());
    for (const char c : {'\0', '\n', '\r', ';', '"', '=', '-', '9', '\x7F', '\xFF'}) {
        for (std::size_t at = 0; at < text.size(); ++at)
            ReadText(std::string(text).replace(at, 1, 1, c));
        for (std::size_t at = 0; at < binary.size(); ++at)
            ReadBinary(std::string(binary).replace(at, 1, 1, c));
    }
}

TEST_F(BrokenFiles, AbsurdElementCounts) {
    const auto header = [](const std::string& count) {
        return "SYM;CNT=" + count + ";WID=1;HEI=1;RPX=0;RPY=0\n";
    };
    EXPECT_EQ(ReadText(header("2147483647")), Expected(RunTimeError::OutOfMemory));
    EXPECT_LT(peak_, 10000U) << "charged before it was taken";
    EXPECT_EQ(ReadText(header("10000000")), Expected(RunTimeError::OutOfMemory));
    EXPECT_EQ(ReadText(header("300000")), Caught()) << "within the bound a count is believed";
    EXPECT_EQ(ReadText("SYM;CNT=300000;CNT=300000;CNT=300000;CNT=300000;CNT=300000\n"), Caught());

    for (const std::int32_t last : {2147483647, 2147483646, 10000000}) {
        BinaryOutput out;
        out.String("SYM");
        for (int i = 0; i < 4; ++i)
            out.I32(0);
        out.I32(last);
        EXPECT_EQ(ReadBinary(out.Release()), Expected(RunTimeError::OutOfMemory)) << last;
        EXPECT_LT(peak_, 10000U);
    }
}

TEST_F(BrokenFiles, AbsurdPointCounts) {
    const std::string header = "SYM;CNT=9;WID=1;HEI=1;RPX=0;RPY=0\n";
    EXPECT_EQ(ReadText(header + "POLY;CNT=2147483647\n"), Expected(RunTimeError::OutOfMemory));
    EXPECT_LT(peak_, 10000U);
    EXPECT_EQ(ReadText(header + "POLY;CNT=8000000\nPOLY;CNT=8000000\n"), Expected(RunTimeError::OutOfMemory));
    EXPECT_EQ(ReadText(header + "POLY;CNT=8000000;CNT=8000000;CNT=8000000\n"), Caught());

    for (const auto& [last, error] : {std::pair{2147483647, RunTimeError::OutOfMemory},
                                      {20000000, RunTimeError::OutOfMemory},
                                      {8000000, RunTimeError::InputPastEnd}}) {
        Symbol symbol;
        symbol.elements.resize(1);
        std::string bytes = Binary(symbol);
        BinaryOutput count;
        count.I32(last);
        bytes.replace(bytes.size() - 6, 4, count.Release());
        EXPECT_EQ(ReadBinary(bytes), Expected(error)) << last;
    }
}

/// The smallest texts that ask for the most memory for each of their bytes.
TEST_F(BrokenFiles, CheapLinesStayWithinTheBound) {
    const auto header = [](int count) {
        return "SYM;CNT=" + std::to_string(count) + ";WID=1;HEI=1;RPX=0;RPY=0\n";
    };
    for (const char* line :
         {"X\n", "ARC\n", "TEXT\n", "POLY;CNT=9\n", "POLY;CNT=99\n", "POLY;CNT=2;CLS=TRUE\nPOINT\nPOINT\n",
          "TEXT\nSTRING;12345678\n", "TEXT;NAM=12345678\n"}) {
        std::string text = header(300000);
        for (int i = 0; i < 300000; ++i)
            text += line;
        const std::int32_t number = ReadText(text).number;
        EXPECT_TRUE(number == 0 || number == 7) << line << number;
    }
}

TEST_F(BrokenFiles, LongTextsStayWithinTheBound) {
    const std::string header = "SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=0\nTEXT";
    EXPECT_EQ(ReadText(header + ";NAM=" + std::string(8000000, 'x')), Caught());
    EXPECT_EQ(ReadText(header + "\nSTRING;" + std::string(8000000, 'x')), Caught());
    std::string pieces = header + "\n";
    for (int i = 0; i < 200000; ++i)
        pieces += "STRING;12345678901234567890\n";
    EXPECT_EQ(ReadText(pieces), Caught());
    EXPECT_EQ(ReadText(std::string(8000000, ';')).number, 3501);
    EXPECT_EQ(ReadText(std::string(8000000, '\n')), Caught());
}

TEST_F(BrokenFiles, ReadingAgainDoesNotAddUp) {
    const qsymbol::FileEnvironment environment = world_.InMemory();
    world_.memory.files[u"plan/a.syt"] = "SYM;CNT=300000;WID=1;HEI=1;RPX=0;RPY=0\n";
    Symbol symbol;
    symbol.filePath = u"plan/a.syt";
    ReadFromFile(symbol, environment);
    const support::AllocationCounter memory;
    ReadFromFile(symbol, environment);
    EXPECT_LT(memory.Peak(), 10000U) << "the old content goes before the new one comes";
}

TEST_F(BrokenFiles, AllocationsDoNotGrowWithTheLines) {
    const auto blocks = [&](int points) {
        std::string text = "SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=0\nPOLY;CNT=" + std::to_string(points) + "\n";
        for (int i = 0; i < points; ++i)
            text += "POINT;12,34;-0,125\n";
        Symbol symbol;
        const qsymbol::FileEnvironment environment = world_.InMemory();
        const support::AllocationCounter memory;
        ParseText(symbol, text, environment);
        return memory.Blocks();
    };
    EXPECT_EQ(blocks(10), blocks(10000));
}

} // namespace
