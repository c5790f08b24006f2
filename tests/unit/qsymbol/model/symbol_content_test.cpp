#include "qsymbol/model/symbol_content.h"

#include "support/arbitrary_symbol.h"
#include "support/sample_symbols.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using qsymbol::PackSymbol;
using qsymbol::Symbol;
using qsymbol::UnpackSymbol;

std::vector<Symbol> Symbols() {
    std::vector<Symbol> symbols{Symbol(), support::WashRoom(), support::EveryField()};
    std::mt19937 random(7);
    for (int i = 0; i < 200; ++i) {
        std::string bytes(random() % 400, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        symbols.push_back(support::ArbitrarySymbol(bytes));
    }
    return symbols;
}

TEST(SymbolContent, EveryFieldComesBack) {
    for (const Symbol& symbol : Symbols()) {
        const std::string packed = PackSymbol(symbol);
        const auto back = UnpackSymbol(packed);
        ASSERT_TRUE(back);
        EXPECT_EQ(PackSymbol(*back), packed); // numbers that equal nothing, not even themselves, included
    }
    EXPECT_EQ(*UnpackSymbol(PackSymbol(support::EveryField())), support::EveryField());
}

TEST(SymbolContent, OtherBytesAreNone) {
    const std::string packed = PackSymbol(support::EveryField());
    for (std::size_t size = 0; size < packed.size(); ++size)
        EXPECT_FALSE(UnpackSymbol(std::string_view(packed).substr(0, size))) << size;
    EXPECT_FALSE(UnpackSymbol(packed + "x"));
    std::string other = packed;
    other[0] = 2;
    EXPECT_FALSE(UnpackSymbol(other)) << "another form";
    std::mt19937 random(8);
    for (int i = 0; i < 2000; ++i) {
        std::string broken = packed;
        broken[random() % broken.size()] = static_cast<char>(random());
        UnpackSymbol(broken); // whatever it is: no crash, no memory beyond the bytes
    }
}

} // namespace
