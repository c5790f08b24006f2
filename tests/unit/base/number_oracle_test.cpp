#include "support/number_oracle.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

TEST(NumberOracle, FormsAtTheEdges) {
    for (const char* text : {"",
                             "0",
                             "-0",
                             "-0,00",
                             "+0",
                             "1234567",
                             "12345678",
                             "123456789",
                             "-12345678",
                             "1234567,8",
                             "0,005",
                             "0,015",
                             "0,575",
                             "21474836,47",
                             "21474836,48",
                             "-21474836,48",
                             "-21474836,49",
                             "2147483647,5",
                             "-2147483648,5",
                             "2147483648",
                             "999999999999999",
                             "9999999999999999",
                             "1e22",
                             "1e23",
                             "1,5e308",
                             "1,8e308",
                             "2e-324",
                             "3e-324",
                             "1e-400",
                             "1e400",
                             "0e999999999999",
                             "1e-99999999999999",
                             ",",
                             ".",
                             "-.",
                             "5.",
                             ".5",
                             "1.2.3",
                             "1,2,3",
                             "1.,2",
                             "1e",
                             "1e+",
                             "e1",
                             "1 2",
                             "\t7 ",
                             "--1",
                             "+-1",
                             "12:",
                             "12/",
                             "1:345678"})
        EXPECT_EQ(support::BrokenNumberPromise(text), "") << text;
}

/// Numbers in the middle between two doubles, told apart by a digit far behind.
TEST(NumberOracle, LongDigitSequences) {
    // Half of the smallest double, as exact decimal: 5 to the power of 1075, moved.
    const std::string exact = [] {
        std::string digits = "1";
        for (int i = 0; i < 1075; ++i) {
            int carry = 0;
            for (auto at = digits.rbegin(); at != digits.rend(); ++at) {
                carry += (*at - '0') * 5;
                *at = static_cast<char>('0' + carry % 10);
                carry /= 10;
            }
            if (carry > 0)
                digits.insert(digits.begin(), static_cast<char>('0' + carry));
        }
        return "0," + std::string(1075 - digits.size(), '0') + digits;
    }();
    for (const std::string& text :
         {exact, exact + "1", exact + "0000", exact + "00001", exact + std::string(900, '0') + "1",
          exact.substr(0, exact.size() - 1) + "4" + std::string(900, '9')})
        EXPECT_EQ(support::BrokenNumberPromise(text), "") << text.size();
    EXPECT_EQ(support::BrokenNumberPromise("1" + std::string(20000, '0') + "e-20000"), "");
    EXPECT_EQ(support::BrokenNumberPromise("0," + std::string(20000, '0') + "1e20001"), "");
    EXPECT_EQ(support::BrokenNumberPromise("0," + std::string(150000, '0') + "1e150001"), "");
}

TEST(NumberOracle, RandomForms) {
    std::mt19937 random(4711);
    constexpr std::string_view kLetters = "0123456789012345678901234567890123456789,,..-+eE \t";
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (std::size_t size = random() % 14; text.size() < size;)
            text += kLetters[random() % kLetters.size()];
        ASSERT_EQ(support::BrokenNumberPromise(text), "") << text;
    }
}

} // namespace
