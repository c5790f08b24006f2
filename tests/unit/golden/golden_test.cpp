#include "support/in_sources.h"
#include "unit/golden/native_host.h"

#include <gtest/gtest.h>

namespace {

std::vector<golden::Case> Cases() {
    return golden::CasesIn(support::InSources("tests/data/golden"));
}

class Golden : public testing::TestWithParam<golden::Case> {};

TEST_P(Golden, IsAsWritten) {
    golden::NativeHost host;
    golden::Play(GetParam(), host);
}

INSTANTIATE_TEST_SUITE_P(All, Golden, testing::ValuesIn(Cases()),
                         [](const auto& test) { return golden::TestName(test.param); });

/// Cases that nobody finds would prove nothing.
TEST(GoldenCases, AreThere) {
    EXPECT_GE(Cases().size(), 50U);
}

} // namespace
