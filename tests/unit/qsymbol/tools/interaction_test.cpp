#include "support/in_sources.h"
#include "unit/qsymbol/tools/native_tool_host.h"

#include <gtest/gtest.h>

namespace {

const std::filesystem::path kFolder = support::InSources("tests/data/interactions");

class Interaction : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Interaction, GoesAsRecorded) {
    tools::NativeToolHost host;
    interactions::Play(interactions::ReadScript(GetParam()), host);
}

INSTANTIATE_TEST_SUITE_P(All, Interaction, testing::ValuesIn(interactions::ScriptsIn(kFolder)),
                         [](const auto& test) { return test.param.stem().string(); });

/// Scripts that nobody finds would prove nothing.
TEST(Interactions, AreThere) {
    EXPECT_GE(interactions::ScriptsIn(kFolder).size(), 10U);
}

} // namespace
