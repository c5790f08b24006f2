#include "golden/com_host.h"
#include "support/servers.h"

namespace {

using golden::Road;

/// The cases lie beside the program.
std::vector<golden::Case> Cases() {
    return golden::CasesIn(std::filesystem::path(support::ProgramFolder()) / L"golden");
}

class Golden : public support::AutomationTest,
               public testing::WithParamInterface<std::tuple<golden::Case, Road>> {};

TEST_P(Golden, IsAsWritten) {
    golden::ComHost host(std::get<Road>(GetParam()));
    golden::Play(std::get<golden::Case>(GetParam()), host);
}

INSTANTIATE_TEST_SUITE_P(All, Golden,
                         testing::Combine(testing::ValuesIn(Cases()),
                                          testing::Values(Road::VirtualTable, Road::LateBound)),
                         [](const auto& test) {
                             return golden::TestName(std::get<golden::Case>(test.param)) +
                                    (std::get<Road>(test.param) == Road::LateBound ? "_late" : "_vtable");
                         });

/// Cases that nobody finds would prove nothing.
TEST(GoldenCases, AreThere) {
    EXPECT_GE(Cases().size(), 50U);
}

} // namespace
