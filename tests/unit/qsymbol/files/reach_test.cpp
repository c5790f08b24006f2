#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/wsc_reader.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gmock/gmock.h>

#include <tuple>

namespace {

/// How far a binary file has to be seen: to its last element, from wherever one looks.
TEST(Reach, OfABinaryFileGoesToItsLastElement) {
    support::TestEnvironment world;
    const std::string bytes = ComposeBinary(support::EveryField(), world.InMemory());
    EXPECT_EQ(qsymbol::BinaryReach(bytes), bytes.size());
    EXPECT_EQ(qsymbol::BinaryReach(bytes + "tail"), bytes.size());
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_GT(qsymbol::BinaryReach(std::string_view(bytes).substr(0, size)), size) << size;
    std::string broken = bytes;
    broken[2] = 's';
    EXPECT_EQ(qsymbol::BinaryReach(broken), broken.size()) << "there is nothing more to see";
    broken = bytes;
    broken[24] = '\x80';
    EXPECT_EQ(qsymbol::BinaryReach(broken), broken.size());
}

TEST(Reach, OfLinesEndsWhereTheyAreRefused) {
    for (const auto& [reach, beginning, enough] :
         {std::tuple{base::Reach{qsymbol::TextReach}, "\n\nSYM;CNT=1;", false},
          {qsymbol::TextReach, "\n\n", false},
          {qsymbol::TextReach, "SYM;1;2;3;4;5\nX\n", false},
          {qsymbol::TextReach, "SYM;1\n", true},
          {qsymbol::TextReach, "SYN", true},
          {qsymbol::TextReach, "\n\nSY", false},
          {qsymbol::TextReach, "SYM;CNT=1;3;4;5;6\r\nPOLY;CNT=1\nPOINT;1;2\n\r\nSTRING\nPOINT\r", false},
          {qsymbol::TextReach, "SYM;CNT=1;3;4;5;6\nPOLY\nSTR", false},
          {qsymbol::TextReach, "SYM;CNT=1;3;4;5;6\nPOLY\n\r", false},
          {qsymbol::TextReach, "SYM;CNT=1;3;4;5;6\nPOLY\nSTX", true},
          {qsymbol::TextReach, "SYM;CNT=1;3;4;5;6\nPOLY\nPOINTS", true},
          {qsymbol::TextReach, "SYM;CNT=2;CNT=1;4;5;6\nPOLY\nSTRIN\n\n", true},
          {qsymbol::TextReach, "SYM;CNT=1,0;3;4;5;6\nPOLY\nSTX", false},
          {qsymbol::TextReach, "SYM;CNT=1;3;4;5;6\nPOLY\n\x01", true},
          {qsymbol::WscReach, "X\nSTR 1", false},
          {qsymbol::WscReach, "X\nXYZ", false},
          {qsymbol::WscReach, "X\nXYZ\n", true}})
        EXPECT_EQ(reach(beginning) == std::string_view(beginning).size(), enough) << beginning;
}

TEST(ImportNotice, ShowsTheFirstThousandCharacters) {
    support::TestEnvironment world;
    const std::u16string before = u"Folgende Zeile kann nicht verarbeitet werden: ";
    for (const auto& [length, shown] : {std::pair{1000, std::u16string(1000, u'X')},
                                        {1001, std::u16string(1000, u'X') + u"…"},
                                        {10'000'000, std::u16string(1000, u'X') + u"…"}}) {
        qsymbol::Symbol symbol;
        const std::string line(static_cast<std::size_t>(length), 'X');
        EXPECT_EQ(ParseWsc(symbol, "BLT 1 2 3 4 5\n" + line, world.InMemory()),
                  before + shown + u" --> Abbruch");
    }
}

} // namespace
